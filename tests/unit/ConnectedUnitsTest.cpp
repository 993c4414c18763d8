// The visit of all units, by the way that every family takes.
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "ConnectedUnits.h"
#include "MockBus.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What the latest request was sent to. A request is a plain function and can keep nothing itself.
std::vector<std::string> sent;

PlatformStatus RecordingRequest(DeviceHandle handle, std::uint16_t value) {
  sent.push_back(NodeBehind(handle) + " value " + std::to_string(value));
  return kIOReturnError;
}

class VisitOfAllUnits : public testing::Test {
 protected:
  void SetUp() override {
    sent.clear();
    bus_.PlugMixer("1-1", 1, 2);
    bus_.PlugMixer("1-2", 1, 3);
    bus_.PlugMixer("1-3", 1, 4);
  }

  // The units that a visit of the first `count` reaches.
  static std::vector<std::string> Visited(std::int32_t count) {
    std::vector<std::string> visited;
    VisitUnits(count, [&](DeviceHandle unit) {
      visited.push_back(NodeBehind(unit));
      return Visit::kNext;
    });
    return visited;
  }

  MockBus bus_;
};

TEST_F(VisitOfAllUnits, ReachesEachOnceInOrder) {
  EXPECT_THAT(Visited(3), ElementsAre("node 1/2", "node 1/3", "node 1/4"));
}

TEST_F(VisitOfAllUnits, ReachesNoMoreThanWereCounted) {
  EXPECT_THAT(Visited(2), ElementsAre("node 1/2", "node 1/3"));
  EXPECT_THAT(Visited(0), IsEmpty());
  EXPECT_THAT(Visited(-1), IsEmpty());
}

TEST_F(VisitOfAllUnits, SkipsAUnitThatDoesNotOpen) {
  std::filesystem::remove(bus_.Node(1, 3));
  EXPECT_THAT(Visited(3), ElementsAre("node 1/2", "node 1/4"));
  std::filesystem::create_directory(bus_.Node(1, 3));
  EXPECT_THAT(Visited(3), ElementsAre("node 1/2", "node 1/4"));
}

TEST_F(VisitOfAllUnits, SkipsAUnitUnpluggedSinceTheCount) {
  bus_.Unlist("1-3");
  EXPECT_THAT(Visited(3), ElementsAre("node 1/2", "node 1/3"));
}

TEST_F(VisitOfAllUnits, EndsWhenTheVisitorHasSeenEnough) {
  std::vector<std::string> visited;
  VisitUnits(3, [&](DeviceHandle unit) {
    visited.push_back(NodeBehind(unit));
    return visited.size() == 2 ? Visit::kStop : Visit::kNext;
  });
  EXPECT_THAT(visited, ElementsAre("node 1/2", "node 1/3"));
}

TEST_F(VisitOfAllUnits, HasOneUnitOpenAtATimeAndClosesItAlways) {
  int visits = 0;
  VisitUnits(3, [&](DeviceHandle) {
    EXPECT_EQ(bus_.OpenFiles(), 1);
    return ++visits == 2 ? Visit::kStop : Visit::kNext;
  });
  EXPECT_EQ(visits, 2);
  EXPECT_EQ(bus_.OpenFiles(), 0);
}

TEST_F(VisitOfAllUnits, SendsOneValueToEachWhateverTheyAnswer) {
  EXPECT_EQ(ApplyToEveryUnit(11, RecordingRequest, 0x020A), 3);
  EXPECT_THAT(sent, ElementsAre("node 1/2 value 522", "node 1/3 value 522", "node 1/4 value 522"));
}

TEST_F(VisitOfAllUnits, CountsUnitsThatDoNotOpenToo) {
  std::filesystem::remove(bus_.Node(1, 2));
  EXPECT_EQ(ApplyToEveryUnit(11, RecordingRequest, 1), 3);
  EXPECT_THAT(sent, ElementsAre("node 1/3 value 1", "node 1/4 value 1"));
}

TEST_F(VisitOfAllUnits, SendsNothingWhenThereIsNone) {
  for (const char *name : {"1-1", "1-2", "1-3"}) bus_.Unlist(name);
  EXPECT_EQ(ApplyToEveryUnit(11, RecordingRequest, 1), 0);
  EXPECT_THAT(sent, IsEmpty());
}

}  // namespace
}  // namespace orv
