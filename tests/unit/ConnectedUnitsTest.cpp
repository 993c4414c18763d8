// Visiting all units, as every setting does.
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

// The unit of the latest request. A request is a plain function and cannot store it itself.
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

  // The units that a visit reaches.
  static std::vector<std::string> Visited(const ConnectedUnits &units) {
    std::vector<std::string> visited;
    VisitUnits(units, [&](DeviceHandle unit) {
      visited.push_back(NodeBehind(unit));
      return Visit::kNext;
    });
    return visited;
  }

  static std::vector<std::string> Visited() { return Visited(ConnectedUnits(11)); }

  MockBus bus_;
};

TEST_F(VisitOfAllUnits, TheVisitReachesEachOnceInOrder) {
  EXPECT_THAT(Visited(), ElementsAre("node 1/2", "node 1/3", "node 1/4"));
}

TEST_F(VisitOfAllUnits, TheVisitSkipsAUnitThatDoesNotOpen) {
  std::filesystem::remove(bus_.Node(1, 3));
  EXPECT_THAT(Visited(), ElementsAre("node 1/2", "node 1/4"));
  std::filesystem::create_directory(bus_.Node(1, 3));
  EXPECT_THAT(Visited(), ElementsAre("node 1/2", "node 1/4"));
}

TEST_F(VisitOfAllUnits, TheVisitSkipsAUnitUnpluggedSinceTheLookAndNoOther) {
  const ConnectedUnits units(11);
  bus_.Unlist("1-1");
  std::filesystem::remove(bus_.Node(1, 2));
  EXPECT_THAT(Visited(units), ElementsAre("node 1/3", "node 1/4"));
}

TEST_F(VisitOfAllUnits, TheVisitReachesNoneThatWasPluggedInSinceTheLook) {
  const ConnectedUnits units(11);
  bus_.PlugMixer("1-4", 1, 1);
  EXPECT_THAT(Visited(units), ElementsAre("node 1/2", "node 1/3", "node 1/4"));
  EXPECT_EQ(units.Count(), 3);
}

TEST_F(VisitOfAllUnits, TheVisitLooksAtTheBusOnce) {
  const ConnectedUnits units(11);
  bus_.RemoveList();
  EXPECT_THAT(Visited(units), ElementsAre("node 1/2", "node 1/3", "node 1/4"));
  EXPECT_THAT(Visited(units), ElementsAre("node 1/2", "node 1/3", "node 1/4"));
}

// One mixer is unplugged while the first one is served, and another device gets its number.
TEST_F(VisitOfAllUnits, TheVisitHasNothingForADeviceThatGotTheNumberOfAUnit) {
  std::vector<std::string> visited;
  VisitUnits(ConnectedUnits(11), [&](DeviceHandle unit) {
    visited.push_back(NodeBehind(unit));
    bus_.MakeNode(1, 3, 0x1D6B, 2);
    return Visit::kNext;
  });
  EXPECT_THAT(visited, ElementsAre("node 1/2", "node 1/4"));
}

TEST_F(VisitOfAllUnits, TheVisitEndsWhenTheVisitorHasSeenEnough) {
  std::vector<std::string> visited;
  VisitUnits(ConnectedUnits(11), [&](DeviceHandle unit) {
    visited.push_back(NodeBehind(unit));
    return visited.size() == 2 ? Visit::kStop : Visit::kNext;
  });
  EXPECT_THAT(visited, ElementsAre("node 1/2", "node 1/3"));
}

TEST_F(VisitOfAllUnits, TheVisitHasOneUnitOpenAtATimeAndClosesItAlways) {
  int visits = 0;
  VisitUnits(ConnectedUnits(11), [&](DeviceHandle) {
    EXPECT_EQ(bus_.OpenFiles(), 1);
    return ++visits == 2 ? Visit::kStop : Visit::kNext;
  });
  EXPECT_EQ(visits, 2);
  EXPECT_EQ(bus_.OpenFiles(), 0);
}

TEST_F(VisitOfAllUnits, AVisitOfTheFirstUnitReachesNoOther) {
  std::vector<std::string> visited;
  const auto visit = [&](DeviceHandle unit) { visited.push_back(NodeBehind(unit)); };
  VisitFirstUnit(ConnectedUnits(11), visit);
  EXPECT_THAT(visited, ElementsAre("node 1/2"));
  std::filesystem::remove(bus_.Node(1, 2));
  VisitFirstUnit(ConnectedUnits(11), visit);
  EXPECT_THAT(visited, ElementsAre("node 1/2")) << "the second in place of the first";
  bus_.RemoveList();
  VisitFirstUnit(ConnectedUnits(11), visit);
  EXPECT_THAT(visited, ElementsAre("node 1/2"));
  EXPECT_EQ(bus_.OpenFiles(), 0);
}

TEST_F(VisitOfAllUnits, OneValueIsSentToEachUnitWhateverTheyAnswer) {
  EXPECT_EQ(ApplyToEveryUnit(11, RecordingRequest, 0x020A).Count(), 3);
  EXPECT_THAT(sent, ElementsAre("node 1/2 value 522", "node 1/3 value 522", "node 1/4 value 522"));
}

TEST_F(VisitOfAllUnits, UnitsThatDoNotOpenAreCountedToo) {
  std::filesystem::remove(bus_.Node(1, 2));
  EXPECT_EQ(ApplyToEveryUnit(11, RecordingRequest, 1).Count(), 3);
  EXPECT_THAT(sent, ElementsAre("node 1/3 value 1", "node 1/4 value 1"));
}

TEST_F(VisitOfAllUnits, NothingIsSentWithoutAUnit) {
  for (const char *name : {"1-1", "1-2", "1-3"}) bus_.Unlist(name);
  EXPECT_EQ(ApplyToEveryUnit(11, RecordingRequest, 1).Count(), 0);
  EXPECT_THAT(sent, IsEmpty());
}

}  // namespace
}  // namespace orv
