// Opening units by position: which unit is opened, and the status when it does not open.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "BusWalk.h"
#include "MockBus.h"
#include "USBDevice.h"

namespace orv {
namespace {

using testing::ElementsAre;

constexpr auto kGeneralError = static_cast<PlatformStatus>(0xE00002BC);
constexpr auto kNoDevice = static_cast<PlatformStatus>(0xE00002C0);

// The nodes of all units, opened by position in turn.
std::vector<std::string> NodesInOrder() {
  std::vector<std::string> nodes;
  DeviceHandle handle = nullptr;
  const BusLook look = LookAtBus();
  for (std::uint32_t n = 0; open_pipes(&handle, n, look) == 0; ++n) {
    nodes.push_back(NodeBehind(handle));
    closeUSB(&handle);
  }
  EXPECT_EQ(nodes.size(), look.size());
  return nodes;
}

struct Plug {
  const char *name;
  unsigned bus;
  unsigned device;
};

TEST(OpenUnit, OpeningGoesByBusThenDeviceNumberWhateverTheOrderOfTheFolder) {
  std::vector<Plug> plugs = {{"10-1", 10, 2}, {"2-1", 2, 10}, {"2-3", 2, 9}, {"1-9", 1, 100}};
  const auto byName = [](const Plug &a, const Plug &b) { return std::string(a.name) < b.name; };
  std::sort(plugs.begin(), plugs.end(), byName);
  do {
    MockBus bus;
    for (const Plug &plug : plugs) bus.PlugMixer(plug.name, plug.bus, plug.device);
    EXPECT_THAT(NodesInOrder(), ElementsAre("node 1/100", "node 2/9", "node 2/10", "node 10/2"));
  } while (std::next_permutation(plugs.begin(), plugs.end(), byName));
}

TEST(OpenUnit, OpeningOpensTheNodeForReadingAndWritingAndNotForChildren) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  DeviceHandle handle = nullptr;
  ASSERT_EQ(open_pipes(&handle, 0, LookAtBus()), 0);
  ASSERT_NE(handle, nullptr);
  EXPECT_EQ(NodeBehind(handle), "node 1/5");
  EXPECT_EQ(fcntl(handle->descriptor, F_GETFL) & O_ACCMODE, O_RDWR);
  EXPECT_EQ(fcntl(handle->descriptor, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
  closeUSB(&handle);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(bus.OpenFiles(), 0);
}

TEST(OpenUnit, OpeningAnswersTheGeneralErrorBehindTheLastUnit) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  bus.PlugMixer("1-3", 1, 6);
  for (const std::uint32_t n : {2U, 3U, 0xFFFFFFFFU}) {
    DeviceHandle handle = nullptr;
    EXPECT_EQ(open_pipes(&handle, n, LookAtBus()), kGeneralError) << n;
    EXPECT_EQ(handle, nullptr);
  }
}

TEST(OpenUnit, OpeningAnswersTheGeneralErrorWithoutAnyUnit) {
  MockBus bus;
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), kGeneralError);
  EXPECT_EQ(handle, nullptr);
}

TEST(OpenUnit, OpeningLeavesAHandleAloneThatIsNotNull) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  USBDeviceInterface other = {-1, {}};
  DeviceHandle handle = &other;
  EXPECT_EQ(openUSB(&handle, 0, LookAtBus()), kGeneralError);
  EXPECT_EQ(handle, &other);
}

TEST(OpenUnit, ThroughPipesClearsAHandleThatIsNotNull) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  USBDeviceInterface other = {-1, {}};
  DeviceHandle handle = &other;
  EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), 0);
  ASSERT_NE(handle, nullptr);
  ASSERT_NE(handle, &other);
  EXPECT_EQ(NodeBehind(handle), "node 1/5");
  closeUSB(&handle);
}

TEST(OpenUnit, OpeningSaysThatADeviceIsGoneWhoseNodeIsMissing) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  std::filesystem::remove(bus.Node(1, 5));
  DeviceHandle handle = nullptr;
  EXPECT_EQ(LookAtBus().size(), 1U);
  EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), kNoDevice);
  EXPECT_EQ(handle, nullptr);
}

