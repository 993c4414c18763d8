// What other programs of the user set is followed, and takes nothing from the user's hands.
#include <QProcess>

#include "SetupDesk.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

constexpr const char *kSetElsewhere = "set by another program";

class Elsewhere : public SetupDesk {
 protected:
  bool IsMarked(const QString &setting) {
    const auto labels = Find(setting + "Card").findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
      return label->isVisible() && label->text() == kSetElsewhere;
    });
  }
};

TEST_F(Elsewhere, AChoiceIsShownAndMarked) {
  Plug();
  OpenWindow();
  RunElsewhere({"output", "1", "AUX"});
  WaitUntil("AUX is shown", [this] { return Shown("output1") == "AUX"; });
  EXPECT_TRUE(IsMarked("output1"));
  EXPECT_FALSE(IsMarked("output2"));
  EXPECT_EQ(Written(), Lines{"1 0104 8016"});
  WaitUntil("the mark is gone", [this] { return !IsMarked("output1"); });
}

TEST_F(Elsewhere, OwnChoicesAreNotMarked) {
  Plug();
  OpenWindow();
  Choose("output1", 1);
  WaitForStatus("Sent to one mixer.");
  // Announcements come in their order: this one is after the own one.
  RunElsewhere({"output", "2", "AUX"});
  WaitUntil("the other program's choice is marked", [this] { return IsMarked("output2"); });
  EXPECT_FALSE(IsMarked("output1"));
}

TEST_F(Elsewhere, AnOpenListKeepsTheUsersChoice) {
  Plug();
  OpenWindow();
  QAbstractItemView &entries = OpenList("input1");
  RunElsewhere({"input", "1", "MIC"});
  RunElsewhere({"output", "1", "AUX"});
  WaitUntil("the later change is shown", [this] { return Shown("output1") == "AUX"; });
  EXPECT_TRUE(entries.isVisible());
  ForgetRequests();
  ClickEntry(entries, 3);
  WaitUntil("the user's choice is stored", [this] { return Stored("input", 0) == 3; });
  EXPECT_EQ(Shown("input1"), "Cross Fader A");
  EXPECT_EQ(Written(), Lines{"1 0107 8002"});
}

TEST_F(Elsewhere, AListClosedWithoutAChoiceShowsWhatWasSetMeanwhile) {
  Plug();
  OpenWindow();
  OpenList("input1");
  RunElsewhere({"input", "1", "MIC"});
  RunElsewhere({"output", "1", "AUX"});
  WaitUntil("the later change is shown", [this] { return Shown("output1") == "AUX"; });
  Press(Qt::Key_Escape);
  WaitUntil("MIC is shown", [this] { return Shown("input1") == "MIC"; });
}

TEST_F(Elsewhere, TwoHundredChangesASecondLeaveTheWindowUsable) {
  OpenWindow();
  QProcess changes;
  changes.start(CHANGE_MAKER, {"600"});
  WaitUntil("changes arrive", [this] { return IsMarked("boost"); });
  Choose("output2", 2);
  Choose("input3", 4);
  EXPECT_EQ(Shown("output2"), "AUX");
  EXPECT_EQ(Shown("input3"), "Cross Fader B");
  WaitUntil("the other program is done", [&] { return changes.state() == QProcess::NotRunning; });
  ASSERT_EQ(changes.exitCode(), 0);
  // Its last one.
  WaitUntil("-19 dB is shown", [this] { return Shown("boost") == "-19 dB"; });
  WaitUntil("the user's choices are stored",
            [this] { return Stored("output", 1) == 2 && Stored("input", 2) == 4; });
  EXPECT_EQ(Stored("boost"), 3);
}

TEST_F(Elsewhere, WithoutABusTheFilesAreFollowed) {
  Bus().Stop();
  OpenWindow();
  WaitForStatus(
      "There is no session bus: changes made by other programs show up here a little later.");
  RunElsewhere({"boost", "-15"});
  WaitUntil("-15 dB is shown", [this] { return Shown("boost") == "-15 dB"; });
}

TEST_F(Elsewhere, ABusThatComesBackIsUsedAgain) {
  OpenWindow();
  EXPECT_EQ(Status(), "");
  Bus().Stop();
  WaitUntil("the missing bus is told",
            [this] { return Status().startsWith("There is no session bus"); });
  Bus().Start();
  WaitUntil("it is told no longer", [this] { return Status().isEmpty(); });
  RunElsewhere({"boost", "-5"});
  WaitUntil("-5 dB is shown", [this] { return Shown("boost") == "-5 dB"; });
}

TEST_F(Elsewhere, ANumberThatIsNoChoiceIsShownAsUnknown) {
  OpenWindow();
  RunElsewhere({"output", "1", "AUX"});
  RunElsewhere({"input", "1", "MIC"});
  WaitUntil("both are shown",
            [this] { return Shown("output1") == "AUX" && Shown("input1") == "MIC"; });
  const std::string file =
      ConfigurationFolder() + "/orvikaudio/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist";
  std::string text = ReadBytes(file);
  for (const std::string number : {"<integer>2</integer>", "<integer>5</integer>"}) {
    const auto place = text.find(number);
    ASSERT_NE(place, std::string::npos) << text;
    text.replace(place, number.size(), "<integer>77</integer>");
  }
  WriteBytes(file + ".new", text);
  ASSERT_EQ(std::rename((file + ".new").c_str(), file.c_str()), 0);
  WaitUntil("nothing is chosen",
            [this] { return Shown("output1").isEmpty() && Shown("input1").isEmpty(); });
  EXPECT_EQ(Find<QComboBox>("input1").placeholderText(), "Unknown choice");
}

}  // namespace
}  // namespace trxtest
