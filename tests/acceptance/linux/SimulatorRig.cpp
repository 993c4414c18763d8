#include "SimulatorRig.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "CaseRunner.h"

namespace trxtest {
namespace {

constexpr const char *kBusVariable = "DBUS_SESSION_BUS_ADDRESS";

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

// The simulator's log has columns parted by two or more blanks, and in the last one the simulator's
// own name for the request.
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

SimulatorRig::SimulatorRig(const std::string &folder)
    : folder_(folder), simulator_(ControlSocketIn(folder)), bus_(folder) {
  setenv(kBusVariable, bus_.Address().c_str(), 1);
  StartNotificationService();
}

template <typename... Words>
std::vector<std::string> SimulatorRig::Tell(const Words &...words) {
  std::ostringstream command;
  const char *separator = "";
  ((command << separator << words, separator = " "), ...);
  return simulator_.ask(command.str());
}

int SimulatorRig::PlugMixer() { return std::stoi(Tell("plug").at(0)); }

int SimulatorRig::PlugStranger(Stranger kind) { return std::stoi(Tell("plug", IdsOf(kind)).at(0)); }

void SimulatorRig::Unplug(int unit) { Tell("unplug", unit); }

void SimulatorRig::Replug(int unit) { Tell("replug", unit); }

// The second line about a unit: "plugged 001/002".
std::string SimulatorRig::AddressOf(int unit) {
  const std::string place = Tell("get", unit).at(1);
  return place.substr(place.find(' ') + 1);
}

int SimulatorRig::DeviceNumberOf(int unit) {
  const std::string address = AddressOf(unit);
  return std::stoi(address.substr(address.find('/') + 1));
}

void SimulatorRig::SetChannels(int unit, unsigned count) { Tell("set", unit, "channels", count); }

void SimulatorRig::SetSelector(int unit, unsigned channel, std::uint8_t position) {
  Tell("set", unit, "selector", channel, unsigned{position});
}

void SimulatorRig::SetLeadingByte(int unit, std::uint8_t value) {
  Tell("set", unit, "reply-leading-byte", unsigned{value});
}

void SimulatorRig::SetSerato(int unit, std::uint8_t first, std::uint8_t second) {
  Tell("set", unit, "serato", unsigned{first}, unsigned{second});
}

void SimulatorRig::SetPort(int unit, std::uint8_t first, std::uint8_t second) {
  Tell("set", unit, "port", unsigned{first}, unsigned{second});
}

void SimulatorRig::SetFirmware(int unit, std::uint16_t version) {
  Tell("set", unit, "firmware", version);
}

void SimulatorRig::SetCertifyLevel(int unit, std::uint32_t level) {
  Tell("set", unit, "certify", level);
}

void SimulatorRig::SetFault(int unit, UnitFault fault) { Tell("fault", unit, WordFor(fault)); }

void SimulatorRig::SetShortReplies(int unit, unsigned bytes) {
  Tell("fault", unit, "short", bytes);
}

void SimulatorRig::ClearFaults(int unit) { Tell("clear", unit); }

std::vector<std::string> SimulatorRig::WireLog() {
  std::vector<std::string> lines;
  for (const std::string &line : Tell("log")) lines.push_back(PlainLine(line));
  return lines;
}

void SimulatorRig::ClearWireLog() { Tell("log", "clear"); }

std::string SimulatorRig::LibraryFolder() { return ConfigurationFolderIn(folder_) + "/orvikaudio"; }

std::string SimulatorRig::SettingsFile(const std::string &modelDisplayName) {
  return LibraryFolder() + "/Preferences/com.orvikaudio." + modelDisplayName + "autosetup.plist";
}

std::string SimulatorRig::SystemRoot() { return SystemRootIn(folder_); }

std::vector<Announcement> SimulatorRig::TakeAnnouncements(std::size_t count) {
  return observer_.value().Take(count);
}

void SimulatorRig::Announce(const Announcement &announcement) {
  observer_.value().Post(announcement);
}

int SimulatorRig::AnnounceMisshapen(const Announcement &announcement) {
  return observer_.value().PostMisshapen(announcement);
}

void SimulatorRig::StopNotificationService() {
  observer_.reset();
  bus_.Stop();
}

void SimulatorRig::StartNotificationService() {
  bus_.Start();
  observer_.emplace(bus_.Address());
}

void SimulatorRig::FreezeNotificationService() { bus_.Freeze(); }

void SimulatorRig::ThawNotificationService() { bus_.Thaw(); }

void SimulatorRig::LoseNotificationService(LostService how) {
  switch (how) {
    case LostService::kNothingSaid:
      unsetenv(kBusVariable);
      break;
    case LostService::kNonsenseSaid:
      setenv(kBusVariable, "carrier-pigeon:coop=7;;,=", 1);
      break;
  }
}

void SimulatorRig::RunEventLoop(std::chrono::milliseconds limit) {
  pollfd loop = {-1, POLLIN, 0};
  if (ORV_GetNotificationDescriptor(&loop.fd) != ORV_SUCCESS || loop.fd < 0) {
    throw std::runtime_error("no descriptor to watch");
  }
  if (poll(&loop, 1, static_cast<int>(limit.count())) > 0) ORV_DispatchNotifications();
}

std::unique_ptr<HostProcess> SimulatorRig::StartHost() {
  return std::make_unique<HostProcess>(ACCEPTANCE_HOST);
}

}  // namespace trxtest
