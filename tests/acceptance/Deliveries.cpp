#include "Deliveries.h"

#include <algorithm>
#include <utility>

namespace trxtest {
namespace {

constexpr ProductId kMarkProduct = 8;
constexpr std::int32_t kMarkOfLibrary = 0;
constexpr std::int32_t kMarkOfRig = 77;

std::vector<std::int32_t> marks;

void Mark(std::int32_t index, void * /*context*/) { marks.push_back(index); }

std::string Tag(const char *callback, void *context) {
  return callback + std::string(" ") +
         (context != nullptr ? *static_cast<const std::string *>(context) : "(null)");
}

}  // namespace

std::vector<Call> Deliveries::calls_;

void Deliveries::IndexA(std::int32_t index, void *context) {
  calls_.push_back({Tag("A", context), -1, index});
}

void Deliveries::IndexB(std::int32_t index, void *context) {
  calls_.push_back({Tag("B", context), -1, index});
}

void Deliveries::ChannelIndexA(std::int32_t channel, std::int32_t index, void *context) {
  calls_.push_back({Tag("A", context), channel, index});
}

void Deliveries::ChannelIndexB(std::int32_t channel, std::int32_t index, void *context) {
  calls_.push_back({Tag("B", context), channel, index});
}

std::vector<Call> Deliveries::DeliverAll() {
  if (!hasMark_) {
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kMarkProduct, Mark, nullptr), 100);
    hasMark_ = true;
  }
  marks.clear();
  // The announcements of one poster stay in order, so each poster sends a mark after its own.
  EXPECT_EQ(ORV_SetBoostLevelIndex(kMarkProduct, kMarkOfLibrary), 100);
  rig().Announce(BoostChange("TRX-MORROW", kMarkProduct, kMarkOfRig));
  EXPECT_TRUE(RunEventLoopUntil([] {
    return std::count(marks.begin(), marks.end(), kMarkOfLibrary) > 0 &&
           std::count(marks.begin(), marks.end(), kMarkOfRig) > 0;
  })) << "what was announced last does not arrive";
  return std::exchange(calls_, {});
}

}  // namespace trxtest
