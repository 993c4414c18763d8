#pragma once

#include <span>
#include <string_view>

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

}  // namespace trxctl
