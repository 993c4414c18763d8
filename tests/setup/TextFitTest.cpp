// No text is cut, in any language: whatever is shown has the room that it needs.
#include "SetupDesk.h"

namespace trxtest {
namespace {

class TextFit : public SetupDesk, public testing::WithParamInterface<std::string> {
 protected:
  void SetUp() override {
    setenv("LANGUAGE", GetParam().c_str(), 1);
    setenv("LC_ALL", "en_US.UTF-8", 1);
    UseFont("Inter");
  }

  // In the window as it opens, and as small as it gets.
  void ExpectEverythingFits() {
    Settle();
    ExpectFits();
    Window().resize(Window().minimumSize());
    Settle();
    ExpectFits();
  }

 private:
  void ExpectFits() {
    int seen = 0;
    for (const auto *label : Window().findChildren<QLabel *>()) {
      if (!label->isVisible() || label->text().isEmpty()) continue;
      ++seen;
      const bool fits = label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                          : label->sizeHint().width() <= label->width();
      EXPECT_TRUE(fits) << GetParam() << ": " << label->text().toStdString();
      ExpectInWindow(*label, label->text());
    }
    for (const auto *button : Window().findChildren<QAbstractButton *>()) {
      if (!button->isVisible() || button->text().isEmpty()) continue;
      ++seen;
      EXPECT_LE(button->sizeHint().width(), button->width())
          << GetParam() << ": " << button->text().toStdString();
      if (button->hasHeightForWidth()) {
        EXPECT_LE(button->heightForWidth(button->width()), button->height())
            << GetParam() << ": " << button->text().toStdString();
      }
      ExpectInWindow(*button, button->text());
    }
    EXPECT_GT(seen, 10);
  }

  // The right column may scroll up and down, never to the side.
  void ExpectInWindow(const QWidget &widget, const QString &text) {
    const int left = widget.mapTo(&Window(), QPoint(0, 0)).x();
    EXPECT_GE(left, 0) << text.toStdString();
    EXPECT_LE(left + widget.width(), Window().width()) << text.toStdString();
  }
};

TEST_P(TextFit, OfAMixerWithWarnings) {
  Plug();
  TurnSelectors(1, 1);
  Mixers("set 1 port 1 0");
  OpenWindow();
  WaitUntil("the warnings are there",
            [this] { return FindIn("input2Card", "warningLine").isVisible(); });
  Click(FindIn("input2Card", "warningLine"));
  ExpectEverythingFits();
}

TEST_P(TextFit, OfAModelWithoutRouting) {
  Plug("TRX-VOLT");
  OpenWindow();
  ExpectEverythingFits();
}

TEST_P(TextFit, WithoutAMixer) {
  Mixers("plug 1234:5678");
  OpenWindow();
  ExpectEverythingFits();
}

TEST_P(TextFit, OfAMixerThatCannotBeOpened) {
  Plug();
  Mixers("fault 1 refuse");
  OpenWindow();
  ExpectEverythingFits();
}

TEST_P(TextFit, OfTwoMixersOneOfWhichRefuses) {
  Plug("TRX-SELVA", 2);
  Mixers("fault 2 stall usb-output-level");
  OpenWindow();
  Choose("boost", 0);
  RunElsewhere({"output", "1", "AUX"});
  WaitUntil("AUX is shown", [this] { return Shown("output1") == "AUX"; });
  WaitUntil("the level is stored", [this] { return Stored("boost") == 0; });
  ExpectEverythingFits();
}

INSTANTIATE_TEST_SUITE_P(All, TextFit,
                         testing::Values("en", "de", "es", "fr", "it", "ja", "ko", "nl", "pt", "ru",
                                         "zh_CN", "zh_TW"),
                         [](const auto &language) { return language.param; });

TEST_F(SetupDesk, ALanguageOfTheUserIsFollowed) {
  setenv("LANGUAGE", "de:ja", 1);
  setenv("LC_ALL", "en_US.UTF-8", 1);
  OpenWindow();
  EXPECT_EQ(TextOf("troubleTitle"), "Kein Mischpult gefunden");
}

}  // namespace
}  // namespace trxtest
