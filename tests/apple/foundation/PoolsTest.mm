// Hosts with and without an autorelease pool.
#include <filesystem>
#include <string>

#import <Foundation/Foundation.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../../support/Constants.h"
#include "ChildProcess.h"
#include "Folders.h"
#include "HeapGrowth.h"
#include "LocalizedStrings.h"
#include "NotificationDaemon.h"
#include "Setting.h"
#include "SettingsFile.h"
#include "SystemVersion.h"
#include "Text.h"

namespace orv {
namespace {

using trxtest::kSelva;
using trxtest::kSuccess;

using testing::Lt;
using trxtest::ExpectQuietSuccess;

void CallsNothing(std::int32_t, void *) {}

// Once through everything that asks Foundation for something.
void UseEverything() {
  std::int32_t value = 0;
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  GetSettingValue("TRX-SELVA", "MaxLevel", 3, &value);
  ReadSettingsFile("TRX-SELVA")->TextForKey("MaxLevel");
  SystemMinorVersionAbove10();
  IsNumericallyGreater("11", "10");
  LocalizedString("/Library/Frameworks/Another.framework", "WARNING");
  StringInLanguage("/Library/Frameworks/Another.framework", "German", "WARNING");
  LocalizedString(RESOURCES, "WARNING");
  ProductId productId = 0;
  ORV_GetProductId(KeptText("TRX-SELVA"), &productId);
  TextOfLiteral("REC OUT");
  Announce(boostLevel.change, 11, 1);
}

TEST(Pools, PoolsNeedNotBeTheHosts) {
  ExpectQuietSuccess([] {
    const trxtest::NotificationDaemon daemon;
    UseEverything();
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, CallsNothing, nullptr), kSuccess);
    UseEverything();
  });
}

TEST(Pools, PoolsAreEmptiedInTheCallWithoutOneOfTheHost) {
  const trxtest::NotificationDaemon daemon;
  EXPECT_THAT(HeapGrowth(500, UseEverything), Lt(kNothingPerCall / 20));
}

TEST(Pools, PoolsOfTheHostDoNotGrow) {
  const trxtest::NotificationDaemon daemon;
  NSAutoreleasePool *const hosts = [[NSAutoreleasePool alloc] init];
  EXPECT_THAT(HeapGrowth(500, UseEverything), Lt(kNothingPerCall / 20));
  [hosts drain];
}

}  // namespace
}  // namespace orv
