#include "Status.h"

#include <array>
#include <cstdio>
#include <optional>

#include "Reach.h"
#include "Text.h"

namespace trxctl {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kColumn = 20;

/// What the mixers of a model report, as far as it can be read.
struct Reported {
  ProductId model;
  /// The channels whose selector position is reported; the library accepts one more for most
  /// models, for which the mixers report none.
  uint32_t selectors;
  bool certify;
  bool firmware;
  bool serato;
};

constexpr std::array<Reported, 6> kReported{{
    {ORV_PRODUCT_TRX_ARDEN, 4, false, false, true},
    {ORV_PRODUCT_TRX_VOLT, 2, false, false, false},
    {ORV_PRODUCT_TRX_HALDEN, 4, true, false, true},
    {ORV_PRODUCT_TRX_LUMEN, 4, true, false, true},
    {ORV_PRODUCT_TRX_MORROW, 4, true, false, true},
    {ORV_PRODUCT_TRX_SELVA, 4, true, true, true},
}};

const Reported &ReportedBy(const Model &model) {
  std::size_t place = 0;
  while (kReported.at(place).model != model.id) ++place;
  return kReported.at(place);
}

std::string Row(std::string title, const std::string &value) {
  title.resize(kColumn, ' ');
  return "  " + title + value + '\n';
}

/// The answer as it grows.
struct Answer {
  std::string text;
  Json json;
};

void AddCertifyLevel(Answer &answer, const Session &session, const Reported &reported) {
  uint32_t level = 0;
  answer.json["certify_level"] = nullptr;
  if (reported.certify) {
    ORV_GetMixerCertifyLevel(session.model.id, &level);
    answer.json["certify_level"] = level;
  }
  answer.text +=
      Row("certify level", reported.certify ? std::to_string(level) : "not told by this model");
}

void AddFirmware(Answer &answer, const Session &session, const Reported &reported) {
  uint32_t version = 0;
  answer.json["firmware"] = nullptr;
  std::string text = "not told by this model";
  if (reported.firmware) {
    ORV_GetFirmwareVersionIndex(session.model.id, &version);
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%04x", version);
    // The library answers 0 as well when the mixer does not.
    text = version == 0 ? "no answer" : std::to_string(version) + " (" + digits.data() + ")";
    if (version != 0) answer.json["firmware"] = version;
  }
  answer.text += Row("firmware", text);
}

void AddSelectors(Answer &answer, const Session &session, const Reported &reported) {
  constexpr uint32_t kUntouched = 0xFFFFFFFF;
  answer.json["input_selectors"] = Json::array();
  for (uint32_t channel = 0; channel < reported.selectors; ++channel) {
    uint32_t position = kUntouched;
    const bool good =
        ORV_GetMixerInputSelectorStatus(session.model.id, channel, &position) == ORV_SUCCESS;
    Json entry{{"channel", channel + 1}, {"position", nullptr}};
    std::string text = "no answer";
    if (position != kUntouched) text = std::to_string(position) + (good ? "" : " (no position)");
    if (position != kUntouched && good) entry["position"] = position;
    answer.json["input_selectors"].push_back(std::move(entry));
    answer.text += Row("input selector " + std::to_string(channel + 1), text);
  }
}

void AddSerato(Answer &answer, const Session &session, const Reported &reported) {
  answer.json["serato"] = nullptr;
  std::string text = "not told by this model";
  if (reported.serato) {
    uint32_t active = 0;
    const bool told = ORV_GetMixerSeratoActiveStatus(session.model.id, &active) == ORV_SUCCESS;
    text = !told ? "no answer" : active != 0 ? "active" : "not active";
    if (told) answer.json["serato"] = active != 0;
  }
  answer.text += Row("Serato", text);
}

ExitCode Run(const Session &session) {
  const Reach reach;
  RequireReached(reach, "there is no status to read");
  const Reported &reported = ReportedBy(session.model);
  Answer answer{session.terminal.Strong(std::string(session.model.name) + " mixer status") + '\n',
                {{"model", session.model.name}}};
  AddCertifyLevel(answer, session, reported);
  AddFirmware(answer, session, reported);
  AddSelectors(answer, session, reported);
  AddSerato(answer, session, reported);
  if (reach.accessible > 1) {
    const std::string mixers = Counted(reach.accessible, "mixer");
    answer.text += reported.firmware ? "The firmware is that of the first of " + mixers +
                                           ", the rest is that of the last.\n"
                                     : "This is what the last of " + mixers + " reports.\n";
  }
  answer.json["mixers"] = ReachAsJson(reach)["mixers"];
  session.terminal.Print(answer.text, answer.json);
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

std::vector<std::string> StatusOf(const Model &model) {
  const Reported &reported = ReportedBy(model);
  std::vector<std::string> names{"input_selectors"};
  if (reported.certify) names.emplace_back("certify_level");
  if (reported.firmware) names.emplace_back("firmware");
  if (reported.serato) names.emplace_back("serato");
  return names;
}

}  // namespace trxctl
