// Reports about units that do not open. On macOS a unit is opened by asking every device: one that
// cannot be asked has no position, and the last one asked decides the status of every opening.
#include "../../RequestReports.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class UnopenedUnit : public RequestReports {};

TEST_F(UnopenedUnit, AnUnopenedUnitLeavesItsPlaceToTheNextAndIsReportedAsTheLastWithoutALocation) {
  PlugMixers(3);
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 2 write 8003 0300 done", "unit 3 write 8003 0300 done",
                                  "nowhere open 0000 0000 failed"}));
}

TEST_F(UnopenedUnit, AnUnopenedUnitInTheLastPlaceIsReportedOfEachUnit) {
  PlugMixers(3);
  rig_->SetFault(3, UnitFault::kHeldByAnotherProcess);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 open 0000 0000 busy", "unit 2 open 0000 0000 busy",
                                  "nowhere open 0000 0000 failed"}));
}

// Each opening looks again: when the first mixer is gone, no mixer has the last position.
TEST_F(UnopenedUnit,
       AnUnopenedUnitThatVanishedInItsRequestLeavesItsPlaceToTheNextWithinTheSameCall) {
  PlugMixers(3);
  rig_->SetFault(1, UnitFault::kVanishes);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 gone", "unit 3 write 8003 0300 done",
                                  "nowhere open 0000 0000 failed"}));
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 2 write 8003 0300 done", "unit 3 write 8003 0300 done"}));
}

}  // namespace
}  // namespace trxtest
