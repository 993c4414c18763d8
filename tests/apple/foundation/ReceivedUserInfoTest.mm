// What is read out of a notification object.
#include <array>

#import <Foundation/Foundation.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "HeapGrowth.h"
#include "ReceivedNotification.h"

namespace orv {
namespace {

using testing::IsEmpty;
using testing::Lt;
using testing::Pair;
using testing::UnorderedElementsAre;

constexpr std::array kKeys = {"ProductID", "Channel", "Index"};

class ReceivedUserInfoTest : public testing::Test {
 protected:
  ~ReceivedUserInfoTest() override { [pool_ drain]; }

  static std::optional<UserInfo> Received(NSDictionary *userInfo) {
    return ReceivedUserInfo(
        [NSNotification notificationWithName:@"name" object:nil userInfo:userInfo], kKeys);
  }

  static NSNumber *Integer(int number) { return [NSNumber numberWithInt:number]; }

  NSAutoreleasePool *const pool_ = [[NSAutoreleasePool alloc] init];
};

TEST_F(ReceivedUserInfoTest, TheUserInfoHasEveryIntegerUnderItsKey) {
  const auto received = Received([NSDictionary
      dictionaryWithObjectsAndKeys:Integer(11), @"ProductID", Integer(-2), @"Channel", nil]);
  ASSERT_TRUE(received);
  EXPECT_THAT(received->Entries(),
              UnorderedElementsAre(Pair("ProductID", 11), Pair("Channel", -2)));
}

TEST_F(ReceivedUserInfoTest, TheUserInfoIsEmptyWithoutADictionaryOrWithAnEmptyOne) {
  const auto none = Received(nil);
  ASSERT_TRUE(none);
  EXPECT_THAT(none->Entries(), IsEmpty());
  const auto empty = Received([NSDictionary dictionary]);
  ASSERT_TRUE(empty);
  EXPECT_THAT(empty->Entries(), IsEmpty());
}

TEST_F(ReceivedUserInfoTest, TheUserInfoIsNothingWhenAValueIsNoNumber) {
  for (id value in
       [NSArray arrayWithObjects:@"11", [NSNull null], [NSArray array], [NSDictionary dictionary],
                                 [NSData data], [NSDate date], nil]) {
    EXPECT_FALSE(Received([NSDictionary
        dictionaryWithObjectsAndKeys:Integer(11), @"ProductID", value, @"Index", nil]))
        << class_getName([value class]);
  }
}

TEST_F(ReceivedUserInfoTest, TheUserInfoHasNothingOfWhatIsNotAskedFor) {
  const auto received = Received(
      [NSDictionary dictionaryWithObjectsAndKeys:Integer(11), @"ProductID", Integer(1), @"Else",
                                                 @"one", @"Source", Integer(1), Integer(1), nil]);
  ASSERT_TRUE(received);
  EXPECT_THAT(received->Entries(), UnorderedElementsAre(Pair("ProductID", 11)));
}

TEST_F(ReceivedUserInfoTest, TheUserInfoIsNothingWhenWhatCameIsNoNotification) {
  EXPECT_FALSE(ReceivedUserInfo(@"no notification", kKeys));
}

TEST_F(ReceivedUserInfoTest, TheUserInfoLeavesNothingBehind) {
  NSNotification *const notification = [NSNotification
      notificationWithName:@"name"
                    object:nil
                  userInfo:[NSDictionary dictionaryWithObjectsAndKeys:
                                             Integer(11), @"ProductID", Integer(-2),
                                             @"a key that does not fit into the text", nil]];
  constexpr std::array kReadKeys = {"ProductID", "a key that does not fit into the text"};
  EXPECT_THAT(HeapGrowth(10'000, [&] { ReceivedUserInfo(notification, kReadKeys); }),
              Lt(kNothingPerCall));
  EXPECT_THAT(HeapGrowth(10'000, [] { ReceivedUserInfo(@"no notification", kKeys); }),
              Lt(kNothingPerCall));
}

}  // namespace
}  // namespace orv
