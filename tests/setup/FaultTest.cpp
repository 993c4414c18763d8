// Mixers that refuse, do not answer or vanish: the window says so, keeps the choice, and stays
// usable meanwhile.
#include "SetupDesk.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class Fault : public SetupDesk {};

TEST_F(Fault, ARefusedChoiceIsKeptAndTold) {
  Plug();
  Mixers("fault 1 stall usb-output-level");
  OpenWindow();
  Choose("boost", 0);
  WaitForStatus("Kept, but not sent: SIM00001 refused it.");
  EXPECT_EQ(Stored("boost"), 0);
  EXPECT_EQ(Shown("boost"), "-5 dB");
}

TEST_F(Fault, OneOfTwoMixersThatRefusesIsNamed) {
  Plug("TRX-SELVA", 2);
  Mixers("fault 2 stall usb-output-level");
  OpenWindow();
  Choose("boost", 0);
  WaitForStatus("Sent to SIM00001. SIM00002 refused it.");
}

TEST_F(Fault, WhileAMixerIsSilentTheWindowIsUsable) {
  Plug();
  OpenWindow();
  Mixers("fault 1 no-reply usb-output-level");
  ForgetRequests();
  Choose("boost", 0);
  WaitUntil("the request is on the wire", [this] { return !Mixers("log").empty(); });
  // The request goes on for seconds; these are shown before it ends.
  Choose("output1", 2);
  Choose("input1", 5);
  EXPECT_EQ(Shown("output1"), "AUX");
  EXPECT_EQ(Shown("input1"), "MIC");
  EXPECT_EQ(Status(), "Sending …");
  EXPECT_EQ(Written(), Lines{"1 0300 8003"});
  // Of several choices of one setting, the last is sent.
  Choose("input1", 6);
  Choose("input1", 7);
  WaitUntil("all is stored", [this] {
    return Stored("boost") == 0 && Stored("output", 0) == 2 && Stored("input", 0) == 7;
  });
  EXPECT_EQ(Written(), (Lines{"1 0300 8003", "1 0104 8016", "1 010a 8002"}));
}

TEST_F(Fault, AMixerThatDoesNotAnswerIsTold) {
  Plug();
  Mixers("fault 1 no-reply");
  OpenWindow();
  EXPECT_EQ(TextOf("mixerDetails"), "Connected, but does not answer");
}

TEST_F(Fault, AMixerThatAnswersAgainGetsAllSettings) {
  Plug();
  OpenWindow();
  Choose("output1", 2);
  WaitForStatus("Sent to one mixer.");
  Mixers("fault 1 no-reply");
  Choose("boost", 0);
  WaitUntil("it is told",
            [this] { return TextOf("mixerDetails") == "Connected, but does not answer"; });
  ForgetRequests();
  Mixers("clear 1");
  WaitUntil("the level is sent", [this] {
    const Lines written = Written();
    return std::find(written.begin(), written.end(), "1 0300 8003") != written.end();
  });
  WaitUntil("it is told", [this] { return TextOf("mixerDetails").startsWith("Connected  ·"); });
}

TEST_F(Fault, AMixerThatVanishesDuringAChoiceIsTold) {
  Plug();
  OpenWindow();
  Mixers("fault 1 vanish usb-output-level");
  Choose("boost", 0);
  WaitUntil("the missing mixer is told", [this] { return TextOf("mixerName") == "No mixer"; });
  EXPECT_EQ(Stored("boost"), 0);
  EXPECT_EQ(Shown("boost"), "-5 dB");
}

TEST_F(Fault, UnpluggingLeavesAnOpenListAlone) {
  Plug();
  OpenWindow();
  QAbstractItemView &entries = OpenList("input2");
  Mixers("unplug 1");
  WaitUntil("the missing mixer is told", [this] { return TextOf("mixerName") == "No mixer"; });
  EXPECT_TRUE(entries.isVisible());
  ClickEntry(entries, 5);
  WaitUntil("the choice is stored", [this] { return Stored("input", 1) == 5; });
  EXPECT_EQ(Shown("input2"), "MIC");
}

TEST_F(Fault, PluggingInAndOutIsFollowedWithoutAClick) {
  OpenWindow();
  for (int round = 0; round < 3; ++round) {
    Mixers(round == 0 ? "plug" : "replug 1");
    WaitUntil("the mixer is told", [this] { return TextOf("mixerName") == "TRX-SELVA"; });
    Mixers("unplug 1");
    WaitUntil("the missing mixer is told", [this] { return TextOf("mixerName") == "No mixer"; });
  }
}

TEST_F(Fault, AnotherModelShowsWhatThatModelHas) {
  Plug("TRX-SELVA");
  OpenWindow();
  Mixers("unplug 1");
  Plug("TRX-VOLT");
  WaitUntil("the other model is told", [this] { return TextOf("mixerName") == "TRX-VOLT"; });
  EXPECT_EQ(Window().findChild<QWidget *>("input1"), nullptr);
  EXPECT_EQ(Window().findChild<QWidget *>("output1"), nullptr);
  Choose("midi", 9);
  WaitUntil("the channel is sent", [this] { return Written() == Lines{"2 0900 8004"}; });
}

}  // namespace
}  // namespace trxtest
