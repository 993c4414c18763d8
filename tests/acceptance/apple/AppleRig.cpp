#include "AppleRig.h"

#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include <IOKitDouble.h>
#include <gtest/gtest.h>

#include "../simulated/CaseRunner.h"
#include "CentreGate.h"
#include "DoubleUse.h"
#include "PrivateUser.h"
#include "RegistryProtocol.h"
#include "RunLoopTurn.h"

namespace trxtest {
namespace {

constexpr std::chrono::seconds kLongestFreeze{5};

std::string SocketOfRegistry() {
  const char *const path = std::getenv(kRegistryVariable);
  if (path == nullptr) throw std::runtime_error("not under trx-mixer-registry");
  return path;
}

std::string Command(const char *what, const Announcement &announcement) {
  std::string line = std::string(what) + '\t' + announcement.name;
  for (const auto &[key, value] : announcement.entries) {
    line += '\t' + key + '=' + std::to_string(value);
  }
  return line;
}

Announcement Parse(const std::string &line) {
  std::istringstream words(line);
  Announcement announcement;
  std::getline(words, announcement.name, '\t');
  for (std::string entry; std::getline(words, entry, '\t');) {
    const std::size_t sign = entry.find('=');
    announcement.entries.emplace_back(entry.substr(0, sign), std::stoi(entry.substr(sign + 1)));
  }
  return announcement;
}

void Expect(const std::string &answer, const std::string &expected) {
  if (answer != expected) throw std::runtime_error("the observer says: " + answer);
}

}  // namespace

std::unique_ptr<Rig> MakeRig() { return std::make_unique<AppleRig>(); }

AppleRig::AppleRig()
    : SimulatedUnits(ControlSocketIn(PrivateFolder())),
      devices_(SocketOfRegistry()),
      observer_(ANNOUNCEMENT_OBSERVER) {
  Expect(observer_.Answer(), "ready");
  IOKitDouble::Show(&devices_);
}

AppleRig::~AppleRig() {
  IOKitDouble::Show(nullptr);
  EXPECT_EQ(TakeWrongUses(), std::vector<std::string>());
}

// See RemoteDevices.cpp.
UnitPlace AppleRig::PlaceOf(int unit) {
  return {.location = 0x14000000 + static_cast<std::uint32_t>(DeviceNumberOf(unit))};
}

std::string AppleRig::LibraryFolder() { return LibraryFolderOfUser(); }

std::string AppleRig::SettingsFile(const std::string &modelDisplayName) {
  return LibraryFolder() + "/Preferences/com.orvikaudio." + modelDisplayName + "autosetup.plist";
}

std::string AppleRig::SystemRoot() { return SystemRootOfUser(); }

std::vector<Announcement> AppleRig::TakeAnnouncements(std::size_t count) {
  PassThroughDaemon();
  Expect(observer_.Ask("mark"), "done");
  std::vector<Announcement> announcements;
  for (const std::string &line : observer_.TakeCalls(count)) announcements.push_back(Parse(line));
  return announcements;
}

void AppleRig::Announce(const Announcement &announcement) {
  Expect(observer_.Ask(Command("post", announcement)), "done");
}

int AppleRig::AnnounceMisshapen(const Announcement &announcement) {
  return std::stoi(observer_.Ask(Command("misshape", announcement)));
}

void AppleRig::StopNotificationService() { throw std::logic_error("cannot be stopped here"); }

void AppleRig::StartNotificationService() { throw std::logic_error("cannot be started here"); }

void AppleRig::LoseNotificationService(LostService) {
  throw std::logic_error("cannot be lost here");
}

void AppleRig::FreezeNotificationService() { ShutCentreGate(kLongestFreeze); }

void AppleRig::ThawNotificationService() { OpenCentreGate(); }

void AppleRig::RunEventLoop(std::chrono::milliseconds limit) { TakeRunLoopTurn(limit); }

std::unique_ptr<HostProcess> AppleRig::StartHost() {
  return std::make_unique<HostProcess>(ACCEPTANCE_HOST);
}

}  // namespace trxtest
