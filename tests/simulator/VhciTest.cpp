// The kernel's virtual host controllers as sysfs shows them, in a folder laid out like it.

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Model/Desk.h"
#include "TemporaryFolder.h"
#include "usbip/DeviceNode.h"
#include "usbip/VhciController.h"

namespace trxsim {
namespace {

namespace fs = std::filesystem;

using trxtest::TemporaryFolder;

constexpr const char *kStatus =
    "hub port sta spd dev      sockfd local_busid\n"
    "hs  0000 006 003 00010001 000003 3-1\n"
    "hs  0001 004 000 00000000 000000 0-0\n"
    "hs  0002 005 000 00000000 000000 0-0\n"
    "hs  0003 004 000 00000000 000000 0-0\n"
    "ss  0004 004 000 00000000 000000 0-0\n"
    "ss  0005 004 000 00000000 000000 0-0\n";

constexpr const char *kSecondStatus =
    "hub port sta spd dev      sockfd local_busid\n"
    "hs  0008 007 000 00000000 000000 0-0\n"
    "hs  0009 004 000 00000000 000000 0-0\n"
    "ss  0012 004 000 00000000 000000 0-0\n";

std::string PortText(const VhciPort &port) {
  return std::to_string(port.number) + " = " + std::to_string(port.controller) + '-' +
         std::to_string(port.hubPort) + (port.isFree ? " free" : " taken");
}

std::vector<std::string> Texts(const std::vector<VhciPort> &ports) {
  std::vector<std::string> all;
  for (const VhciPort &port : ports) all.push_back(PortText(port));
  return all;
}

class Vhci : public testing::Test {
 protected:
  Vhci() {
    Write(first_ + "/attach", "");
    Write(first_ + "/detach", "");
    Write(first_ + "/status", kStatus);
    Write(first_ + "/status.1", kSecondStatus);
    Write(first_ + "/usb3/speed", "480\n");
    Write(first_ + "/usb4/speed", "5000\n");
    Write(second_ + "/usb6/speed", "5000\n");
    Write(second_ + "/usb5/speed", "480\n");
  }

  void Write(const std::string &path, const std::string &text) const {
    fs::create_directories(fs::path(root_ / path).parent_path());
    std::ofstream(root_ / path) << text;
  }

  std::string Read(const std::string &path) const {
    std::stringstream text;
    text << std::ifstream(root_ / path).rdbuf();
    return text.str();
  }

  void ShowDevice(const std::string &name, const std::string &bus,
                  const std::string &device) const {
    Write("sys/bus/usb/devices/" + name + "/busnum", bus + '\n');
    Write("sys/bus/usb/devices/" + name + "/devnum", device + '\n');
  }

