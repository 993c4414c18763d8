#include "SimulatedUnits.h"

#include <cstdio>
#include <sstream>
#include <string_view>

namespace trxtest {
namespace {

// Device numbers on a bus run from 2 (1 is the root hub) to this one, then from 2 again.
constexpr int kLastDeviceNumber = 127;

std::string HexadecimalId(unsigned id) {
  char text[8];
  std::snprintf(text, sizeof text, "%04x", id);
  return text;
}

std::string IdsOf(Stranger kind) {
  constexpr unsigned kMaker = MAKER_USB_VENDOR_ID;
  switch (kind) {
    case Stranger::kOtherProductOfTheMaker:
      return HexadecimalId(kMaker) + ":0020";
    case Stranger::kOtherMakerWithTheSameProduct:
      return HexadecimalId(kMaker ^ 1) + ":001f";
    case Stranger::kUnrelated:
      break;
  }
  return "1209:0001";
}

const char *WordFor(UnitFault fault) {
  switch (fault) {
    case UnitFault::kRefusesToOpen:
      return "refuse";
    case UnitFault::kHeldByAnotherProcess:
      return "hold";
    case UnitFault::kNotPermitted:
      return "deny";
    case UnitFault::kStalls:
      return "stall";
    case UnitFault::kStaysSilent:
      return "no-reply";
    case UnitFault::kVanishes:
      break;
  }
  return "vanish";
}

// The columns of the simulator's log are separated by two or more blanks; the last one is the
// simulator's name for the request.
std::string PlainLine(const std::string &line) {
  std::string plain;
  std::string_view rest = line;
  for (std::size_t end = rest.find("  "); end != rest.npos; end = rest.find("  ")) {
    plain += (plain.empty() ? "" : " ") + std::string(rest.substr(0, end));
    rest.remove_prefix(std::min(rest.find_first_not_of(' ', end), rest.size()));
  }
  return plain;
}

}  // namespace

template <typename... Words>
std::vector<std::string> SimulatedUnits::Tell(const Words &...words) {
  std::ostringstream command;
  const char *separator = "";
  ((command << separator << words, separator = " "), ...);
  return simulator_.Ask(command.str());
}

int SimulatedUnits::PlugMixer() { return std::stoi(Tell("plug").at(0)); }

int SimulatedUnits::PlugMixerInFront() {
  const int pace = PlugStranger(Stranger::kUnrelated);
  while (DeviceNumberOf(pace) != kLastDeviceNumber) {
    Unplug(pace);
    Replug(pace);
  }
  return PlugMixer();
}

int SimulatedUnits::PlugStranger(Stranger kind) {
  return std::stoi(Tell("plug", IdsOf(kind)).at(0));
}

void SimulatedUnits::Unplug(int unit) { Tell("unplug", unit); }

void SimulatedUnits::Replug(int unit) { Tell("replug", unit); }

// The second line about a unit: "plugged 001/002".
std::string SimulatedUnits::AddressOf(int unit) {
  const std::string place = Tell("get", unit).at(1);
  return place.substr(place.find(' ') + 1);
}

int SimulatedUnits::BusNumberOf(int unit) { return std::stoi(AddressOf(unit)); }

int SimulatedUnits::DeviceNumberOf(int unit) {
  const std::string address = AddressOf(unit);
  return std::stoi(address.substr(address.find('/') + 1));
}

void SimulatedUnits::SetChannels(int unit, unsigned count) { Tell("set", unit, "channels", count); }

void SimulatedUnits::SetSelector(int unit, unsigned channel, std::uint8_t position) {
  Tell("set", unit, "selector", channel, unsigned{position});
}

void SimulatedUnits::SetLeadingByte(int unit, std::uint8_t value) {
  Tell("set", unit, "reply-leading-byte", unsigned{value});
}

void SimulatedUnits::SetSerato(int unit, std::uint8_t first, std::uint8_t second) {
  Tell("set", unit, "serato", unsigned{first}, unsigned{second});
}

void SimulatedUnits::SetPort(int unit, std::uint8_t first, std::uint8_t second) {
  Tell("set", unit, "port", unsigned{first}, unsigned{second});
}

void SimulatedUnits::SetFirmware(int unit, std::uint16_t version) {
  Tell("set", unit, "firmware", version);
}

void SimulatedUnits::SetCertifyLevel(int unit, std::uint32_t level) {
  Tell("set", unit, "certify", level);
}

void SimulatedUnits::SetFault(int unit, UnitFault fault) { Tell("fault", unit, WordFor(fault)); }

void SimulatedUnits::SetShortReplies(int unit, unsigned bytes) {
  Tell("fault", unit, "short", bytes);
}

void SimulatedUnits::ClearFaults(int unit) { Tell("clear", unit); }

std::vector<std::string> SimulatedUnits::WireLog() {
  std::vector<std::string> lines;
  for (const std::string &line : Tell("log")) lines.push_back(PlainLine(line));
  return lines;
}

void SimulatedUnits::ClearWireLog() { Tell("log", "clear"); }

}  // namespace trxtest
