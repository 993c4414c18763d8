#include "SimulatorRig.h"

#include <cstdlib>
#include <stdexcept>

#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "../simulated/CaseRunner.h"

namespace trxtest {
namespace {

constexpr const char *kBusVariable = "DBUS_SESSION_BUS_ADDRESS";

}  // namespace

SimulatorRig::SimulatorRig(const std::string &folder)
    : SimulatedUnits(ControlSocketIn(folder)), folder_(folder), bus_(folder) {
  setenv(kBusVariable, bus_.Address().c_str(), 1);
  StartNotificationService();
}

UnitPlace SimulatorRig::PlaceOf(int unit) {
  return {.bus = static_cast<std::uint32_t>(BusNumberOf(unit)),
          .address = static_cast<std::uint32_t>(DeviceNumberOf(unit))};
}

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
