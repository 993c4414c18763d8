#include "Diagnose.h"

#include <algorithm>

#include "CheckMixers.h"
#include "CheckSystem.h"

namespace trxctl {
namespace {

std::string AsText(const Terminal &terminal, const Check &check) {
  if (check.ok()) return "ok       " + check.name + ": " + check.finding + '\n';
  return terminal.Strong("problem  " + check.name) + ": " + check.finding +
         "\n  hint: " + check.hint + '\n';
}

nlohmann::ordered_json AsJson(const Check &check) {
  nlohmann::ordered_json json{
      {"check", check.name}, {"ok", check.ok()}, {"message", check.finding}};
  if (!check.ok()) {
    json["kind"] = EntryOf(check.code).kind;
    json["hint"] = check.hint;
  }
  return json;
}

ExitCode Run(const Session &session) {
  std::vector<Check> checks = CheckMixers();
  const std::vector<Check> system = CheckSystem(session);
  checks.insert(checks.end(), system.begin(), system.end());

  std::string text;
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const Check &check : checks) {
    text += AsText(session.terminal, check);
    list.push_back(AsJson(check));
  }
  const auto problem =
      std::find_if(checks.begin(), checks.end(), [](const Check &check) { return !check.ok(); });
  const ExitCode code = problem == checks.end() ? ExitCode::kDone : problem->code;
  session.terminal.Print(
      text, {{"ok", code == ExitCode::kDone}, {"code", static_cast<int>(code)}, {"checks", list}});
  return code;
}

}  // namespace

Command MakeDiagnose(CLI::App &program) {
  CLI::App *app =
      program.add_subcommand("diagnose", "Tell why a mixer is not found or cannot be used");
  app->footer(
      std::string("Looks at everything from the USB bus to the settings files, a line each, and\n"
                  "ends with the exit code for the first problem. Nothing is changed.\n"
                  "\n"
                  "Examples:\n"
                  "  trxctl diagnose\n"
                  "  trxctl diagnose --json\n") +
      kSharedOptionsHelp);
  return {app, Run};
}

}  // namespace trxctl
