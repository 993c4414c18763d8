#pragma once

#include <functional>

#include <CLI/CLI.hpp>

#include "ExitCode.h"
#include "Output.h"
#include "client/Models.h"

namespace trxctl {

/// What every command is run with.
struct Session {
  const client::Model &model;
  /// False when --model names none, whether TRXCTL_MODEL does or not.
  bool isModelGiven;
  const Output &output;

  /// The models that a command is about that looks at all of them unless --model names one.
  std::vector<const client::Model *> Models() const {
    return isModelGiven ? std::vector{&model} : client::ServedModels();
  }
};

/// What the help of each command says of the options that all commands share.
inline constexpr char kSharedOptionsHelp[] =
    "\n--model NAME and --json may stand anywhere; trxctl --help explains them.";

/// One command: its place in the command line, with its own options, and what it does. It answers
/// on the session's output and throws Failure when it cannot be done. A command that has an answer
/// all the same, as an examination has, returns how it ended.
struct Command {
  CLI::App *app;
  std::function<ExitCode(const Session &)> run;
  /// Not worth a line in the help.
  bool isHidden = false;
};

}  // namespace trxctl
