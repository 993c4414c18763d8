// Notifications between two processes, through the daemon.
#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../../support/Constants.h"
#include "NotificationDaemon.h"
#include "RunLoop.h"
#include "Setting.h"

namespace orv {
namespace {

using trxtest::kArden;
using trxtest::kHalden;
using trxtest::kLumen;
using trxtest::kMorrow;
using trxtest::kSelva;
using trxtest::kSuccess;
using trxtest::kVolt;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Notifications : public testing::Test {
 protected:
  // One line a call: what the host wrote into its context, then the arguments.
  std::vector<std::string> calls_;

  struct Context {
    std::vector<std::string> *calls;
    const char *name;
  };

  static void Called(std::int32_t channel, std::int32_t index, void *context) {
    const auto *listener = static_cast<const Context *>(context);
    listener->calls->push_back(std::string(listener->name) + " " + std::to_string(channel) + " " +
                               std::to_string(index));
  }
  static void Called(std::int32_t index, void *context) {
    const auto *listener = static_cast<const Context *>(context);
    listener->calls->push_back(std::string(listener->name) + " " + std::to_string(index));
  }

  // Runs another process that makes these announcements, one an argument of announcer.mm.
  static void AnnounceElsewhere(std::vector<std::string> announcements) {
    announcements.insert(announcements.begin(), ANNOUNCER);
    std::vector<char *> arguments;
    for (std::string &announcement : announcements) arguments.push_back(announcement.data());
    arguments.push_back(nullptr);
    const pid_t process = fork();
    if (process == 0) {
      execv(ANNOUNCER, arguments.data());
      _exit(127);
    }
    int status = 0;
    ASSERT_EQ(waitpid(process, &status, 0), process);
    ASSERT_EQ(status, 0);
  }

  // Runs the run loop until the last announcement of a test has come: what one observation had
  // before has come by then. Several observations have no order among them.
  bool HasCome(const std::string &last) {
    return RunLoopUntil([&] { return !calls_.empty() && calls_.back() == last; });
  }

  bool HaveCome(std::size_t count) {
    return RunLoopUntil([&] { return calls_.size() >= count; });
  }

  const trxtest::NotificationDaemon daemon_;
  Context selva_ = {&calls_, "selva"};
  Context arden_ = {&calls_, "arden"};
  Context volt_ = {&calls_, "volt"};
};

TEST_F(Notifications, NotificationsReachTheCallbackOfTheirKindAndModelInAnotherProcess) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, Called, &selva_), kSuccess);
  ASSERT_EQ(ORV_RegisterOutputAudioChangedCallback(kArden, Called, &arden_), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &selva_), kSuccess);
  ASSERT_EQ(ORV_RegisterMidiChannelChangedCallback(kVolt, Called, &volt_), kSuccess);
  AnnounceElsewhere(
      {"input=11,1,7", "output=0,-2,2147483647", "boost=0,1", "boost=11,-3", "midi=1,15"});
  EXPECT_TRUE(HaveCome(4));
  EXPECT_THAT(calls_,
              UnorderedElementsAre("selva 1 7", "arden -2 2147483647", "selva -3", "volt 15"));
}

TEST_F(Notifications, NotificationsReachTheProcessThatAnnouncesToo) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &selva_), kSuccess);
  Announce(boostLevel.change, 11, 2);
  EXPECT_THAT(calls_, IsEmpty()) << "inside the announcement";
  EXPECT_TRUE(HasCome("selva 2"));
  EXPECT_THAT(calls_, ElementsAre("selva 2"));
}

TEST_F(Notifications, NotificationsCallOnceForEachRegistrationTheCallbackRegisteredLast) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &arden_), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &volt_), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &selva_), kSuccess);
  AnnounceElsewhere({"boost=11,1"});
  EXPECT_TRUE(HaveCome(3));
  AnnounceElsewhere({"boost=11,2"});
  EXPECT_TRUE(HaveCome(6));
  EXPECT_THAT(calls_, UnorderedElementsAre("selva 1", "selva 1", "selva 1", "selva 2", "selva 2",
                                           "selva 2"));
}

// A kind of change for which the observer's class has no operation.
LastPosted faderInfo;
ChangeKind<IndexCallback> faderChange = {" Fader Change", Delivery::kPlain, faderInfo};

