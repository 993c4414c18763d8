#include "Status.h"

#include <array>
#include <cstdio>

#include "Sending.h"
#include "Words.h"
#include "client/MixerStatus.h"

namespace trxctl {
namespace {

constexpr std::size_t kColumn = 20;

constexpr char kNotTold[] = "not told by this model";
constexpr char kNoAnswer[] = "no answer";

std::string Row(std::string title, const std::string &value) {
  title.resize(kColumn, ' ');
  return "  " + title + value + '\n';
}

/// The answer as it grows.
struct Answer {
  std::string text;
  Json json;
};

std::string FirmwareAsText(uint32_t version) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "0x%04x", version);
  return std::to_string(version) + " (" + digits.data() + ")";
}

void AddCertifyLevel(Answer &answer, const client::MixerStatus &status, bool isTold) {
  answer.json["certify_level"] = nullptr;
  if (status.certifyLevel) answer.json["certify_level"] = *status.certifyLevel;
  answer.text += Row("certify level", !isTold               ? kNotTold
                                      : status.certifyLevel ? std::to_string(*status.certifyLevel)
                                                            : kNoAnswer);
}

void AddFirmware(Answer &answer, const client::MixerStatus &status, bool isTold) {
  answer.json["firmware"] = nullptr;
  if (status.firmware) answer.json["firmware"] = *status.firmware;
  answer.text += Row("firmware", !isTold           ? kNotTold
                                 : status.firmware ? FirmwareAsText(*status.firmware)
                                                   : kNoAnswer);
}

void AddSelectors(Answer &answer, const client::MixerStatus &status) {
  answer.json["input_selectors"] = Json::array();
  std::size_t channel = 0;
  for (const auto &selector : status.selectors) {
    ++channel;
    Json entry{{"channel", channel}, {"position", nullptr}};
    std::string text = kNoAnswer;
    if (selector) {
      text = std::to_string(selector->position) + (selector->isValid ? "" : " (no position)");
      if (selector->isValid) entry["position"] = selector->position;
    }
    answer.json["input_selectors"].push_back(std::move(entry));
    answer.text += Row("input selector " + std::to_string(channel), text);
  }
}

void AddSerato(Answer &answer, const client::MixerStatus &status, bool isTold) {
  answer.json["serato"] = nullptr;
  if (status.serato) answer.json["serato"] = *status.serato;
  answer.text += Row("Serato", !isTold          ? kNotTold
                               : !status.serato ? kNoAnswer
                               : *status.serato ? "active"
                                                : "not active");
}

ExitCode Run(const Session &session) {
  const client::Delivery reachable = client::Reachable();
  RequireReachable(reachable, "there is no status to read");
  const client::StatusKinds &kinds = client::StatusKindsOf(session.model);
  const client::MixerStatus status = client::AskStatus(session.model);
  Answer answer{session.output.Strong(std::string(session.model.name) + " mixer status") + '\n',
                {{"model", session.model.name}}};
  AddCertifyLevel(answer, status, kinds.certifyLevel);
  AddFirmware(answer, status, kinds.firmware);
  AddSelectors(answer, status);
  AddSerato(answer, status, kinds.serato);
  if (reachable.Taken() > 1) {
    const std::string mixers = Counted(reachable.Taken(), "mixer");
    answer.text += kinds.firmware ? "The firmware is that of the first of " + mixers +
                                        ", the rest is that of the last.\n"
                                  : "This is what the last of " + mixers + " reports.\n";
  }
  answer.json["mixers"] = DeliveryAsJson(reachable)["mixers"];
  session.output.Print(answer.text, answer.json);
  return ExitCode::kDone;
}

}  // namespace

Command MakeStatus(CLI::App &program) {
  CLI::App *app = program.add_subcommand("status", "Show what the connected mixers report");
  app->footer(std::string("What can be told depends on the model.\n"
                          "\n"
                          "Examples:\n"
                          "  trxctl status                     of a TRX-SELVA\n"
                          "  trxctl status --model TRX-VOLT    of a TRX-VOLT\n") +
              kSharedOptionsHelp);
  return {app, Run};
}

std::vector<std::string> StatusOf(const client::Model &model) {
  const client::StatusKinds &kinds = client::StatusKindsOf(model);
  std::vector<std::string> names{"input_selectors"};
  if (kinds.certifyLevel) names.emplace_back("certify_level");
  if (kinds.firmware) names.emplace_back("firmware");
  if (kinds.serato) names.emplace_back("serato");
  return names;
}

}  // namespace trxctl
