#include "Deliveries.h"

#include <algorithm>
#include <utility>

namespace trxtest {
namespace {

constexpr ProductId kMarkProduct = kMorrow;
constexpr std::int32_t kMarkOfLibrary = 0;
constexpr std::int32_t kMarkOfRig = 77;

std::vector<std::int32_t> marks;
std::vector<Call> calls;

void Mark(std::int32_t index, void * /*context*/) { marks.push_back(index); }

std::string Tag(const char *callback, void *context) {
  return callback + std::string(" ") +
         (context != nullptr ? *static_cast<const std::string *>(context) : "(null)");
}

}  // namespace

std::vector<Call> &Deliveries::Calls() { return calls; }

void Deliveries::IndexA(std::int32_t index, void *context) {
  calls.push_back({Tag("A", context), -1, index});
}

void Deliveries::IndexB(std::int32_t index, void *context) {
  calls.push_back({Tag("B", context), -1, index});
}

void Deliveries::ChannelIndexA(std::int32_t channel, std::int32_t index, void *context) {
  calls.push_back({Tag("A", context), channel, index});
}

void Deliveries::ChannelIndexB(std::int32_t channel, std::int32_t index, void *context) {
  calls.push_back({Tag("B", context), channel, index});
}

std::vector<Call> Deliveries::DeliverAll(std::size_t count) {
  if (!hasMark_) {
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kMarkProduct, Mark, nullptr), kSuccess);
    hasMark_ = true;
  }
  marks.clear();
  // The announcements of one poster stay in order, so each poster sends a mark after its own.
  EXPECT_EQ(ORV_SetBoostLevelIndex(kMarkProduct, kMarkOfLibrary), kSuccess);
  rig_->Announce(BoostChange("TRX-MORROW", kMarkProduct, kMarkOfRig));
  EXPECT_TRUE(RunEventLoopUntil([count] {
    return calls.size() >= count && std::count(marks.begin(), marks.end(), kMarkOfLibrary) > 0 &&
           std::count(marks.begin(), marks.end(), kMarkOfRig) > 0;
  })) << "what was announced last does not arrive";
  return std::exchange(calls, {});
}

testing::AssertionResult Deliveries::Delivered(const std::vector<Call> &expected) {
  const bool isInOrder = rig_->KeepsOrderBetweenNames();
  const auto ordered = [isInOrder](std::vector<Call> some) {
    if (!isInOrder) std::sort(some.begin(), some.end());
    return some;
  };
  const std::vector<Call> made = ordered(DeliverAll(expected.size()));
  if (made == ordered(expected)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "calls: " << testing::PrintToString(made);
}

}  // namespace trxtest
