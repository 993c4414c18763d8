// Which fault a request meets, and how faults are written.

#include <gtest/gtest.h>

#include "Model/Fault.h"

namespace trxsim {
namespace {

TEST(Faults, AreNoneAtFirst) {
  const Faults faults;
  EXPECT_FALSE(faults.faultOf(RequestId::Selectors));
  EXPECT_FALSE(faults.faultOf(std::nullopt));
  EXPECT_EQ(faults.open(), OpenFault::None);
  EXPECT_EQ(faults.text(), "none");
}

TEST(Faults, OfEveryRequestMeetAlsoUnknownRequests) {
  Faults faults;
  faults.set(std::nullopt, {RequestFaultKind::Stall, 0});
  ASSERT_TRUE(faults.faultOf(std::nullopt));
  EXPECT_EQ(faults.faultOf(std::nullopt)->kind, RequestFaultKind::Stall);
  ASSERT_TRUE(faults.faultOf(RequestId::MixerInput));
  EXPECT_EQ(faults.faultOf(RequestId::MixerInput)->kind, RequestFaultKind::Stall);
}

TEST(Faults, OfOneRequestMeetOnlyThat) {
  Faults faults;
  faults.set(RequestId::Serato, {RequestFaultKind::NoReply, 0});
  EXPECT_TRUE(faults.faultOf(RequestId::Serato));
  EXPECT_FALSE(faults.faultOf(RequestId::MidiChannel));
  EXPECT_FALSE(faults.faultOf(std::nullopt));
}

TEST(Faults, OfOneRequestGoBeforeThoseOfEveryRequest) {
  Faults faults;
  faults.set(RequestId::Serato, {RequestFaultKind::Short, 1});
  faults.set(std::nullopt, {RequestFaultKind::Stall, 0});
  ASSERT_TRUE(faults.faultOf(RequestId::Serato));
  EXPECT_EQ(faults.faultOf(RequestId::Serato)->kind, RequestFaultKind::Short);
}

TEST(Faults, AreWrittenAsTheControlCommandsNameThem) {
  Faults faults;
  faults.set(OpenFault::Hold);
  faults.set(std::nullopt, {RequestFaultKind::NoReply, 0});
  faults.set(RequestId::Selectors, {RequestFaultKind::Short, 2});
  faults.set(RequestId::MixerInput, {RequestFaultKind::Vanish, 0});
  EXPECT_EQ(faults.text(), "hold, no-reply, short 2 selectors, vanish mixer-input");
}

TEST(Faults, AreAllGoneAfterClear) {
  Faults faults;
  faults.set(OpenFault::Deny);
  faults.set(RequestId::Selectors, {RequestFaultKind::Stall, 0});
  faults.clear();
  EXPECT_EQ(faults.text(), "none");
}

}  // namespace
}  // namespace trxsim