TEST(OpenUnit, OpeningAnswersTheGeneralErrorForAFolderInThePlaceOfTheNode) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  std::filesystem::remove(bus.Node(1, 5));
  std::filesystem::create_directory(bus.Node(1, 5));
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), kGeneralError);
  EXPECT_EQ(handle, nullptr);
}

TEST(OpenUnit, OpeningSaysThatADeviceIsGoneForASocketInThePlaceOfTheNode) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  std::filesystem::remove(bus.Node(1, 5));
  ASSERT_EQ(mknod(bus.Node(1, 5).c_str(), S_IFSOCK | 0666, 0), 0);
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), kNoDevice);
  EXPECT_EQ(handle, nullptr);
}

// Device numbers are reused: the node is now another device's.
TEST(OpenUnit, OpeningSaysThatAUnitIsGoneWhoseNumberAnotherDeviceHas) {
  struct Ids {
    unsigned vendor;
    unsigned product;
  };
  constexpr unsigned kMaker = MAKER_USB_VENDOR_ID;
  for (const Ids &ids : {Ids{kMaker, 0x20}, Ids{kMaker, 0x11F}, Ids{kMaker ^ 1, 0x1F},
                         Ids{kMaker ^ 0x100, 0x1F}, Ids{0x1D6B, 2}, Ids{0, 0}}) {
    MockBus bus;
    bus.PlugMixer("1-2", 1, 5);
    bus.MakeNode(1, 5, ids.vendor, ids.product);
    DeviceHandle handle = nullptr;
    EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), kNoDevice);
    EXPECT_EQ(handle, nullptr);
    EXPECT_EQ(bus.OpenFiles(), 0);
  }
}

TEST(OpenUnit, OpeningOpensNoNodeWithLessThanADescriptor) {
  for (const std::uintmax_t size : {0U, 1U, 10U, 17U}) {
    MockBus bus;
    bus.PlugMixer("1-2", 1, 5);
    std::filesystem::resize_file(bus.Node(1, 5), size);
    DeviceHandle handle = nullptr;
    EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), kNoDevice) << size;
    EXPECT_EQ(bus.OpenFiles(), 0);
  }
}

TEST(OpenUnit, OpeningOpensANodeWithADescriptorAndNoMore) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  std::filesystem::resize_file(bus.Node(1, 5), 18);
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), 0);
  closeUSB(&handle);
}

// Reading from a pipe would wait for a writer.
TEST(OpenUnit, OpeningDoesNotWaitForWhatIsNoDevice) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  std::filesystem::remove(bus.Node(1, 5));
  ASSERT_EQ(mkfifo(bus.Node(1, 5).c_str(), 0666), 0);
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), kGeneralError);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(bus.OpenFiles(), 0);
}

TEST(OpenUnit, OpeningGoesByTheLookWhateverHappenedSince) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  bus.PlugMixer("1-3", 1, 6);
  const BusLook look = LookAtBus();
  bus.Unlist("1-2");
  std::filesystem::remove(bus.Node(1, 5));
  bus.PlugMixer("1-1", 1, 2);
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, look), kNoDevice);
  ASSERT_EQ(open_pipes(&handle, 1, look), 0);
  EXPECT_EQ(NodeBehind(handle), "node 1/6");
  closeUSB(&handle);
  EXPECT_EQ(open_pipes(&handle, 2, look), kGeneralError);
}

TEST(OpenUnit, OpeningLeavesNoFileOpen) {
  MockBus bus;
  bus.PlugMixer("1-2", 1, 5);
  bus.ListDangling("1-3");
  bus.ListWithoutSummary("1-4");
  bus.PlugMixer("1-5", 1, 6);
  std::filesystem::remove(bus.Node(1, 6));
  for (int i = 0; i < 10; ++i) {
    DeviceHandle handle = nullptr;
    EXPECT_EQ(open_pipes(&handle, 0, LookAtBus()), 0);
    EXPECT_EQ(bus.OpenFiles(), 1);
    closeUSB(&handle);
    EXPECT_EQ(open_pipes(&handle, 1, LookAtBus()), kNoDevice);
    EXPECT_EQ(bus.OpenFiles(), 0);
  }
}

}  // namespace
}  // namespace orv
