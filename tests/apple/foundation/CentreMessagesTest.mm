// The messages that the library sends to the notification centre.
#import <Foundation/Foundation.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <objc/runtime.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../../support/Constants.h"
#include "CentreRecorder.h"
#include "ChildProcess.h"
#include "Setting.h"

namespace {

using trxtest::kArden;
using trxtest::kBadArgument;
using trxtest::kBrisk;
using trxtest::kLumen;
using trxtest::kMorrow;
using trxtest::kSelva;
using trxtest::kSuccess;
using trxtest::kVolt;

int observersMade = 0;

}  // namespace

// Changes places with the operation of the same name without "counted".
@interface NSObject (Counted)
@end

@implementation NSObject (Counted)

+ (id)countedAlloc {
  if (self == objc_getClass("ORVFunc")) ++observersMade;
  return [self countedAlloc];
}

@end

namespace orv {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using trxtest::ExpectQuietSuccess;

void CallsNothing(std::int32_t, std::int32_t, void *) {}
void CallsNothing(std::int32_t, void *) {}

TEST(PostedMessage, AMessageOfARoutingChangeIsTheFormThatIsDeliveredImmediately) {
  const CentreRecorder centre;
  Announce(inputAudioChange, 11, 1, 7);
  Announce(outputAudioChange, 0, -1, 2);
  EXPECT_THAT(centre.Messages(),
              ElementsAre("postNotificationName:\"TRX-SELVA InputAudio Change\" object:nil "
                          "userInfo:{Channel i 1, Index i 7, ProductID i 11} "
                          "deliverImmediately:YES",
                          "postNotificationName:\"TRX-Arden OutputAudio Change\" object:nil "
                          "userInfo:{Channel i -1, Index i 2, ProductID i 0} "
                          "deliverImmediately:YES"));
}

TEST(PostedMessage, AMessageOfAnyOtherChangeIsThePlainForm) {
  const CentreRecorder centre;
  Announce(boostLevel.change, 5, 3);
  Announce(midiChannel.change, 1, 15);
  EXPECT_THAT(centre.Messages(),
              ElementsAre("postNotificationName:\"TRX-HALDEN BoostLevel Change\" object:nil "
                          "userInfo:{Index i 3, ProductID i 5}",
                          "postNotificationName:\"TRX-VOLT MidiChannel Change\" object:nil "
                          "userInfo:{Index i 15, ProductID i 1}"));
}

TEST(RegisteredMessage, TheMessageNamesTheOperationOfTheKind) {
  const CentreRecorder centre;
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, CallsNothing, nullptr), kSuccess);
  ASSERT_EQ(ORV_RegisterOutputAudioChangedCallback(kArden, CallsNothing, nullptr), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kMorrow, CallsNothing, nullptr), kSuccess);
  ASSERT_EQ(ORV_RegisterMidiChannelChangedCallback(kVolt, CallsNothing, nullptr), kSuccess);
  EXPECT_THAT(centre.Messages(), ElementsAre("addObserver:ORVFunc selector:inputAudioChanged: "
                                             "name:\"TRX-SELVA InputAudio Change\" object:nil",
                                             "addObserver:ORVFunc selector:outputAudioChanged: "
                                             "name:\"TRX-Arden OutputAudio Change\" object:nil",
                                             "addObserver:ORVFunc selector:boostLevelChanged: "
                                             "name:\"TRX-MORROW BoostLevel Change\" object:nil",
                                             "addObserver:ORVFunc selector:midiChannelChanged: "
                                             "name:\"TRX-VOLT MidiChannel Change\" object:nil"));
}

TEST(RegisteredMessage, TheMessageIsSentOnceForEachRegistrationAndToOneObserver) {
  const CentreRecorder centre;
  for (int i = 0; i < 3; ++i) {
    ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, CallsNothing, nullptr), kSuccess);
  }
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kLumen, nullptr, nullptr), kSuccess);
  EXPECT_THAT(centre.Messages(), ElementsAre("addObserver:ORVFunc selector:boostLevelChanged: "
                                             "name:\"TRX-SELVA BoostLevel Change\" object:nil",
                                             "addObserver:ORVFunc selector:boostLevelChanged: "
                                             "name:\"TRX-SELVA BoostLevel Change\" object:nil",
                                             "addObserver:ORVFunc selector:boostLevelChanged: "
                                             "name:\"TRX-SELVA BoostLevel Change\" object:nil",
                                             "addObserver:ORVFunc selector:inputAudioChanged: "
                                             "name:\"TRX-LUMEN InputAudio Change\" object:nil"));
  ASSERT_EQ(centre.Observers().size(), 4U);
  EXPECT_THAT(centre.Observers(), Each(centre.Observers().front()));
  EXPECT_EQ([static_cast<id>(const_cast<void *>(centre.Observers().front())) retainCount], 1U);
}

TEST(RegisteredMessage, TheMessageIsNotSentByARefusedRegistrationNorByUnregistering) {
  const CentreRecorder centre;
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kBrisk, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(ORV_RegisterMidiChannelChangedCallback(kSelva, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(ORV_RegisterMidiKeyModeChangedCallback(kVolt, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(ORV_UnregisterBoostLevelChangedCallback(kSelva, nullptr), kSuccess);
  EXPECT_EQ(ORV_UnregisterMidiKeyModeChangedCallback(kVolt, nullptr), kBadArgument);
  EXPECT_THAT(centre.Messages(), IsEmpty());
}

TEST(TheObserver, TheObserverIsMadeByTheFirstRegistrationThatIsNotRefused) {
  const CentreRecorder centre;
  method_exchangeImplementations(class_getClassMethod([NSObject class], @selector(alloc)),
                                 class_getClassMethod([NSObject class], @selector(countedAlloc)));
  EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(kBrisk, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(ORV_RegisterOutputAudioChangedCallback(12, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kBrisk, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(ORV_RegisterMidiChannelChangedCallback(kSelva, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(ORV_RegisterMidiKeyModeChangedCallback(kVolt, CallsNothing, nullptr), kBadArgument);
  EXPECT_EQ(observersMade, 0);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, CallsNothing, nullptr), kSuccess);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, CallsNothing, nullptr), kSuccess);
  EXPECT_EQ(observersMade, 1);
}

TEST(RaisedException, AnExceptionInAnswerToAPostEndsThere) {
  ExpectQuietSuccess([] {
    CentreRecorder centre;
    centre.Raise();
    Announce(inputAudioChange, 11, 1, 7);
    Announce(boostLevel.change, 5, 3);
    EXPECT_THAT(centre.Messages(), SizeIs(2));
  });
}

TEST(RaisedException, AnExceptionInAnswerToAnObservationEndsThere) {
  ExpectQuietSuccess([] {
    CentreRecorder centre;
    centre.Raise();
    EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, CallsNothing, nullptr), kSuccess);
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, CallsNothing, nullptr), kSuccess);
    EXPECT_THAT(centre.Messages(), SizeIs(2));
  });
}

}  // namespace
}  // namespace orv
