// Which fault a request meets, and how faults are written.

#include <gtest/gtest.h>

#include "Model/Fault.h"

namespace trxsim {
namespace {

TEST(Faults, FaultsAreNoneAtFirst) {
  const Faults faults;
  EXPECT_FALSE(faults.FaultOf(RequestId::kSelectors));
  EXPECT_FALSE(faults.FaultOf(std::nullopt));
  EXPECT_EQ(faults.Open(), OpenFault::kNone);
  EXPECT_EQ(faults.Text(), "none");
}

TEST(Faults, FaultsOfEveryRequestMeetAlsoUnknownRequests) {
  Faults faults;
  faults.Set(std::nullopt, {RequestFaultKind::kStall, 0});
  ASSERT_TRUE(faults.FaultOf(std::nullopt));
  EXPECT_EQ(faults.FaultOf(std::nullopt)->kind, RequestFaultKind::kStall);
  ASSERT_TRUE(faults.FaultOf(RequestId::kMixerInput));
  EXPECT_EQ(faults.FaultOf(RequestId::kMixerInput)->kind, RequestFaultKind::kStall);
}

TEST(Faults, FaultsOfOneRequestMeetOnlyThat) {
  Faults faults;
  faults.Set(RequestId::kSerato, {RequestFaultKind::kNoReply, 0});
  EXPECT_TRUE(faults.FaultOf(RequestId::kSerato));
  EXPECT_FALSE(faults.FaultOf(RequestId::kMidiChannel));
  EXPECT_FALSE(faults.FaultOf(std::nullopt));
}

TEST(Faults, FaultsOfOneRequestGoBeforeThoseOfEveryRequest) {
  Faults faults;
  faults.Set(RequestId::kSerato, {RequestFaultKind::kShort, 1});
  faults.Set(std::nullopt, {RequestFaultKind::kStall, 0});
  ASSERT_TRUE(faults.FaultOf(RequestId::kSerato));
  EXPECT_EQ(faults.FaultOf(RequestId::kSerato)->kind, RequestFaultKind::kShort);
}

TEST(Faults, FaultsAreWrittenAsTheControlCommandsNameThem) {
  Faults faults;
  faults.Set(OpenFault::kHold);
  faults.Set(std::nullopt, {RequestFaultKind::kNoReply, 0});
  faults.Set(RequestId::kSelectors, {RequestFaultKind::kShort, 2});
  faults.Set(RequestId::kMixerInput, {RequestFaultKind::kVanish, 0});
  EXPECT_EQ(faults.Text(), "hold, no-reply, short 2 selectors, vanish mixer-input");
}

TEST(Faults, FaultsAreAllGoneAfterClear) {
  Faults faults;
  faults.Set(OpenFault::kDeny);
  faults.Set(RequestId::kSelectors, {RequestFaultKind::kStall, 0});
  faults.Clear();
  EXPECT_EQ(faults.Text(), "none");
}

}  // namespace
}  // namespace trxsim
