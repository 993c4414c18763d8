#include <array>
#include <latch>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "Text.h"

namespace orv {
namespace {

TEST(KeptTextTest, AKeptTextHasTheSameCharacters) {
  EXPECT_STREQ(KeptText("kept: ミキサー, микшер, mixer"), "kept: ミキサー, микшер, mixer");
}

TEST(KeptTextTest, AKeptTextIsACopyThatOutlivesItsSource) {
  auto source = std::make_unique<std::string>("kept: outlives a source that is freed");
  ORVStringRef kept = KeptText(*source);
  EXPECT_NE(kept, source->c_str());
  *source = "kept: something else of this length..";
  source.reset();
  EXPECT_STREQ(kept, "kept: outlives a source that is freed");
}

TEST(KeptTextTest, AKeptTextTakesNoMoreMemoryWhenAskedAgain) {
  ORVStringRef first = KeptText("kept: asked twice");
  EXPECT_EQ(KeptText("kept: asked twice"), first);
  KeptText("kept: another in between");
  EXPECT_EQ(KeptText("kept: asked twice"), first);
}

TEST(KeptTextTest, AKeptTextTellsTextsApartThatBeginAlike) {
  ORVStringRef longer = KeptText("kept: beginning and end");
  ORVStringRef shorter = KeptText("kept: beginning");
  EXPECT_STREQ(longer, "kept: beginning and end");
  EXPECT_STREQ(shorter, "kept: beginning");
}

TEST(KeptTextTest, AKeptTextMayBeEmpty) { EXPECT_STREQ(KeptText(""), ""); }

TEST(KeptTextTest, AKeptTextStaysInPlaceWhileManyOthersFollow) {
  ORVStringRef kept = KeptText("kept: early");
  for (int i = 0; i < 2000; ++i) KeptText("kept: follower " + std::to_string(i));
  EXPECT_STREQ(kept, "kept: early");
  EXPECT_EQ(KeptText("kept: early"), kept);
}

constexpr std::size_t kThreads = 8;
constexpr std::size_t kTexts = 40;
constexpr int kRounds = 25;

std::string SharedText(std::size_t number) {
  return "kept: asked for by all threads, " + std::to_string(number);
}

using Handed = std::array<std::vector<ORVStringRef>, kTexts>;

// The texts that several threads get when they start together and ask for the same texts
// repeatedly.
std::array<Handed, kThreads> AskOnManyThreads() {
  std::array<Handed, kThreads> handed;
  std::latch ready(kThreads);
  std::vector<std::thread> threads;
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&ready, &mine = handed[thread]] {
      ready.arrive_and_wait();
      for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < kTexts; ++i) mine[i].push_back(KeptText(SharedText(i)));
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  return handed;
}

TEST(KeptTextTest, AKeptTextIsRightOnEveryThreadThatAsksAtTheSameTime) {
  const auto handed = AskOnManyThreads();
  for (std::size_t i = 0; i < kTexts; ++i) {
    std::set<ORVStringRef> places;
    for (const Handed &ofThread : handed) places.insert(ofThread[i].begin(), ofThread[i].end());
    ASSERT_EQ(places.size(), 1U) << "kept once more";
    EXPECT_EQ(*places.begin(), SharedText(i));
    EXPECT_EQ(KeptText(SharedText(i)), *places.begin());
  }
}

TEST(KeptTextTest, AKeptTextLosesNoTextOfAThreadToAnother) {
  std::array<std::vector<ORVStringRef>, kThreads> handed;
  std::latch ready(kThreads);
  std::vector<std::thread> threads;
  const auto ownText = [](std::size_t thread, std::size_t i) {
    return "kept: " + std::to_string(i) + " of thread " + std::to_string(thread);
  };
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      ready.arrive_and_wait();
      for (std::size_t i = 0; i < kTexts; ++i) {
        handed[thread].push_back(KeptText(ownText(thread, i)));
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    for (std::size_t i = 0; i < kTexts; ++i) {
      EXPECT_EQ(handed[thread][i], ownText(thread, i));
      EXPECT_EQ(KeptText(ownText(thread, i)), handed[thread][i]) << "lost, and kept once more";
    }
  }
}

}  // namespace
}  // namespace orv