TEST_F(Notifications, NotificationsOfAKindThatTheLibraryGotLaterReachItsCallback) {
  ASSERT_EQ(Register<IndexCallback>(faderChange, kSelvaOnly, 11, Called, &selva_), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &arden_), kSuccess);
  AnnounceElsewhere({"TRX-SELVA Fader Change={ ProductID = <*I11>; Index = <*I2>; }"});
  EXPECT_TRUE(HasCome("selva 2"));
  EXPECT_THAT(calls_, ElementsAre("selva 2"));
}

TEST_F(Notifications, NotificationsCallNothingOnceUnregistered) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &selva_), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kArden, Called, &arden_), kSuccess);
  ASSERT_EQ(ORV_UnregisterBoostLevelChangedCallback(kSelva, nullptr), kSuccess);
  AnnounceElsewhere(
      {"boost=11,1", "TRX-SELVA BoostLevel Change={ ProductID = <*I0>; Index = <*I2>; }"});
  EXPECT_TRUE(HasCome("arden 2"));
  EXPECT_THAT(calls_, ElementsAre("arden 2"));
}

TEST_F(Notifications, NotificationsGoByTheModelInTheDictionaryNotInTheName) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &selva_), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kArden, Called, &arden_), kSuccess);
  AnnounceElsewhere({"TRX-SELVA BoostLevel Change={ ProductID = <*I0>; Index = <*I5>; }"});
  EXPECT_TRUE(HasCome("arden 5"));
  EXPECT_THAT(calls_, ElementsAre("arden 5"));
}

TEST_F(Notifications, NotificationsReadAMissingKeyAsZero) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kArden, Called, &arden_), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, Called, &selva_), kSuccess);
  AnnounceElsewhere({"TRX-SELVA InputAudio Change={ ProductID = <*I11>; Index = <*I4>; }",
                     "TRX-SELVA InputAudio Change={ ProductID = <*I11>; Channel = <*I2>; }",
                     "TRX-SELVA InputAudio Change={ Channel = <*I1>; Index = <*I6>; }",
                     "TRX-SELVA InputAudio Change={}",
                     "TRX-SELVA InputAudio Change=", "input=11,1,1"});
  EXPECT_TRUE(HasCome("selva 1 1"));
  EXPECT_THAT(calls_, ElementsAre("selva 0 4", "selva 2 0", "arden 1 6", "arden 0 0", "arden 0 0",
                                  "selva 1 1"));
}

TEST_F(Notifications, NotificationsOfAnotherShapeOrOfNoModelAreIgnored) {
  for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow, kSelva}) {
    ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(product, Called, &selva_), kSuccess);
  }
  AnnounceElsewhere({"TRX-SELVA BoostLevel Change={ ProductID = <*I12>; Index = <*I1>; }",
                     "TRX-SELVA BoostLevel Change={ ProductID = <*I-1>; Index = <*I1>; }",
                     "TRX-SELVA BoostLevel Change={ ProductID = <*I2147483647>; Index = <*I1>; }",
                     "TRX-SELVA BoostLevel Change={ ProductID = eleven; Index = <*I1>; }",
                     "TRX-SELVA BoostLevel Change={ ProductID = <*I11>; Index = \"1\"; }",
                     "TRX-SELVA BoostLevel Change={ ProductID = <*I11>; Index = (<*I1>); }",
                     "TRX-SELVA BoostLevel Change={ ProductID = <*I11>; Index = {}; }",
                     "TRX-SELVA BoostLevel Change={ ProductID = <*I11>; Index = <0b>; }",
                     "boost=11,3"});
  EXPECT_TRUE(HasCome("selva 3"));
  EXPECT_THAT(calls_, ElementsAre("selva 3"));
}

TEST_F(Notifications, NotificationsMayCarryAnythingThatIsNotRead) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, Called, &selva_), kSuccess);
  AnnounceElsewhere(
      {"TRX-SELVA BoostLevel Change={ ProductID = <*I11>; Index = <*I1>; Else = x; }",
       "TRX-SELVA BoostLevel Change={ ProductID = <*I11>; Index = <*I2>; Channel = x; }",
       "boost=11,3"});
  EXPECT_TRUE(HasCome("selva 3"));
  EXPECT_THAT(calls_, ElementsAre("selva 1", "selva 2", "selva 3"));
}

}  // namespace
}  // namespace orv
