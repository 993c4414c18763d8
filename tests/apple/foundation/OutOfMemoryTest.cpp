// Memory that runs out for C++ under an operation of Objective-C++: the exception passes through it
// and ends in the C++ file that called.
#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../../support/Constants.h"
#include "FailingMemory.h"
#include "PrivateUser.h"
#include "PropertyListFile.h"
#include "SettingsFile.h"
#include "TemporaryFolder.h"
#include "Text.h"

namespace orv {
namespace {

using trxtest::kBadArgument;
using trxtest::kSelva;
using trxtest::kSuccess;

using trxtest::WriteBytes;

// Makes a call again and again, each time with memory for one allocation more, until it needs no
// more than it gets. Returns how often it had too little.
int CallsWithTooLittle(const std::function<void()> &call) {
  constexpr int kMostAllocations = 2000;
  for (int allocations = 0; allocations < kMostAllocations; ++allocations) {
    MemoryLastsFor(allocations);
    call();
    if (!MemoryIsBack()) return allocations;
  }
  ADD_FAILURE() << "the call never had enough";
  return kMostAllocations;
}

TEST(OutOfMemory, ALiteralIsThenNoText) {
  const char *const literal = "a literal that does not fit into a string without memory";
  ORVStringRef text = nullptr;
  int refusals = 0;
  EXPECT_GT(CallsWithTooLittle([&] {
              text = TextOfLiteral(literal);
              if (text == nullptr) ++refusals;
            }),
            0);
  EXPECT_GT(refusals, 0);
  EXPECT_EQ(text, KeptText(literal));
}

TEST(OutOfMemory, AVersionIsThenNotHandedOut) {
  const std::string receipt =
      trxtest::SystemRootOfUser() + "/private/var/db/receipts/com.orvikaudio.TRX-SELVA.pkg.plist";
  std::filesystem::create_directories(std::filesystem::path(receipt).parent_path());
  WriteBytes(receipt, XmlList("<key>PackageVersion</key>"
                              "<string>a version that does not fit without memory</string>"));
  StatusCode status = 0;
  ORVStringRef text = nullptr;
  EXPECT_GT(CallsWithTooLittle([&] {
              text = nullptr;
              status = ORV_GetPkgVersionText(kSelva, &text);
              EXPECT_EQ(status, text != nullptr ? kSuccess : kBadArgument);
            }),
            0);
  EXPECT_EQ(status, kSuccess);
  EXPECT_EQ(text, KeptText("a version that does not fit without memory"));
}

TEST(OutOfMemory, ASettingIsThenStoredOrNot) {
  std::int32_t stored = 0;
  EXPECT_GT(CallsWithTooLittle([&] {
              MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
              GetSettingValue("TRX-SELVA", "MaxLevel", 3, &stored);
              EXPECT_TRUE(stored == 1 || stored == 3) << stored;
            }),
            0);
  EXPECT_EQ(stored, 1);
}

}  // namespace
}  // namespace orv
