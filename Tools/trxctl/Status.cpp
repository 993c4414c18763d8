#include "Status.h"

#include <array>
#include <cstdio>

#include "Progress.h"
#include "Sending.h"
#include "Words.h"
#include "client/MixerStatus.h"

namespace trxctl {
namespace {

constexpr std::size_t kColumn = 20;

constexpr char kNotReported[] = "not reported by this model";
constexpr char kNoAnswer[] = "no answer";

std::string Row(std::string title, const std::string &value) {
  title.resize(kColumn, ' ');
  return "  " + title + value + '\n';
}

std::string FirmwareAsText(uint32_t version) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "0x%04x", version);
  return std::to_string(version) + " (" + digits.data() + ")";
}

void AddCertifyLevel(Answer &answer, const client::MixerStatus &status, bool isTold) {
  answer.json["certify_level"] = nullptr;
  if (status.certifyLevel) answer.json["certify_level"] = *status.certifyLevel;
  answer.text += Row("certify level", !isTold               ? kNotReported
                                      : status.certifyLevel ? std::to_string(*status.certifyLevel)
                                                            : kNoAnswer);
}

void AddFirmware(Answer &answer, const client::MixerStatus &status, bool isTold) {
  answer.json["firmware"] = nullptr;
  if (status.firmware) answer.json["firmware"] = *status.firmware;
  answer.text += Row("firmware", !isTold           ? kNotReported
                                 : status.firmware ? FirmwareAsText(*status.firmware)
                                                   : kNoAnswer);
}

/// A position in words, where they are known.
std::string PositionAsText(const client::Model &model, const client::SelectorPosition &selector) {
  std::string number = std::to_string(selector.position);
  if (!selector.isValid) return number + " (no position)";
  if (model.id == ORV_PRODUCT_TRX_SELVA && selector.position == 6) return "6, USB (first port)";
  if (model.id == ORV_PRODUCT_TRX_SELVA && selector.position == 7) return "7, USB (second port)";
  return number;
}

void AddSelectors(Answer &answer, const client::Model &model, const client::MixerStatus &status) {
  answer.json["input_selectors"] = Json::array();
  std::size_t channel = 0;
  for (const auto &selector : status.selectors) {
    ++channel;
    Json entry{{"channel", channel}, {"position", nullptr}};
    std::string text = kNoAnswer;
    if (selector) {
      text = PositionAsText(model, *selector);
      if (selector->isValid) entry["position"] = selector->position;
    }
    answer.json["input_selectors"].push_back(std::move(entry));
    answer.text += Row("input selector " + std::to_string(channel), text);
  }
}

void AddSerato(Answer &answer, const client::MixerStatus &status, bool isTold) {
  answer.json["serato"] = nullptr;
  if (status.serato) answer.json["serato"] = *status.serato;
  answer.text += Row("Serato", !isTold          ? kNotReported
                               : !status.serato ? kNoAnswer
                               : *status.serato ? "active"
                                                : "not active");
}

/// Which mixers answered, and whose values these are.
void AddMixers(Answer &answer, const client::Delivery &answers, const client::StatusKinds &kinds) {
  answer.text += "Mixers\n";
  for (const client::MixerResult &result : answers.mixers) {
    const bool isGood = result.outcome == client::Outcome::kDone;
    answer.text += "  " + DescribeWithSerial(result.mixer) + ": " +
                   (isGood ? "answers" : OutcomeAsText(result)) + '\n';
  }
  if (answers.mixers.size() > 1) {
    answer.text += kinds.firmware
                       ? "The firmware is that of the first mixer, the rest that of the last.\n"
                       : "The values are those of the last mixer.\n";
  }
  answer.json["mixers"] = DeliveryAsJson(answers)["mixers"];
}

std::optional<Failure> NoAnswer(const client::Delivery &answers) {
  auto failure = DeliveryFailure(answers);
  if (failure && failure->code == ExitCode::kPartlySent) failure->code = ExitCode::kFailed;
  return failure;
}

ExitCode Run(const Session &session) {
  RequireReachable(client::Reachable(), "there is no status to read");
  const Progress progress(session.output);
  const client::StatusKinds &kinds = client::StatusKindsOf(session.model);
  const client::MixerStatus status = client::AskStatus(session.model);
  Answer answer{session.output.Strong(std::string(session.model.name) + " mixer status") + '\n',
                {{"model", session.model.name}}};
  AddCertifyLevel(answer, status, kinds.certifyLevel);
  AddFirmware(answer, status, kinds.firmware);
  AddSelectors(answer, session.model, status);
  AddSerato(answer, status, kinds.serato);
  AddMixers(answer, status.answers, kinds);
  answer.failure = NoAnswer(status.answers);
  return session.output.Print(answer);
}

}  // namespace

Command MakeStatus(CLI::App &program) {
  CLI::App *app = program.add_subcommand("status", "Show what the connected mixers report");
  app->footer(std::string("What a mixer reports depends on the model.\n"
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
