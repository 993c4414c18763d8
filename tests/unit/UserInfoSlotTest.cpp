// Who holds a posted dictionary, and for how long.
#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "UserInfoSlot.h"

namespace orv {
namespace {

using Dictionary = std::shared_ptr<const UserInfo>;

Dictionary NewDictionary() { return std::make_shared<const UserInfo>(); }

// A slot lives as long as the process, and so does what it holds at the end.
UserInfoSlot &NewSlot() {
  static std::vector<UserInfoSlot *> &slots = *new std::vector<UserInfoSlot *>;
  return *slots.emplace_back(new UserInfoSlot);
}

TEST(UserInfoSlot, KeepsADictionaryAlive) {
  UserInfoSlot &slot = NewSlot();
  Dictionary dictionary = NewDictionary();
  const std::weak_ptr<const UserInfo> watch = dictionary;
  slot.Keep(dictionary);
  EXPECT_EQ(dictionary.use_count(), 2);
  dictionary.reset();
  EXPECT_FALSE(watch.expired());
}

TEST(UserInfoSlot, ReleasesTheDictionaryBefore) {
  UserInfoSlot &slot = NewSlot();
  Dictionary first = NewDictionary();
  const std::weak_ptr<const UserInfo> watch = first;
  slot.Keep(std::move(first));
  ASSERT_FALSE(watch.expired());
  slot.Keep(NewDictionary());
  EXPECT_TRUE(watch.expired());
}

TEST(UserInfoSlot, LeavesADictionaryAliveWhenItIsEmptied) {
  UserInfoSlot &slot = NewSlot();
  Dictionary dictionary = NewDictionary();
  const std::weak_ptr<const UserInfo> watch = dictionary;
  slot.Keep(std::move(dictionary));
  slot.Empty();
  EXPECT_FALSE(watch.expired());
  slot.Keep(NewDictionary());
  slot.Empty();
  slot.Keep(NewDictionary());
  EXPECT_FALSE(watch.expired());
}

TEST(UserInfoSlot, MayBeEmptiedWhenItHoldsNothing) {
  UserInfoSlot &slot = NewSlot();
  slot.Empty();
  slot.Empty();
  Dictionary dictionary = NewDictionary();
  slot.Keep(dictionary);
  EXPECT_EQ(dictionary.use_count(), 2);
}

TEST(UserInfoSlot, HoldsOneOfAllThatSeveralThreadsKeepAtOnce) {
  constexpr int kThreads = 4;
  constexpr int kTimes = 2000;
  UserInfoSlot &slot = NewSlot();
  std::vector<std::vector<std::weak_ptr<const UserInfo>>> watches(kThreads);
  std::vector<std::thread> threads;
  for (auto &watch : watches) {
    threads.emplace_back([&] {
      for (int i = 0; i < kTimes; ++i) {
        Dictionary dictionary = NewDictionary();
        watch.push_back(dictionary);
        slot.Keep(std::move(dictionary));
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  int alive = 0;
  for (const auto &watch : watches) {
    for (const auto &dictionary : watch) alive += dictionary.expired() ? 0 : 1;
  }
  EXPECT_EQ(alive, 1);
}

// Only one thread keeps, and it empties the slot before it keeps again: none of its dictionaries
// may be released, whoever is faster at emptying.
TEST(UserInfoSlot, LeavesEveryDictionaryAliveWhenThreadsEmptyAtOnce) {
  constexpr int kTimes = 2000;
  UserInfoSlot &slot = NewSlot();
  std::atomic<bool> isDone = false;
  std::vector<std::thread> emptiers;
  for (int i = 0; i < 2; ++i) {
    emptiers.emplace_back([&] {
      while (!isDone) slot.Empty();
    });
  }
  std::vector<std::weak_ptr<const UserInfo>> watches;
  for (int i = 0; i < kTimes; ++i) {
    Dictionary dictionary = NewDictionary();
    watches.push_back(dictionary);
    slot.Keep(std::move(dictionary));
    slot.Empty();
  }
  isDone = true;
  for (std::thread &emptier : emptiers) emptier.join();
  Dictionary last = NewDictionary();
  slot.Keep(last);
  EXPECT_EQ(last.use_count(), 2);
  EXPECT_EQ(std::count_if(watches.begin(), watches.end(),
                          [](const auto &watch) { return watch.expired(); }),
            0);
}

// With two threads that keep, each may release what the other kept. Nothing is released twice.
TEST(UserInfoSlot, StaysInOrderWhenThreadsKeepAndEmptyAtOnce) {
  constexpr int kTimes = 2000;
  UserInfoSlot &slot = NewSlot();
  const auto keepAndEmpty = [&slot] {
    for (int i = 0; i < kTimes; ++i) {
      slot.Keep(NewDictionary());
      slot.Empty();
    }
  };
  std::thread first(keepAndEmpty);
  std::thread second(keepAndEmpty);
  first.join();
  second.join();
  Dictionary last = NewDictionary();
  slot.Keep(last);
  EXPECT_EQ(last.use_count(), 2);
}

}  // namespace
}  // namespace orv
