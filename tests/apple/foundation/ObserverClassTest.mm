// The class of the observer, as the runtime knows it.
#include <string>
#include <vector>

#import <Foundation/Foundation.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <objc/runtime.h>

namespace orv {
namespace {

using testing::ElementsAre;

TEST(ObserverClass, TheObserverClassDerivesFromTheRootClass) {
  ASSERT_NE(objc_getClass("ORVFunc"), nil);
  EXPECT_EQ(class_getSuperclass(objc_getClass("ORVFunc")), [NSObject class]);
}

TEST(ObserverClass, TheObserverClassHasNoFields) {
  unsigned count = 4711;
  free(class_copyIvarList(objc_getClass("ORVFunc"), &count));
  EXPECT_EQ(count, 0U);
  EXPECT_EQ(class_getInstanceSize(objc_getClass("ORVFunc")),
            class_getInstanceSize([NSObject class]));
}

TEST(ObserverClass, TheObserverClassHasFiveOperationsInTheirOrder) {
  unsigned count = 0;
  Method *const methods = class_copyMethodList(objc_getClass("ORVFunc"), &count);
  std::vector<std::string> names;
  for (unsigned i = 0; i < count; ++i) names.emplace_back(sel_getName(method_getName(methods[i])));
  free(methods);
  EXPECT_THAT(names, ElementsAre("inputAudioChanged:", "outputAudioChanged:", "boostLevelChanged:",
                                 "midiChannelChanged:", "midiKeyModeChanged:"));
}

TEST(ObserverClass, TheObserverClassHasNoOperationsOfTheClassItself) {
  unsigned count = 4711;
  free(class_copyMethodList(object_getClass(objc_getClass("ORVFunc")), &count));
  EXPECT_EQ(count, 0U);
}

}  // namespace
}  // namespace orv
