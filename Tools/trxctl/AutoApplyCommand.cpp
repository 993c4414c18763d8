#include "AutoApplyCommand.h"

#include <array>
#include <cstring>
#include <ctime>
#include <memory>

#include "AutoApplyWords.h"
#include "PlatformWords.h"
#include "Words.h"

namespace trxctl {
namespace {

/// "2026-11-21 22:10:05", in the time of this machine.
std::string AsText(std::chrono::system_clock::time_point time) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
  std::tm parts{};
  localtime_r(&seconds, &parts);
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts);
  return text.data();
}

/// The state of the wish, for "autoapply" alone and behind a change.
ExitCode Show(const Session &session) {
  const bool isOn = client::IsAutoApplyOn();
  const auto obstacle = AutoApplyObstacleAsText(client::ObstacleToAutoApply());
  const auto last = client::LastAutoApplyRun();
  std::string text = std::string("Sending the stored settings when a mixer is plugged in: ") +
                     (isOn ? "on" : "off") + '\n';
  Json json{{"on", isOn}, {"works", !obstacle}, {"obstacle", nullptr}, {"last_run", nullptr}};
  if (obstacle) {
    text += "It cannot work here: " + obstacle->text + ".\n";
    json["obstacle"] = obstacle->text;
  }
  text += "Last run: ";
  if (last) {
    text += AsText(last->time) + "  " + Printable(last->line) + '\n';
    json["last_run"] = {{"time", AsText(last->time)}, {"message", last->line}};
  } else {
    text += "the journal has none\n";
  }
  session.output.Print(text, json);
  return ExitCode::kDone;
}

bool IsOnNamed(const std::string &given) {
  if (given == "on" || given == "off") return given == "on";
  throw Failure{ExitCode::kUsage,
                Quoted(given) + " is neither on nor off",
                "write trxctl autoapply on, or trxctl autoapply off",
                {"on", "off"}};
}

ExitCode Run(const Session &session, const std::string &given) {
  if (given.empty()) return Show(session);
  const int reason = client::TurnAutoApply(IsOnNamed(given));
  if (reason != 0) {
    throw Failure{ExitCode::kNotStored,
                  "the choice could not be stored: " + std::string(std::strerror(reason)),
                  "trxctl diagnose tells what is wrong and what to do"};
  }
  return Show(session);
}

}  // namespace

std::optional<AutoApplyWords> AutoApplyObstacleAsText(client::AutoApplyObstacle obstacle) {
  switch (obstacle) {
    case client::AutoApplyObstacle::kNone:
      break;
    case client::AutoApplyObstacle::kNoServiceManager:
      return AutoApplyWords{std::string(kPlatformWords.withoutServiceManager), ""};
    case client::AutoApplyObstacle::kNoUnit:
      return AutoApplyWords{"the unit trx-reapply@.service is not installed",
                            "install the package trxctl again"};
    case client::AutoApplyObstacle::kUnitMasked:
      return AutoApplyWords{"the unit trx-reapply@.service is masked",
                            "run: systemctl --user unmask trx-reapply@.service"};
    case client::AutoApplyObstacle::kNoRule:
      return AutoApplyWords{"the udev rule 71-trx-reapply.rules is not installed",
                            "install the package trxctl again"};
  }
  return std::nullopt;
}

Command MakeAutoApply(CLI::App &program) {
  CLI::App *app = program.add_subcommand(
      "autoapply", "Send the stored settings when a mixer is plugged in: off, on");
  const auto given = std::make_shared<std::string>();
  app->add_option(kOnOrOffArgument, *given, "off or on; without it, tell the state");
  app->footer(
      std::string("A mixer that is plugged in, or was there before the login, gets what this user\n"
                  "has stored for its model, and nothing else. The user's journal has a line for\n"
                  "each: journalctl --user -t trx-reapply\n"
                  "\n"
                  "Examples:\n"
                  "  trxctl autoapply\n"
                  "  trxctl autoapply off\n") +
      kSharedOptionsHelp);
  return {app, [given](const Session &session) { return Run(session, *given); }};
}

}  // namespace trxctl
