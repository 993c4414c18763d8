#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace trxctl {

/// How the program ended, for the shell and for scripts.
enum class ExitCode {
  kDone = 0,
  kFailed = 1,
  kUsage = 2,
  kRefused = 3,
  kNoMixer = 4,
  kTimedOut = 5,
  kOutputFailed = 6,
  kNoAccess = 7,
  kNotStored = 8,
  kPartlySent = 9,
};

/// What an exit code is called in JSON and how it is explained in the help.
struct ExitCodeEntry {
  ExitCode code;
  std::string_view kind;
  std::string_view meaning;
};

/// All exit codes, in numerical order.
std::span<const ExitCodeEntry> ExitCodes();

/// The entry of one exit code.
const ExitCodeEntry &EntryOf(ExitCode code);

/// Thrown when a command cannot be done: ends the program with a message for the user.
struct Failure {
  ExitCode code;
  /// One line: what is wrong. Empty: nothing is said, as when the reader of the output has left.
  std::string message;
  /// One line: what the user can do about it.
  std::string hint;
  /// What would have been accepted in place of what was given, where that is a list.
  std::vector<std::string> choices = {};
};

}  // namespace trxctl
