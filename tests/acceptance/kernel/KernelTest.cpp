// What only a real USB stack shows: its errors when units go away, and its permissions.
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "../Acceptance.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

constexpr const char *kDevices = "/sys/bus/usb/devices";

// Closes the descriptor at the end.
class Node {
 public:
  explicit Node(const std::string &path) : descriptor_(open(path.c_str(), O_RDWR | O_CLOEXEC)) {}
  ~Node() { close(descriptor_); }
  Node(const Node &) = delete;
  Node &operator=(const Node &) = delete;

  // Reads the four bytes of the certify level. Returns the number of bytes, or minus the error.
  int Read(std::array<std::uint8_t, 4> &buffer, unsigned milliseconds) const {
    usbdevfs_ctrltransfer transfer = {0xC0, 0, 0, 0x8007, 4, milliseconds, buffer.data()};
    const int count = ioctl(descriptor_, USBDEVFS_CONTROL, &transfer);
    return count < 0 ? -errno : count;
  }

  bool ClaimInterface(unsigned number) const {
    return ioctl(descriptor_, USBDEVFS_CLAIMINTERFACE, &number) == 0;
  }

 private:
  int descriptor_;
};

std::string WordOf(const fs::path &file) {
  std::string word;
  std::ifstream(file) >> word;
  return word;
}

// The folders of all mixers in sysfs.
std::vector<fs::path> Mixers() {
  std::vector<fs::path> mixers;
  for (const fs::directory_entry &entry : fs::directory_iterator(kDevices)) {
    if (WordOf(entry.path() / "idVendor") == "4f52" &&
        WordOf(entry.path() / "idProduct") == "001f") {
      mixers.push_back(entry.path());
    }
  }
  return mixers;
}

std::string NodeOf(const fs::path &device) {
  const auto threeDigits = [](const std::string &number) {
    return std::string(3 - number.size(), '0') + number;
  };
  return "/dev/bus/usb/" + threeDigits(WordOf(device / "busnum")) + '/' +
         threeDigits(WordOf(device / "devnum"));
}

// The name of the driver that has an interface of a device; empty when none has.
std::string DriverOf(const fs::path &device, unsigned interface) {
  const std::string name = device.filename().string() + ":1." + std::to_string(interface);
  std::error_code none;
  return fs::read_symlink(device / name / "driver", none).filename();
}

// The kernel's own module, from the files of the guest. It stays loaded for later cases.
void LoadAudioDriver() {
  std::ifstream names("/guest/audio-modules");
  int count = 0;
  for (std::string name; names >> name; ++count) {
    const int file = open(("/modules/" + name + ".ko").c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_TRUE(syscall(SYS_finit_module, file, "", 0) == 0 || errno == EEXIST) << name;
    close(file);
  }
  EXPECT_GT(count, 0);
}

class Kernel : public Acceptance {
 protected:
  // Level 1 in the wire log of a unit.
  static std::string Taken(int unit, const std::string &outcome = "0 bytes") {
    return Sent(unit, "0200", "8003", outcome);
  }

  static bool IsUnit(const std::string &line, int unit) {
    return line.starts_with("unit " + std::to_string(unit) + ' ');
  }
};

TEST_F(Kernel, APluggedMixerIsADeviceOfTheKernelWithANode) {
  EXPECT_EQ(Mixers().size(), 0U);
  rig_->PlugMixer();
  const auto mixers = Mixers();
  ASSERT_EQ(mixers.size(), 1U);
  EXPECT_EQ(fs::canonical(mixers[0]).string().find("/sys/devices/platform/vhci_hcd.0/usb"), 0U);
  struct stat status = {};
  ASSERT_EQ(stat(NodeOf(mixers[0]).c_str(), &status), 0);
  EXPECT_TRUE(S_ISCHR(status.st_mode));
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kConnected);
  rig_->Unplug(1);
  EXPECT_EQ(Mixers().size(), 0U);
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kNotConnected);
}

TEST_F(Kernel, RootHubsAndStrangersAreNoUnits) {
  rig_->PlugStranger(Stranger::kOtherProductOfTheMaker);
  int hubs = 0;
  int strangers = 0;
  for (const fs::directory_entry &entry : fs::directory_iterator(kDevices)) {
    const std::string vendor = WordOf(entry.path() / "idVendor");
    hubs += vendor == "1d6b" ? 1 : 0;
    strangers += vendor == "4f52" ? 1 : 0;
  }
  EXPECT_EQ(hubs, 16);
  EXPECT_EQ(strangers, 1);
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kNotConnected);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(), Lines());
}

TEST_F(Kernel, AReplugGivesANewDeviceNumberUnderWhichTheUnitIsFound) {
  rig_->PlugMixer();
  const std::string before = NodeOf(Mixers().at(0));
  rig_->Unplug(1);
  EXPECT_FALSE(fs::exists(before));
  rig_->Replug(1);
  const std::string after = NodeOf(Mixers().at(0));
  EXPECT_NE(after, before);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(), Lines{Taken(1)});
}

