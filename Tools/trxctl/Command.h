#pragma once

#include <functional>

#include <CLI/CLI.hpp>

#include "ExitCode.h"
#include "Model.h"
#include "Terminal.h"

namespace trxctl {

/// What every command is run with.
struct Session {
  const Model &model;
  /// False when the command line names no model and the default is used.
  bool model_given;
  const Terminal &terminal;
};

/// What the help of each command says of the options that all commands share.
inline constexpr char kSharedOptionsHelp[] =
    "\n--model NAME and --json may stand anywhere; trxctl --help explains them.";

/// One command: its place in the command line, with its own options, and what it does. It answers
/// on the session's terminal and throws Failure when it cannot be done. A command that has an
/// answer all the same, as an examination has, returns how it ended.
struct Command {
  CLI::App *app;
  std::function<ExitCode(const Session &)> run;
  /// Not worth a line in the help.
  bool hidden = false;
};

}  // namespace trxctl
