// The status values of platform calls.
#include <cerrno>
#include <cstdint>

#include <gtest/gtest.h>

#include "PlatformStatus.h"

namespace orv {
namespace {

std::uint32_t StatusOf(int error) {
  return static_cast<std::uint32_t>(PlatformStatusFromErrno(error));
}

TEST(PlatformStatus, EachErrorHasItsStatus) {
  EXPECT_EQ(StatusOf(EBUSY), 0xE00002C5U);
  EXPECT_EQ(StatusOf(EPIPE), 0xE000404FU);
  EXPECT_EQ(StatusOf(ETIMEDOUT), 0xE0004051U);
  EXPECT_EQ(StatusOf(ENODEV), 0xE00002C0U);
  EXPECT_EQ(StatusOf(ESHUTDOWN), 0xE00002C0U);
  EXPECT_EQ(StatusOf(ENOENT), 0xE00002C0U);
  EXPECT_EQ(StatusOf(ENXIO), 0xE00002C0U);
  EXPECT_EQ(StatusOf(EACCES), 0xE00002E2U);
  EXPECT_EQ(StatusOf(EPERM), 0xE00002E2U);
  EXPECT_EQ(StatusOf(EPROTO), 0xE00002EDU);
  EXPECT_EQ(StatusOf(EILSEQ), 0xE00002EDU);
  EXPECT_EQ(StatusOf(ETIME), 0xE00002EDU);
  EXPECT_EQ(StatusOf(EOVERFLOW), 0xE00002E8U);
  EXPECT_EQ(StatusOf(ENOMEM), 0xE00002BDU);
  EXPECT_EQ(StatusOf(EMFILE), 0xE00002BEU);
  EXPECT_EQ(StatusOf(EINVAL), 0xE00002C2U);
  EXPECT_EQ(StatusOf(EIO), 0xE00002CAU);
}

TEST(PlatformStatus, AnyOtherErrorIsTheGeneralError) {
  for (const int error : {ENOTTY, EISDIR, EBADF, ELOOP, 0, -1, 12345}) {
    EXPECT_EQ(StatusOf(error), 0xE00002BCU) << error;
  }
}

}  // namespace
}  // namespace orv
