// A warning stands where it applies, and goes away when the selector is turned.
#include "SetupDesk.h"

namespace trxtest {
namespace {

constexpr int kUsb = 6;
constexpr int kLine = 1;

class WarningShown : public SetupDesk {
 protected:
  // Whether the card of a recording channel shows a warning.
  bool IsWarned(const QString &setting) {
    return FindIn(setting + "Card", "warningLine").isVisible();
  }

  QString LineOf(const QString &setting) {
    return dynamic_cast<QAbstractButton &>(FindIn(setting + "Card", "warningLine")).text();
  }

  QLabel &WarningOf(const QString &setting) {
    return dynamic_cast<QLabel &>(FindIn(setting + "Card", "warningText"));
  }
};

TEST_F(WarningShown, ComesWithTheControlToneAndGoesWhenTheSelectorIsTurned) {
  Plug();
  OpenWindow();
  Choose("input1", 2);
  WaitUntil("the fader is stored", [this] { return Stored("input", 0) == 2; });
  TurnSelectors(1, kLine);
  Choose("input1", 1);
  WaitUntil("the warning is there", [this] { return IsWarned("input1"); });
  EXPECT_EQ(LineOf("input1"), "The input selector of CH1 is not on USB");
  EXPECT_EQ(WarningOf("input1").text(),
            "Your choice has been sent to the mixer, but the input selector of this channel is not "
            "set to USB. Turn it to the USB position for the port this computer is connected to.");
  TurnSelectors(1, kUsb);
  WaitUntil("the warning is gone", [this] { return !IsWarned("input1"); });
}

TEST_F(WarningShown, IsThereWhenTheWindowOpens) {
  Plug();
  TurnSelectors(1, kLine);
  OpenWindow();
  WaitUntil("both control tones are warned of",
            [this] { return IsWarned("input1") && IsWarned("input2"); });
  EXPECT_FALSE(IsWarned("input3"));
}

TEST_F(WarningShown, OnlyForControlTones) {
  Plug();
  TurnSelectors(1, kLine);
  OpenWindow();
  // The library has the same status for the first two signals of the third channel, and for no
  // mixer.
  for (const int index : {1, 0, 2}) {
    Choose("input3", index);
    WaitUntil("it is stored", [this, index] { return Stored("input", 2) == index; });
    EXPECT_FALSE(IsWarned("input3"));
  }
  Choose("input1", 2);
  WaitUntil("the warning of the first is gone", [this] { return !IsWarned("input1"); });
}

TEST_F(WarningShown, IsClosedAndOpenedByAClickOnItsLine) {
  Plug();
  TurnSelectors(1, kLine);
  OpenWindow();
  WaitUntil("the warning is there", [this] { return IsWarned("input1"); });
  const bool wasOpen = WarningOf("input1").isVisible();
  Click(FindIn("input1Card", "warningLine"));
  EXPECT_NE(WarningOf("input1").isVisible(), wasOpen);
  Click(FindIn("input1Card", "warningLine"));
  EXPECT_EQ(WarningOf("input1").isVisible(), wasOpen);
}

TEST_F(WarningShown, TellsOfTheSecondPort) {
  Plug();
  TurnSelectors(1, kLine);
  Mixers("set 1 port 1 0");
  OpenWindow();
  WaitUntil("the warning is there", [this] { return IsWarned("input2"); });
  EXPECT_EQ(
      WarningOf("input2").text(),
      "Your choice has been sent to the mixer, but the input selector of this channel is not "
      "set to the USB position for this computer. The computer is connected to the second USB "
      "port of the mixer. Turn the input selector to the USB position for that port.");
}

}  // namespace
}  // namespace trxtest
