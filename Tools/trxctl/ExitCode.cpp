#include "ExitCode.h"

#include <array>

namespace trxctl {
namespace {

// The position of an entry is its exit code.
constexpr std::array<ExitCodeEntry, 10> kExitCodes{{
    {ExitCode::kDone, "done", "done"},
    {ExitCode::kFailed, "failed", "the system did not give what the program needs"},
    {ExitCode::kUsage, "usage", "the command line was not understood"},
    {ExitCode::kRefused, "refused", "the model or the choice was refused"},
    {ExitCode::kNoMixer, "no_mixer", "no mixer is connected and nothing could be done without one"},
    {ExitCode::kTimedOut, "timed_out", "the time given with --timeout is over"},
    {ExitCode::kOutputFailed, "output_failed", "the output could not be written"},
    {ExitCode::kNoAccess, "no_access", "mixers are connected, but none of them could be opened"},
    {ExitCode::kNotStored, "not_stored", "the setting could not be stored"},
    {ExitCode::kPartlySent, "partly_sent", "a connected mixer did not take it"},
}};

}  // namespace

std::span<const ExitCodeEntry> ExitCodes() { return kExitCodes; }

const ExitCodeEntry &EntryOf(ExitCode code) {
  return kExitCodes.at(static_cast<std::size_t>(code));
}

}  // namespace trxctl