  const std::string first_ = "sys/devices/platform/vhci_hcd.0";
  const std::string second_ = "sys/devices/platform/vhci_hcd.1";
  TemporaryFolder root_;
};

TEST(VhciStatus, ListsTheHighSpeedPorts) {
  EXPECT_EQ(
      Texts(ParseVhciStatus(kStatus, 0)),
      (std::vector<std::string>{"0 = 0-1 taken", "1 = 0-2 free", "2 = 0-3 taken", "3 = 0-4 free"}));
}

TEST(VhciStatus, PassesOverWhatItDoesNotKnow) {
  EXPECT_TRUE(ParseVhciStatus("", 0).empty());
  EXPECT_TRUE(ParseVhciStatus("hs\nhs x\nhs 1\nhs 1 x\nqs 1 4\n\n", 0).empty());
  EXPECT_EQ(Texts(ParseVhciStatus("hs 0010 004", 2)), std::vector<std::string>{"10 = 2-1 free"});
}

TEST_F(Vhci, PortsOfAllControllersComeInTheOrderOfTheirBuses) {
  EXPECT_EQ(Texts(VhciController(root_.Path()).Ports()),
            (std::vector<std::string>{"0 = 0-1 taken", "1 = 0-2 free", "2 = 0-3 taken",
                                      "3 = 0-4 free", "8 = 1-1 taken", "9 = 1-2 free"}));
}

TEST_F(Vhci, AttachTakesTheFirstFreePortAtHighSpeed) {
  const VhciController vhci(root_.Path());
  EXPECT_EQ(PortText(vhci.Attach(17, 0x00010002)), "1 = 0-2 free");
  EXPECT_EQ(Read(first_ + "/attach"), "1 17 65538 3");
}

TEST_F(Vhci, AttachGoesOnToTheNextController) {
  Write(first_ + "/status", "hs  0000 006 003 00010001 000003 3-1\n");
  EXPECT_EQ(PortText(VhciController(root_.Path()).Attach(17, 1)), "9 = 1-2 free");
}

TEST_F(Vhci, AttachSaysWhenNoPortIsFree) {
  Write(first_ + "/status", "hs  0000 006 003 00010001 000003 3-1\n");
  Write(first_ + "/status.1", "hs  0008 006 003 00010001 000003 3-1\n");
  const VhciController vhci(root_.Path());
  try {
    vhci.Attach(17, 1);
    FAIL() << "found a port";
  } catch (const DeskError &error) {
    EXPECT_STREQ(
        error.what(),
        "all 2 ports of the virtual USB host controllers are taken; `unplug` a unit first");
  }
  EXPECT_EQ(Read(first_ + "/attach"), "");
}

TEST_F(Vhci, DetachNamesThePort) {
  VhciController(root_.Path()).Detach({9, 1, 2, false});
  EXPECT_EQ(Read(first_ + "/detach"), "9");
}

TEST_F(Vhci, AddressIsThatOfTheDeviceAtTheHighSpeedHub) {
  const VhciController vhci(root_.Path());
  const VhciPort port{9, 1, 2, false};
  ShowDevice("6-2", "6", "2");
  EXPECT_FALSE(vhci.AddressAt(port));
  ShowDevice("5-2", "5", "14");
  EXPECT_FALSE(vhci.AddressAt(port)) << "there is no device node yet";
  Write("dev/bus/usb/005/014", "");
  EXPECT_EQ(vhci.AddressAt(port), (BusAddress{5, 14}));
}

TEST_F(Vhci, TracesOfADeviceAreThereUntilItsEntryInTheListIsGone) {
  const VhciController vhci(root_.Path());
  const VhciPort port{9, 1, 2, false};
  EXPECT_FALSE(vhci.HasTracesOf({5, 14}, port));
  ShowDevice("5-2", "5", "14");
  EXPECT_TRUE(vhci.HasTracesOf({5, 14}, port)) << "the node is gone, the rest is not";
  EXPECT_FALSE(vhci.HasTracesOf({5, 13}, port)) << "another device has taken the port";
  fs::remove(root_ / "sys/bus/usb/devices/5-2/devnum");
  EXPECT_TRUE(vhci.HasTracesOf({5, 14}, port)) << "a folder without its numbers";
  fs::remove_all(root_ / "sys/bus/usb/devices/5-2");
  EXPECT_FALSE(vhci.HasTracesOf({5, 14}, port));
}

TEST_F(Vhci, DeniedNodeIsGivenBackAsTheSystemMadeIt) {
  Write("dev/bus/usb/005/014", "");
  const fs::path path = root_ / "dev/bus/usb/005/014";
  const auto permissions = [&path] { return static_cast<int>(fs::status(path).permissions()); };
  fs::permissions(path, static_cast<fs::perms>(0664));
  {
    DeviceNode node(path);
    EXPECT_EQ(permissions(), 0664);
    node.Set(OpenFault::kDeny);
    EXPECT_EQ(permissions(), 0);
    node.Set(OpenFault::kNone);
    EXPECT_EQ(permissions(), 0664);
    node.Set(OpenFault::kDeny);
    node.Set(OpenFault::kDeny);
  }
  EXPECT_EQ(permissions(), 0664);
}

TEST_F(Vhci, NodeThatIsGoneNeedsNothingBack) {
  Write("dev/bus/usb/005/014", "");
  DeviceNode node(root_ / "dev/bus/usb/005/014");
  node.Set(OpenFault::kDeny);
  fs::remove(root_ / "dev/bus/usb/005/014");
  EXPECT_NO_THROW(node.Set(OpenFault::kNone));
}

TEST_F(Vhci, WithoutControllersSaysWhatToDo) {
  if (geteuid() == 0) setenv("PATH", root_.Path().c_str(), 1);  // no modprobe is to be found
  const TemporaryFolder empty;
  try {
    const VhciController vhci(empty.Path());
    FAIL() << "found a controller";
  } catch (const DeskError &error) {
    const std::string text = error.what();
    EXPECT_NE(text.find(geteuid() == 0 ? "`modprobe vhci-hcd`" : "sudo"), std::string::npos)
        << text;
    EXPECT_NE(text.find("Without --usbip"), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace trxsim
