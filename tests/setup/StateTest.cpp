// Each thing that can be the matter is told, with the one thing to do.
#include <QClipboard>
#include <array>
#include <filesystem>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "SetupDesk.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;

class State : public SetupDesk {
 protected:
  QString Title() { return Find("trouble").isVisible() ? TextOf("troubleTitle") : QString(); }

  // Takes root's powers over files and devices, so that the rights of files apply as for any user.
  static void LoseRootsPowers() {
    if (geteuid() != 0) return;
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    const std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> none = {};
    ASSERT_EQ(syscall(SYS_capset, &header, none.data()), 0);
  }
};

TEST_F(State, OneMixer) {
  Plug();
  OpenWindow();
  EXPECT_EQ(TextOf("mixerName"), "TRX-SELVA");
  EXPECT_EQ(TextOf("mixerDetails"), "Connected  ·  Serial number SIM00001  ·  Firmware 1.00");
  EXPECT_EQ(Title(), "");
  EXPECT_EQ(Status(), "");
}

TEST_F(State, TwoMixers) {
  Plug("TRX-SELVA", 2);
  OpenWindow();
  EXPECT_EQ(TextOf("mixerName"), "2 mixers  ·  TRX-SELVA");
  EXPECT_EQ(TextOf("mixerDetails"), "Every setting goes to all of them: SIM00001, SIM00002");
}

TEST_F(State, NoMixer) {
  Mixers("plug 1234:5678");
  OpenWindow();
  EXPECT_EQ(TextOf("mixerName"), "No mixer");
  EXPECT_EQ(Title(), "No mixer found");
  EXPECT_TRUE(TextOf("troubleText").startsWith("Connect the mixer by USB and switch it on."));
}

TEST_F(State, AnotherProductOfTheMaker) {
  Mixers("plug 4f52:0020");
  OpenWindow();
  EXPECT_EQ(Title(), "This product has no settings here");
}

TEST_F(State, NoPermission) {
  Plug();
  Mixers("fault 1 deny");
  LoseRootsPowers();
  OpenWindow();
  EXPECT_EQ(Title(), "You may not open the mixer");
  EXPECT_EQ(TextOf("mixerDetails"), "Connected, but cannot be opened");
  Click(Find("copyCommand"));
  const QString command = TextOf("troubleCommand");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), command);
  EXPECT_TRUE(command.endsWith("sudo udevadm control --reload && sudo udevadm trigger"))
      << command.toStdString();
  Mixers("clear 1");
  Press(Qt::Key_F5);
  WaitUntil("the mixer is there", [this] { return Title().isEmpty(); });
}

TEST_F(State, HeldByAnotherProgram) {
  Plug();
  Mixers("fault 1 hold");
  LoseRootsPowers();
  OpenWindow();
  EXPECT_EQ(Title(), "Another program holds the mixer");
}

TEST_F(State, CannotBeOpened) {
  Plug();
  Mixers("fault 1 refuse");
  OpenWindow();
  EXPECT_EQ(Title(), "The mixer cannot be opened");
}

TEST_F(State, SettingsFolderNotWritable) {
  fs::create_directories(ConfigurationFolder());
  fs::permissions(ConfigurationFolder(), fs::perms(0555));
  LoseRootsPowers();
  OpenWindow();
  WaitUntil("it is told",
            [this] { return Status().startsWith("Your settings cannot be kept. The folder "); });
  EXPECT_TRUE(Status().endsWith(" is not writable. Give yourself the right to write to it."))
      << Status().toStdString();
}

TEST_F(State, DetailsAreThoseOfDiagnose) {
  Plug();
  OpenWindow();
  Press(Qt::Key_F1);
  WaitUntil("the details are there", [this] {
    const auto *details = Window().findChild<QLabel *>("detailsText");
    return details != nullptr && details->text().contains("SIM00001");
  });
  const QString text = TextOf("detailsText");
  for (const char *part :
       {"USB", "Mixer", "Permission", "Answer", "Session bus", "Settings folder", "Installation"}) {
    EXPECT_TRUE(text.contains(QString("<b>%1:</b>").arg(part))) << part;
  }
  Click(Find("closeDetails"));
  WaitUntil("they are closed",
            [this] { return Window().findChild<QLabel *>("detailsText") == nullptr; });
}

}  // namespace
}  // namespace trxtest
