#include "ModelsCommand.h"

#include <algorithm>

#include "InputLists.h"
#include "Knob.h"
#include "Status.h"
#include "Text.h"

namespace trxctl {
namespace {

using Json = nlohmann::ordered_json;

Json SettingsAsJson(const Model &model) {
  Json settings = Json::array();
  for (const Setting &setting : Settings()) {
    const std::vector<Knob> knobs = KnobsOf(setting, model);
    if (knobs.empty()) continue;
    Json entry{{"setting", setting.name}};
    if (setting.has_channels) entry["channels"] = knobs.size();
    entry["settable"] = knobs.front().TakesChoices();
    settings.push_back(std::move(entry));
  }
  return settings;
}

std::string SettingsAsText(const Model &model) {
  std::string text;
  for (const Setting &setting : Settings()) {
    const std::vector<Knob> knobs = KnobsOf(setting, model);
    if (knobs.empty()) continue;
    text += "  " + std::string(setting.title);
    if (setting.has_channels) text += ", " + Counted(knobs.size(), "channel");
    if (!knobs.front().TakesChoices()) text += " (to be read; to be set by raw values only)";
    text += '\n';
  }
  return text;
}

std::string StatusAsText(const Model &model) {
  std::vector<std::string> names = StatusOf(model);
  for (std::string &name : names) std::replace(name.begin(), name.end(), '_', ' ');
  return "  status: " + Joined(names) + '\n';
}

ExitCode Run(const Session &session) {
  std::string text;
  Json models = Json::array();
  for (const Model &model : Models()) {
    if (session.model_given ? model.id != session.model.id : !model.served) continue;
    const int32_t raw_channels = CountRawInputChannels(model.id);
    text += session.terminal.Strong(std::string(model.name)) + '\n' + SettingsAsText(model) +
            "  raw input values, " + Counted(static_cast<std::size_t>(raw_channels), "channel") +
            '\n' + StatusAsText(model);
    models.push_back({{"model", model.name},
                      {"product_id", model.id},
                      {"settings", SettingsAsJson(model)},
                      {"raw_input_channels", raw_channels},
                      {"status", StatusOf(model)}});
  }
  session.terminal.Print(text, {{"models", models}});
  return ExitCode::kDone;
}

}  // namespace

Command MakeModels(CLI::App &program) {
  CLI::App *app = program.add_subcommand("models", "List the models and what each accepts");
  app->footer(std::string("Examples:\n"
                          "  trxctl models\n"
                          "  trxctl models --model TRX-VOLT\n") +
              kSharedOptionsHelp);
  return {app, Run};
}

}  // namespace trxctl
