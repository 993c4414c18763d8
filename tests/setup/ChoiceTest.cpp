// Every choice of every setting of every model: clicked, it is sent, stored and shown.
#include "SetupDesk.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

/// Wide enough for every choice, whatever the font.
constexpr QSize kWide{1160, 700};

/// A setting in the window, and what each of its choices sends, in the order of the library.
struct Row {
  const char *setting;
  std::string kind;
  int channel;
  /// wIndex of the write.
  std::string request;
  std::vector<std::string> values;
};

std::vector<Row> RoutingOfSelva() {
  return {
      {"output1", "output", 0, "8016", {"0100", "0101", "0104"}},
      {"output2", "output", 1, "8016", {"0200", "0201", "0204"}},
      {"output3", "output", 2, "8016", {"0300", "0301", "0304"}},
      {"input1",
       "input",
       0,
       "8002",
       {"0103", "0100", "0106", "0107", "0108", "0109", "010d", "010a"}},
      {"input2",
       "input",
       1,
       "8002",
       {"0203", "0200", "0206", "0207", "0208", "0209", "020d", "020a"}},
      {"input3", "input", 2, "8002", {"030a", "0311", "0312", "0307", "0308", "0309", "030d"}},
  };
}

Row BoostLevel() {
  return {"boost", "boost", client::kNoChannel, "8003", {"0300", "0200", "0100", "0000"}};
}

Row MidiChannel() {
  return {"midi",
          "midi",
          client::kNoChannel,
          "8004",
          {"0000", "0100", "0200", "0300", "0400", "0500", "0600", "0700", "0800", "0900", "0a00",
           "0b00", "0c00", "0d00", "0e00", "0f00"}};
}

class Choice : public SetupDesk {
 protected:
  // Ends with the first choice, so that each one is a change.
  void ExpectEveryChoice(const Row &row) {
    const auto count = static_cast<int>(row.values.size());
    for (int step = 1; step <= count; ++step) {
      const int index = (Stored(row.kind, row.channel) + 1) % count;
      ForgetRequests();
      Choose(row.setting, index);
      const std::string value = row.values.at(static_cast<std::size_t>(index));
      const Lines sent = {"1 " + value + ' ' + row.request};
      WaitUntil(row.setting + (" sends " + value), [&] { return Written() == sent; });
      WaitUntil("the choice is stored", [&] { return Stored(row.kind, row.channel) == index; });
      EXPECT_EQ(Shown(row.setting).isEmpty(), false) << row.setting << ' ' << index;
    }
  }

  void ExpectSettings(const QStringList &expected) {
    QStringList found;
    for (const char *name : {"output1", "output2", "output3", "output4", "input1", "input2",
                             "input3", "input4", "input5", "boost", "midi"}) {
      const auto *widget = Window().findChild<QWidget *>(name);
      if (widget != nullptr && widget->isVisible()) found << name;
    }
    EXPECT_EQ(found, expected);
  }
};

TEST_F(Choice, EveryOneOfSelvaIsSentStoredAndShown) {
  Plug("TRX-SELVA");
  OpenWindow();
  ExpectSettings({"output1", "output2", "output3", "input1", "input2", "input3", "boost"});
  for (const Row &row : RoutingOfSelva()) ExpectEveryChoice(row);
  ExpectEveryChoice(BoostLevel());
}

TEST_F(Choice, EveryOneOfVoltIsSentStoredAndShown) {
  Plug("TRX-VOLT");
  OpenWindow();
  Window().resize(kWide);
  ExpectSettings({"boost", "midi"});
  ExpectEveryChoice(BoostLevel());
  ExpectEveryChoice(MidiChannel());
}

class ChoiceOfModel : public Choice, public testing::WithParamInterface<std::string> {};

TEST_P(ChoiceOfModel, EveryLevelIsSentStoredAndShown) {
  Plug(GetParam());
  OpenWindow();
  Window().resize(kWide);
  ExpectSettings({"boost"});
  ExpectEveryChoice(BoostLevel());
}

INSTANTIATE_TEST_SUITE_P(All, ChoiceOfModel,
                         testing::Values("TRX-Arden", "TRX-HALDEN", "TRX-LUMEN", "TRX-MORROW"),
                         [](const auto &model) { return model.param.substr(4); });

TEST_F(Choice, GoesToEveryMixer) {
  Plug("TRX-SELVA", 2);
  OpenWindow();
  Choose("boost", 2);
  WaitForStatus("Sent to 2 mixers.");
  EXPECT_EQ(Written(), (Lines{"1 0100 8003", "2 0100 8003"}));
}

TEST_F(Choice, OfWhatIsChosenAlreadySendsNothing) {
  Plug();
  OpenWindow();
  Choose("output1", 2);
  WaitForStatus("Sent to one mixer.");
  ForgetRequests();
  Choose("output1", 2);
  // A later choice is sent after what came before it.
  Choose("boost", 0);
  WaitUntil("the level is sent", [this] { return !Written().empty(); });
  EXPECT_EQ(Written(), Lines{"1 0300 8003"});
}

TEST_F(Choice, WithoutAMixerIsStored) {
  OpenWindow();
  Choose("input2", 5);
  WaitUntil("the choice is stored", [this] { return Stored("input", 1) == 5; });
  EXPECT_EQ(Shown("input2"), "MIC");
}

TEST_F(Choice, IsUndoneByTheFormerOne) {
  Plug();
  OpenWindow();
  Choose("input1", 2);
  WaitUntil("the choice is stored", [this] { return Stored("input", 0) == 2; });
  ForgetRequests();
  Press(Qt::Key_Z, Qt::ControlModifier);
  WaitUntil("the former one is stored", [this] { return Stored("input", 0) == 0; });
  EXPECT_EQ(Written(), Lines{"1 0103 8002"});
  EXPECT_EQ(Shown("input1"), "CH1 Control Tone PHONO");
}

TEST_F(Choice, ByTheKeyboardAlone) {
  Plug();
  OpenWindow();
  Find("output1").findChild<QWidget *>("choice1")->setFocus();
  Press(Qt::Key_Right);
  WaitUntil("CH2 is stored", [this] { return Stored("output", 0) == 1; });
  Find("input3").setFocus();
  Press(Qt::Key_Down, Qt::AltModifier);
  WaitUntil("the list is open", [] { return QApplication::activePopupWidget() != nullptr; });
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  WaitUntil("Post CH1 Fader is stored", [this] { return Stored("input", 2) == 1; });
  EXPECT_EQ(Written(), (Lines{"1 0101 8016", "1 0311 8002"}));
}

}  // namespace
}  // namespace trxtest