TEST_F(Kernel, ARequestOfAUnitThatIsPulledOutEndsWithShutdown) {
  rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kStaysSilent);
  const Node node(NodeOf(Mixers().at(0)));
  std::array<std::uint8_t, 4> buffer = {};
  int result = 0;
  std::thread request([&] { result = node.Read(buffer, 60'000); });
  EXPECT_TRUE(WaitUntil([&] { return rig_->WireLog().size() == 1; }));
  rig_->Unplug(1);
  request.join();
  EXPECT_EQ(result, -ESHUTDOWN);
  EXPECT_EQ(node.Read(buffer, 60'000), -ENODEV);
}

// The kernel may or may not have removed the first when the library looks for the next, so the next
// one served may be the second or the third.
TEST_F(Kernel, WhenAUnitIsPulledOutInTheMiddleOfASetTheNextIsServed) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kStaysSilent);
  const auto host = rig_->StartHost();
  host->Begin("call ORV_SetBoostLevelIndex 11 1");
  ASSERT_TRUE(WaitUntil([&] { return rig_->WireLog().size() == 1; }));
  rig_->Unplug(1);
  EXPECT_EQ(host->Answer(), "100");
  const Lines reached = rig_->WireLog();
  ASSERT_GE(reached.size(), 2U);
  EXPECT_EQ(reached[0], Taken(1, "no reply"));
  EXPECT_TRUE(reached[1] == Taken(2) || reached[1] == Taken(3)) << reached[1];
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>1</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
  rig_->ClearWireLog();
  EXPECT_EQ(host->Ask("call ORV_SetCurrentBoostLevelIndex 11"), "100");
  EXPECT_EQ(rig_->WireLog(), (Lines{Taken(2), Taken(3)}));
}

TEST_F(Kernel, AStallIsABrokenPipe) {
  rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kStalls);
  std::array<std::uint8_t, 4> buffer = {};
  EXPECT_EQ(Node(NodeOf(Mixers().at(0))).Read(buffer, 60'000), -EPIPE);
  std::uint32_t level = 77;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &level), kSuccess);
  EXPECT_EQ(level, 0U);
}

TEST_F(Kernel, ASilentUnitIsGivenUpAfterTheTimeOfTheRequestAndAnswersTheNext) {
  rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kStaysSilent);
  const Node node(NodeOf(Mixers().at(0)));
  std::array<std::uint8_t, 4> buffer = {};
  EXPECT_EQ(node.Read(buffer, 300), -ETIMEDOUT);
  rig_->ClearFaults(1);
  EXPECT_EQ(node.Read(buffer, 60'000), 4);
  EXPECT_EQ(buffer, (std::array<std::uint8_t, 4>{0, 0, 0, 1}));
}

TEST_F(Kernel, AShortReplyLeavesTheRestOfTheBuffer) {
  rig_->PlugMixer();
  rig_->SetCertifyLevel(1, 0x01020304);
  rig_->SetShortReplies(1, 3);
  std::array<std::uint8_t, 4> buffer = {0xEE, 0xEE, 0xEE, 0xEE};
  EXPECT_EQ(Node(NodeOf(Mixers().at(0))).Read(buffer, 60'000), 3);
  EXPECT_EQ(buffer, (std::array<std::uint8_t, 4>{0x01, 0x02, 0x03, 0xEE}));
}

TEST_F(Kernel, AnOrdinaryUserReachesTheUnitsWhoseNodesLetHimIn) {
  rig_->PlugMixer();
  rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kNotPermitted);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("give-up root"), "done");
  EXPECT_EQ(host->Ask("call ORV_IsUSBConnection 11"), "103");
  EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 1"), "100");
  EXPECT_EQ(rig_->WireLog(), Lines{Taken(2)});
  rig_->ClearFaults(1);
  EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 1"), "100");
  EXPECT_EQ(rig_->WireLog(), (Lines{Taken(2), Taken(1), Taken(2)}));
}

TEST_F(Kernel, AnInterfaceThatAProgramHasClaimedStaysItsOwn) {
  rig_->PlugMixer();
  const fs::path device = Mixers().at(0);
  const Node driver(NodeOf(device));
  ASSERT_TRUE(driver.ClaimInterface(0));
  ASSERT_EQ(DriverOf(device, 0), "usbfs");
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  std::uint32_t level = 77;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &level), kSuccess);
  EXPECT_EQ(level, 1U);
  EXPECT_EQ(DriverOf(device, 0), "usbfs");
  EXPECT_EQ(rig_->WireLog(), (Lines{Taken(1), Asked(1, "8007", 4, "4 bytes 00 00 00 01")}));
}

TEST_F(Kernel, TheAudioDriverStaysBound) {
  LoadAudioDriver();
  rig_->PlugMixer();
  const fs::path device = Mixers().at(0);
  const auto isBound = [&device](unsigned interface) {
    return DriverOf(device, interface) == "snd-usb-audio";
  };
  for (const unsigned interface : {0U, 1U, 2U}) {
    ASSERT_TRUE(WaitUntil([&] { return isBound(interface); })) << interface;
  }
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  std::uint32_t level = 77;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &level), kSuccess);
  EXPECT_EQ(level, 1U);
  for (const unsigned interface : {0U, 1U, 2U}) EXPECT_TRUE(isBound(interface)) << interface;
}

}  // namespace
}  // namespace trxtest
