#include "UmockdevRig.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>

namespace trxtest {
namespace {

// Device numbers on a bus run from 2 (1 is the root hub) to this one, then from 2 again.
constexpr int kLastDeviceNumber = 127;

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

std::string ControlSocketIn(const std::string &folder) { return folder + "/control"; }
std::string ConfigurationFolderIn(const std::string &folder) { return folder + "/config"; }
std::string RuntimeFolderIn(const std::string &folder) { return folder + "/run"; }
std::string SystemRootIn(const std::string &folder) { return folder + "/system"; }

std::unique_ptr<Rig> MakeRig() {
  const char *folder = std::getenv(kFolderVariable);
  if (folder == nullptr) throw std::runtime_error("not under the simulator");
  return std::make_unique<UmockdevRig>(folder);
}

UmockdevRig::UmockdevRig(const std::string &folder)
    : folder_(folder), simulator_(ControlSocketIn(folder)), bus_(folder) {
  setenv(kBusVariable, bus_.Address().c_str(), 1);
  StartNotificationService();
}

template <typename... Words>
std::vector<std::string> UmockdevRig::Tell(const Words &...words) {
  std::ostringstream command;
  const char *separator = "";
  ((command << separator << words, separator = " "), ...);
  return simulator_.ask(command.str());
}

int UmockdevRig::PlugMixer() { return std::stoi(Tell("plug").at(0)); }

int UmockdevRig::PlugMixerInFront() {
  const int pace = PlugStranger(Stranger::kUnrelated);
  while (DeviceNumberOf(pace) != kLastDeviceNumber) {
    Unplug(pace);
    Replug(pace);
  }
  return PlugMixer();
}

int UmockdevRig::PlugStranger(Stranger kind) { return std::stoi(Tell("plug", IdsOf(kind)).at(0)); }

void UmockdevRig::Unplug(int unit) { Tell("unplug", unit); }

void UmockdevRig::Replug(int unit) { Tell("replug", unit); }

// The second line about a unit: "plugged 001/002".
int UmockdevRig::DeviceNumberOf(int unit) {
  const std::string address = Tell("get", unit).at(1);
  return std::stoi(address.substr(address.find('/') + 1));
}

void UmockdevRig::SetChannels(int unit, unsigned count) { Tell("set", unit, "channels", count); }

void UmockdevRig::SetSelector(int unit, unsigned channel, std::uint8_t position) {
  Tell("set", unit, "selector", channel, unsigned{position});
}

void UmockdevRig::SetLeadingByte(int unit, std::uint8_t value) {
  Tell("set", unit, "reply-leading-byte", unsigned{value});
}

void UmockdevRig::SetSerato(int unit, std::uint8_t first, std::uint8_t second) {
  Tell("set", unit, "serato", unsigned{first}, unsigned{second});
}

void UmockdevRig::SetPort(int unit, std::uint8_t first, std::uint8_t second) {
  Tell("set", unit, "port", unsigned{first}, unsigned{second});
}

void UmockdevRig::SetFirmware(int unit, std::uint16_t version) {
  Tell("set", unit, "firmware", version);
}

void UmockdevRig::SetCertifyLevel(int unit, std::uint32_t level) {
  Tell("set", unit, "certify", level);
}

void UmockdevRig::SetFault(int unit, UnitFault fault) { Tell("fault", unit, WordFor(fault)); }

void UmockdevRig::SetShortReplies(int unit, unsigned bytes) { Tell("fault", unit, "short", bytes); }

void UmockdevRig::ClearFaults(int unit) { Tell("clear", unit); }

std::vector<std::string> UmockdevRig::WireLog() {
  std::vector<std::string> lines;
  for (const std::string &line : Tell("log")) lines.push_back(PlainLine(line));
  return lines;
}

void UmockdevRig::ClearWireLog() { Tell("log", "clear"); }

std::string UmockdevRig::LibraryFolder() { return ConfigurationFolderIn(folder_) + "/orvikaudio"; }

std::string UmockdevRig::SettingsFile(const std::string &modelDisplayName) {
  return LibraryFolder() + "/Preferences/com.orvikaudio." + modelDisplayName + "autosetup.plist";
}

std::string UmockdevRig::SystemRoot() { return SystemRootIn(folder_); }

std::vector<Announcement> UmockdevRig::TakeAnnouncements(std::size_t count) {
  return observer_.value().Take(count);
}

void UmockdevRig::Announce(const Announcement &announcement) {
  observer_.value().Post(announcement);
}

int UmockdevRig::AnnounceMisshapen(const Announcement &announcement) {
  return observer_.value().PostMisshapen(announcement);
}

void UmockdevRig::StopNotificationService() {
  observer_.reset();
  bus_.Stop();
}

void UmockdevRig::StartNotificationService() {
  bus_.Start();
  observer_.emplace(bus_.Address());
}

void UmockdevRig::FreezeNotificationService() { bus_.Freeze(); }

void UmockdevRig::ThawNotificationService() { bus_.Thaw(); }

void UmockdevRig::LoseNotificationService(LostService how) {
  switch (how) {
    case LostService::kNothingSaid:
      unsetenv(kBusVariable);
      break;
    case LostService::kNonsenseSaid:
      setenv(kBusVariable, "carrier-pigeon:coop=7;;,=", 1);
      break;
  }
}

void UmockdevRig::RunEventLoop(std::chrono::milliseconds limit) {
  pollfd loop = {-1, POLLIN, 0};
  if (ORV_GetNotificationDescriptor(&loop.fd) != ORV_SUCCESS || loop.fd < 0) {
    throw std::runtime_error("no descriptor to watch");
  }
  if (poll(&loop, 1, static_cast<int>(limit.count())) > 0) ORV_DispatchNotifications();
}

std::unique_ptr<HostProcess> UmockdevRig::StartHost() {
  return std::make_unique<HostProcess>(ACCEPTANCE_HOST);
}

}  // namespace trxtest
