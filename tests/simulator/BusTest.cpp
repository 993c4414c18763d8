// What the bus looks like to a host, and how units come and go.

#include <gtest/gtest.h>

#include "MakerIds.h"
#include "SimulatorRun.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char *kFirst = "/dev/bus/usb/001/002";
constexpr const char *kReadFirmware = " c0 0 0 8001 2 1000";

TEST(Bus, ListsTheRootHubAndTheMixers) {
  SimulatorRun run(2);
  EXPECT_EQ(run.Client().Ask("list"), "1-1=001/002 1-2=001/003 usb1=001/001");
}

TEST(Bus, WithoutMixersHasOnlyTheRootHub) {
  SimulatorRun run(0);
  EXPECT_EQ(run.Client().Ask("list"), "usb1=001/001");
  EXPECT_TRUE(run.Control("units").empty());
}

TEST(Bus, UeventReadsAsTheKernelWritesIt) {
  SimulatorRun run(1);
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-1/uevent"),
            "MAJOR=189/MINOR=1/DEVNAME=bus/usb/001/002/DEVTYPE=usb_device/DRIVER=usb/"
            "PRODUCT=" +
                VendorIdInProduct() + "/1f/100/TYPE=0/0/0/BUSNUM=001/DEVNUM=002/");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/usb1/uevent"),
            "MAJOR=189/MINOR=0/DEVNAME=bus/usb/001/001/DEVTYPE=usb_device/DRIVER=usb/"
            "PRODUCT=1d6b/2/601/TYPE=9/0/1/BUSNUM=001/DEVNUM=001/");
}

TEST(Bus, InterfacesAreListedBesideTheirDevice) {
  SimulatorRun run(1);
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-1:1.0/uevent"),
            "DEVTYPE=usb_interface/DRIVER=snd-usb-audio/PRODUCT=" + VendorIdInProduct() +
                "/1f/100/TYPE=0/0/0/"
                "INTERFACE=1/1/0/MODALIAS=usb:v" +
                VendorIdInModalias() + "p001Fd0100dc00dsc00dp00ic01isc01ip00in00/");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-1:1.2/bInterfaceSubClass"), "03/");
}

TEST(Bus, AttributesReadAsTheKernelWritesThem) {
  SimulatorRun run(1);
  const std::string folder = "cat /sys/bus/usb/devices/1-1/";
  EXPECT_EQ(run.Client().Ask(folder + "idVendor"), VendorId() + "/");
  EXPECT_EQ(run.Client().Ask(folder + "idProduct"), "001f/");
  EXPECT_EQ(run.Client().Ask(folder + "busnum"), "1/");
  EXPECT_EQ(run.Client().Ask(folder + "devnum"), "2/");
  EXPECT_EQ(run.Client().Ask(folder + "manufacturer"), "Orvik Audio/");
  EXPECT_EQ(run.Client().Ask(folder + "product"), "TRX-SELVA/");
  EXPECT_EQ(run.Client().Ask(folder + "serial"), "SIM00001/");
  EXPECT_EQ(run.Client().Ask(folder + "version"), " 2.00/");
}

TEST(Bus, ListsMixersOfTheModelsAskedFor) {
  SimulatorRun run("TRX-SELVA,TRX-VOLT," + VendorId() + ":0020");
  EXPECT_EQ(run.Client().Ask("list"), "1-1=001/002 1-2=001/003 1-3=001/004 usb1=001/001");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-1/product"), "TRX-SELVA/");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-2/product"), "TRX-VOLT/");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-2/idProduct"), "001f/");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-3/manufacturer"), "Orvik Audio/");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-3/idProduct"), "0020/");
  const std::string volt = run.Open("/dev/bus/usb/001/003");
  EXPECT_EQ(run.Client().Ask("control " + volt + " c0 0 0 8002 5 1000"), "3 00 00 00 ee ee");
}

TEST(Bus, NodeIsACharacterDevice) {
  SimulatorRun run(1);
  EXPECT_EQ(run.Client().Ask(std::string("stat ") + kFirst), "character 189:1");
}

TEST(Bus, UnpluggedUnitIsGoneFromEverywhere) {
  SimulatorRun run(2);
  run.Control("unplug 1");
  EXPECT_EQ(run.Client().Ask("list"), "1-2=001/003 usb1=001/001");
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-1:1.0/uevent"), "ENOENT");
  EXPECT_EQ(run.Client().Ask(std::string("open ") + kFirst), "ENOENT");
}

TEST(Bus, HandleOfAnUnpluggedUnitIsDeadForGood) {
  SimulatorRun run(1);
  const std::string handle = run.Open(kFirst);
  run.Control("unplug 1");
  EXPECT_EQ(run.Client().Ask("control " + handle + kReadFirmware), "ENODEV ee ee");
  EXPECT_EQ(run.Client().Ask("other-ioctl " + handle), "ENODEV");
  run.Control("replug 1");
  EXPECT_EQ(run.Client().Ask("control " + handle + kReadFirmware), "ENODEV ee ee");
  EXPECT_TRUE(run.Log().empty());
}

TEST(Bus, ReplugGivesANewDeviceNumberAtTheSamePort) {
  SimulatorRun run(2);
  run.Control("unplug 1");
  run.Control("replug 1");
  EXPECT_EQ(run.Client().Ask("list"), "1-1=001/004 1-2=001/003 usb1=001/001");
  const std::string handle = run.Open("/dev/bus/usb/001/004");
  EXPECT_EQ(run.Client().Ask("control " + handle + kReadFirmware), "2 00 01");
}

TEST(Bus, DeviceNumbersStartAgainAfter127) {
  SimulatorRun run(2);
  for (int number = 4; number <= 127; ++number) {
    run.Control("unplug 1");
    run.Control("replug 1");
  }
  EXPECT_EQ(run.Client().Ask("list"), "1-1=001/127 1-2=001/003 usb1=001/001");
  run.Control("unplug 1");
  run.Control("replug 1");
  EXPECT_EQ(run.Client().Ask("list"), "1-1=001/002 1-2=001/003 usb1=001/001");
  const std::string handle = run.Open(kFirst);
  EXPECT_EQ(run.Client().Ask("control " + handle + kReadFirmware), "2 00 01");
}

TEST(Bus, FullBusRefusesOneMoreUnit) {
  SimulatorRun run(100);
  for (int number = 101; number <= 126; ++number) run.Control("plug");
  EXPECT_THROW(run.Control("plug"), trxsim::CommandRefused);
  EXPECT_EQ(run.Control("units").size(), 126u);
  run.Control("unplug 60");
  EXPECT_EQ(run.Control("plug"), Lines{"127"});
}

TEST(Bus, OtherDeviceIsListedButIsNoMixer) {
  SimulatorRun run(1);
  EXPECT_EQ(run.Control("plug 1234:0abc"), Lines{"2"});
  EXPECT_EQ(run.Client().Ask("cat /sys/bus/usb/devices/1-2/uevent"),
            "MAJOR=189/MINOR=2/DEVNAME=bus/usb/001/003/DEVTYPE=usb_device/DRIVER=usb/"
            "PRODUCT=1234/abc/100/TYPE=0/0/0/BUSNUM=001/DEVNUM=003/");
  const std::string handle = run.Open("/dev/bus/usb/001/003");
  EXPECT_EQ(run.Client().Ask("control " + handle + kReadFirmware), "EPIPE ee ee");
  EXPECT_EQ(run.Log(), Lines{"unit 2  IN   c0 00  wValue 0000  wIndex 8001  wLength 2  "
                             "-> stalled                 firmware version"});
}

}  // namespace
