#pragma once

#include <string>
#include <vector>

#include "ExitCode.h"

namespace trxctl {

/// Thrown when a command cannot be done: ends the program with a message for the user.
struct Failure {
  ExitCode code;
  /// One line: what is wrong.
  std::string message;
  /// One line: what the user can do about it.
  std::string hint;
  /// What would have been accepted in place of what was given, where that is a list.
  std::vector<std::string> choices = {};
};

}  // namespace trxctl
