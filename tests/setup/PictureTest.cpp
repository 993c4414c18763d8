// Pictures of the window in its states, compared with the kept ones: fonts may differ a little,
// nothing may be moved or cut.
//
// With TRX_PICTURES naming a folder, every picture is written there instead, in each language,
// theme and scale.
#include <QImage>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <filesystem>

#include "SetupDesk.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;

/// How a picture is taken.
struct View {
  std::string language;
  bool isDark;
  int scale;
};

std::string NameOf(const View &view) {
  return view.language + (view.isDark ? "-dark" : "-light") + (view.scale == 2 ? "@2x" : "");
}

/// The number of cells, of eight pixels of the kept picture, whose colours clearly differ: few
/// where letters differ a little, many where something was moved or cut.
int DifferingCells(const QImage &picture, const QImage &kept) {
  constexpr int kCell = 8;
  constexpr int kTolerance = 40;
  const QSize cells = kept.size() / kCell;
  const auto coarse = [&cells](const QImage &image) {
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  };
  const QImage one = coarse(picture);
  const QImage other = coarse(kept);
  int differing = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a(one.pixel(x, y));
      const QColor b(other.pixel(x, y));
      const int difference = std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                       std::abs(a.blue() - b.blue())});
      if (difference > kTolerance) ++differing;
    }
  }
  return differing;
}

class Picture : public SetupDesk, public testing::WithParamInterface<View> {
 protected:
  void SetUp() override {
    const View &view = GetParam();
    setenv("LANGUAGE", view.language.c_str(), 1);
    setenv("LC_ALL", "en_US.UTF-8", 1);
    if (view.scale != 1) setenv("QT_SCALE_FACTOR", std::to_string(view.scale).c_str(), 1);
    UseFont("Inter");
    UseColours({.isDark = view.isDark, .isHighContrast = false});
  }

  // Compares what is seen with the kept picture of this state, where there is one.
  void Take(const std::string &state) {
    Settle();
    const QImage picture = WhatIsSeen();
    const View &view = GetParam();
    const std::string name = state + '-' + NameOf(view) + ".png";
    if (const char *folder = std::getenv("TRX_PICTURES")) {
      const QString file = QString::fromStdString(std::string(folder) + '/' + name);
      ASSERT_TRUE(picture.save(file, "PNG", kSmallest));
      return;
    }
    // At the double scale everything is in the same places.
    const fs::path kept =
        fs::path(KEPT_PICTURES) / (state + '-' + NameOf({view.language, view.isDark, 1}) + ".png");
    if (!fs::exists(kept)) return;
    const QImage expected = QImage(QString::fromStdString(kept.string()));
    ASSERT_EQ(picture.size(), expected.size() * view.scale) << kept;
    EXPECT_LE(DifferingCells(picture, expected), kAllowed) << kept;
  }

 private:
  static constexpr int kSmallest = 0;
  /// Out of more than ten thousand.
  static constexpr int kAllowed = 25;

  // The window, and an open list or menu over it.
  QImage WhatIsSeen() {
    QPixmap seen = Window().grab();
    if (QWidget *popup = QApplication::activePopupWidget()) {
      QPainter(&seen).drawPixmap(Window().mapFromGlobal(popup->mapToGlobal(QPoint(0, 0))),
                                 popup->grab());
    }
    // Six bits a colour make half the file, and look the same.
    return seen.toImage()
        .convertToFormat(QImage::Format_RGB666)
        .convertToFormat(QImage::Format_RGB888);
  }
};

TEST_P(Picture, OneMixer) {
  Plug();
  OpenWindow();
  Take("one");
}

TEST_P(Picture, TwoMixersAndARoutingAcross) {
  Plug("TRX-SELVA", 2);
  OpenWindow();
  Choose("output1", 2);
  Choose("input2", 2);
  Choose("boost", 1);
  WaitUntil("all is stored", [this] { return Stored("boost") == 1 && Stored("input", 1) == 2; });
  Take("two");
}

TEST_P(Picture, NoMixer) {
  Mixers("plug 1234:5678");
  OpenWindow();
  Take("none");
}

TEST_P(Picture, MixerThatCannotBeOpened) {
  Plug();
  Mixers("fault 1 refuse");
  OpenWindow();
  Take("closed");
}

TEST_P(Picture, Warning) {
  Plug();
  TurnSelectors(1, 1);
  Mixers("set 1 selector 1 6");
  Mixers("set 1 port 1 0");
  OpenWindow();
  WaitUntil("the warning is there",
            [this] { return FindIn("input1Card", "warningLine").isVisible(); });
  Take("warning");
}

TEST_P(Picture, MixerThatDoesNotAnswer) {
  Plug("TRX-SELVA", 2);
  Mixers("fault 2 no-reply");
  OpenWindow();
  Take("silent");
}

TEST_P(Picture, OpenListOfSignals) {
  Plug();
  OpenWindow();
  QAbstractItemView &entries = OpenList("input1");
  PointAtEntry(entries, 2);
  Take("choosing");
  Press(Qt::Key_Escape);
  WaitUntil("the list is closed", [&entries] { return !entries.isVisible(); });
}

TEST_P(Picture, MenuOfProfiles) {
  Plug();
  RunElsewhere({"profile", "save", "Club"});
  RunElsewhere({"profile", "save", "Studio"});
  OpenWindow();
  // The menu runs the program until it is closed.
  QTimer seen;
  QObject::connect(&seen, &QTimer::timeout, [this] {
    if (QApplication::activePopupWidget() == nullptr) return;
    Take("profiles");
    Press(Qt::Key_Escape);
  });
  seen.start(20);
  Click(Find("profiles"));
}

TEST_P(Picture, ModelWithoutRouting) {
  Plug("TRX-VOLT");
  OpenWindow();
  Take("volt");
}

std::vector<View> AllViews() {
  std::vector<View> views;
  for (const char *language : {"en", "de", "ja"}) {
    for (const bool isDark : {false, true}) {
      for (const int scale : {1, 2}) views.push_back({language, isDark, scale});
    }
  }
  return views;
}

INSTANTIATE_TEST_SUITE_P(All, Picture, testing::ValuesIn(AllViews()), [](const auto &view) {
  std::string name = NameOf(view.param);
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '@'; }, '_');
  return name;
});

}  // namespace
}  // namespace trxtest
