// Texts as string objects: those that a host passes and those that it gets.
#include <array>
#include <latch>
#include <set>
#include <string>
#include <thread>
#include <vector>

#import <Foundation/Foundation.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../../support/Constants.h"
#include "HeapGrowth.h"
#include "Text.h"

namespace orv {
namespace {

using trxtest::kBadArgument;
using trxtest::kSuccess;

using testing::Lt;

NSString *ObjectOf(ORVStringRef text) { return reinterpret_cast<NSString *>(text); }

const char *CharactersOf(ORVStringRef text) { return [ObjectOf(text) UTF8String]; }

ORVStringRef TextOf(const char *characters) {
  return reinterpret_cast<ORVStringRef>([NSString stringWithUTF8String:characters]);
}

class StringObjects : public testing::Test {
 protected:
  ~StringObjects() override { [pool_ drain]; }
  NSAutoreleasePool *const pool_ = [[NSAutoreleasePool alloc] init];
};

TEST_F(StringObjects, StringObjectsAreStringsOfTheSameCharacters) {
  EXPECT_TRUE([ObjectOf(TextOfLiteral("-10 dB")) isKindOfClass:[NSString class]]);
  EXPECT_STREQ(CharactersOf(TextOfLiteral("-10 dB")), "-10 dB");
  EXPECT_STREQ(CharactersOf(KeptText("ミキサー, микшер, \U0001F39B")),
               "ミキサー, микшер, \U0001F39B");
  EXPECT_STREQ(CharactersOf(KeptText("")), "");
}

TEST_F(StringObjects, StringObjectsOfTheSameCharactersAreTheSameObject) {
  const std::string copy = "REC OUT";
  const ORVStringRef first = TextOfLiteral("REC OUT");
  EXPECT_EQ(TextOfLiteral(copy.c_str()), first);
  EXPECT_EQ(KeptText("REC OUT"), first);
  EXPECT_NE(TextOfLiteral("AUX"), first);
  EXPECT_EQ(TextOfLiteral("REC OUT"), first);
}

TEST_F(StringObjects, StringObjectsOfNoLiteralAreNone) {
  EXPECT_EQ(TextOfLiteral(nullptr), nullptr);
}

TEST_F(StringObjects, StringObjectsOfBytesThatAreNoTextAreNone) {
  EXPECT_EQ(KeptText("\xC5\xFF"), nullptr);
}

TEST_F(StringObjects, StringObjectsOutliveEveryPool) {
  NSAutoreleasePool *const inner = [[NSAutoreleasePool alloc] init];
  const ORVStringRef text = TextOfLiteral("outlives a pool");
  [inner drain];
  EXPECT_STREQ(CharactersOf(text), "outlives a pool");
  EXPECT_EQ([ObjectOf(text) retainCount], 1U);
}

TEST_F(StringObjects, StringObjectsAreMadeOnce) {
  const ORVStringRef text = TextOfLiteral("asked for ten thousand times, and one");
  EXPECT_THAT(HeapGrowth(10'000, [] { TextOfLiteral("asked for ten thousand times, and one"); }),
              Lt(kNothingPerCall));
  EXPECT_EQ([ObjectOf(text) retainCount], 1U);
  EXPECT_EQ(TextOfLiteral("asked for ten thousand times, and one"), text);
}

TEST_F(StringObjects, StringObjectsAreOneForAllThreadsThatAskAtOnce) {
  constexpr std::size_t kThreads = 8;
  std::array<std::vector<ORVStringRef>, kThreads> handed;
  std::latch ready(kThreads);
  std::vector<std::thread> threads;
  for (auto &mine : handed) {
    threads.emplace_back([&ready, &mine] {
      ready.arrive_and_wait();
      for (int i = 0; i < 400; ++i) mine.push_back(KeptText("text " + std::to_string(i)));
    });
  }
  for (std::thread &thread : threads) thread.join();
  for (const auto &mine : handed) EXPECT_EQ(mine, handed.front());
  EXPECT_EQ(std::set<ORVStringRef>(handed[0].begin(), handed[0].end()).size(), 400U);
  EXPECT_STREQ(CharactersOf(handed[7][399]), "text 399");
}

TEST_F(StringObjects, StringObjectsCompareRunsOfDigitsAsNumbers) {
  EXPECT_TRUE(IsNumericallyGreater("11", "10"));
  EXPECT_TRUE(IsNumericallyGreater("100", "99"));
  EXPECT_TRUE(IsNumericallyGreater("0011", "10"));
  EXPECT_FALSE(IsNumericallyGreater("10", "10"));
  EXPECT_FALSE(IsNumericallyGreater("9", "10"));
  EXPECT_FALSE(IsNumericallyGreater("2", "10"));
  EXPECT_FALSE(IsNumericallyGreater("", "10"));
}

// --- What a host hands in ------------------------------------------------------------------------

ProductId ProductIdOf(const char *name) {
  ProductId productId = 4711;
  const StatusCode status = ORV_GetProductId(TextOf(name), &productId);
  EXPECT_EQ(status, productId == 4711 ? kBadArgument : kSuccess) << name;
  return productId;
}

TEST_F(StringObjects, StringObjectsNameAModelInAnyCaseAndSurroundings) {
  EXPECT_EQ(ProductIdOf("TRX-Arden"), 0U);
  EXPECT_EQ(ProductIdOf("the trx-volt at the door"), 1U);
  EXPECT_EQ(ProductIdOf("TRX-BRISK"), 2U);
  EXPECT_EQ(ProductIdOf("trc-fenno"), 3U);
  EXPECT_EQ(ProductIdOf("TRX-CIRRUS"), 4U);
  EXPECT_EQ(ProductIdOf("TRX-HALDEN2"), 5U);
  EXPECT_EQ(ProductIdOf("\u00C4\u00D6trx-lumen\u00DC"), 6U);
  EXPECT_EQ(ProductIdOf("TRXTRX-MORROW"), 8U);
  EXPECT_EQ(ProductIdOf("tRx-SeLvA"), 11U);
  EXPECT_EQ(ProductIdOf("TRX-SELVA TRX-ARDEN"), 0U);
}

TEST_F(StringObjects, StringObjectsNameNoModelOtherwise) {
  for (const char *name : {"", "TRX", "TRX-SELV", "TRX SELVA", "TRX-FENNO", "SELVA"}) {
    EXPECT_EQ(ProductIdOf(name), 4711U) << name;
  }
  ProductId productId = 4711;
  EXPECT_EQ(ORV_GetProductId(nullptr, &productId), kBadArgument);
  EXPECT_EQ(ORV_GetProductId(TextOf("TRX-SELVA"), nullptr), kBadArgument);
  EXPECT_EQ(productId, 4711U);
}

TEST_F(StringObjects, StringObjectsThatAreNoStringsNameNoModel) {
  ProductId productId = 4711;
  const auto number = reinterpret_cast<ORVStringRef>([NSNumber numberWithInt:11]);
  EXPECT_EQ(ORV_GetProductId(number, &productId), kBadArgument);
  EXPECT_EQ(productId, 4711U);
}

TEST_F(StringObjects, StringObjectsAreNotKeptByTheLibrary) {
  NSString *const name = [[NSString alloc] initWithUTF8String:"my trx-selva on the desk"];
  ProductId productId = 0;
  EXPECT_THAT(
      HeapGrowth(10'000,
                 [&] { ORV_GetProductId(reinterpret_cast<ORVStringRef>(name), &productId); }),
      Lt(kNothingPerCall));
  EXPECT_EQ([name retainCount], 1U);
  [name release];
}

}  // namespace
}  // namespace orv
