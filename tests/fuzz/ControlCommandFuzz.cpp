// The input is a series of control commands, one on each line, for a simulator with one mixer. Then
// a host sends every request to every unit.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Control/CommandInterpreter.h"
#include "Promise.h"
#include "RecordingFrontEnd.h"

namespace trxfuzz {
namespace {

using trxsim::CommandInterpreter;
using trxsim::CommandReply;
using trxsim::Desk;
using trxsim::Outcome;

using Lines = std::vector<std::string>;

// More units than a machine has ports show nothing new.
constexpr std::size_t kMostUnits = 16;

bool IsPrintable(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char character) { return character >= ' ' && character <= '~'; });
}

/// The visible state of all units.
Lines Seen(CommandInterpreter &interpreter, const Desk &desk) {
  Lines seen;
  for (const auto &[number, unit] : desk.Units()) {
    const Lines lines = interpreter.Execute("get " + std::to_string(number)).lines;
    seen.insert(seen.end(), lines.begin(), lines.end());
  }
  return seen;
}

void CheckReply(const CommandReply &reply) {
  Promise(reply.refused == !reply.error.empty(), "a refusal, and nothing else, has a reason");
  Promise(reply.lines.empty() || !reply.refused, "a refusal has no answer besides its reason");
  Promise(IsPrintable(reply.error), "a reason is one printable line", reply.error);
  Promise(reply.error.size() < 400, "a reason is short", reply.error);
  for (const std::string &line : reply.lines) {
    Promise(IsPrintable(line), "an answer consists of printable lines", line);
  }
}

void CheckUnits(const Desk &desk, const RecordingFrontEnd &frontEnd) {
  for (const auto &[number, unit] : desk.Units()) {
    const std::string ending = ' ' + std::to_string(number);
    const auto last = std::find_if(frontEnd.calls.rbegin(), frontEnd.calls.rend(), [&](auto call) {
      if (call.ends_with(" faulty")) call.resize(call.size() - 7);
      return call.starts_with("plug" + ending) && call.size() == 4 + ending.size()
                 ? true
                 : call == "unplug" + ending;
    });
    const bool isPlugged = last != frontEnd.calls.rend() && last->starts_with("plug");
    Promise(unit.address.has_value() == isPlugged,
            "the desk and what hosts see agree on what is plugged in");
    if (!unit.mixer) continue;
    const std::size_t channels = unit.mixer->State().selectors.size();
    Promise(channels >= 1 && channels <= 16, "a mixer has 1 to 16 channels");
  }
}

void AskEverything(Desk &desk, int number) {
  for (const trxsim::RequestEntry &entry : trxsim::RequestTable()) {
    const auto length = static_cast<std::uint16_t>(entry.IsRead() ? 6 : 0);
    const std::size_t logged = desk.Log().size();
    const auto result =
        desk.Transfer(number, {entry.requestType, entry.request, 0, entry.index, length});
    const bool isGone = result.outcome == Outcome::kGone;
    Promise(desk.Log().size() == logged + (isGone ? 0 : 1), "what crosses the wire is logged");
    Promise(result.data.size() <= length, "a reply is no longer than the host asked for");
    Promise(result.outcome == Outcome::kDone || result.data.empty(),
            "a failed request has no data");
    if (result.outcome == Outcome::kUnplugged) {
      Promise(!desk.UnitOf(number).address, "a unit that vanishes is unplugged");
    }
  }
}

void Run(std::string_view input) {
  RecordingFrontEnd frontEnd;
  Desk desk(frontEnd);
  desk.Plug();
  CommandInterpreter interpreter(desk, {"ONE=1", "TWO=2"});
  Lines seen = Seen(interpreter, desk);
  while (!input.empty()) {
    const std::size_t end = std::min(input.find('\n'), input.size());
    const std::string_view line = input.substr(0, end);
    input.remove_prefix(std::min(end + 1, input.size()));
    frontEnd.isFull = desk.Units().size() >= kMostUnits;
    const CommandReply reply = interpreter.Execute(line);
    CheckReply(reply);
    Lines seenNow = Seen(interpreter, desk);
    if (reply.refused) Promise(seenNow == seen, "a refusal changes nothing");
    seen = std::move(seenNow);
    CheckUnits(desk, frontEnd);
  }
  for (const auto &[number, unit] : desk.Units()) AskEverything(desk, number);
  CheckUnits(desk, frontEnd);
}

}  // namespace
}  // namespace trxfuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  trxfuzz::Run(std::string_view(reinterpret_cast<const char *>(data), size));
  return 0;
}
