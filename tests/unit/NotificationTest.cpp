// The dictionary of a notification.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Notification.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(UserInfo, UserInfoKeepsTheOrderOfItsKeys) {
  EXPECT_THAT(UserInfo({{"ProductID", 11}, {"Channel", 1}, {"Index", 7}}).Entries(),
              ElementsAre(Pair("ProductID", 11), Pair("Channel", 1), Pair("Index", 7)));
  UserInfo userInfo;
  userInfo.Set("z", 1);
  userInfo.Set("a", 2);
  userInfo.Set("m", 3);
  EXPECT_THAT(userInfo.Entries(), ElementsAre(Pair("z", 1), Pair("a", 2), Pair("m", 3)));
}

TEST(UserInfo, SetReplacesAValueInItsPlace) {
  UserInfo userInfo = {{"ProductID", 11}, {"Channel", 1}, {"Index", 7}};
  userInfo.Set("Channel", -2);
  EXPECT_THAT(userInfo.Entries(),
              ElementsAre(Pair("ProductID", 11), Pair("Channel", -2), Pair("Index", 7)));
}

TEST(UserInfo, UserInfoGivesTheValueOfAKey) {
  const UserInfo userInfo = {{"ProductID", 11}, {"Index", -7}};
  EXPECT_EQ(userInfo.IntegerForKey("ProductID"), 11);
  EXPECT_EQ(userInfo.IntegerForKey("Index"), -7);
}

TEST(UserInfo, UserInfoGivesZeroForAKeyThatIsMissing) {
  const UserInfo userInfo = {{"Index", 7}};
  EXPECT_EQ(userInfo.IntegerForKey("Channel"), 0);
  EXPECT_EQ(userInfo.IntegerForKey("index"), 0);
  EXPECT_EQ(userInfo.IntegerForKey("Inde"), 0);
  EXPECT_EQ(userInfo.IntegerForKey(""), 0);
  EXPECT_THAT(UserInfo().Entries(), IsEmpty());
  EXPECT_EQ(UserInfo().IntegerForKey("Index"), 0);
}

}  // namespace
}  // namespace orv
