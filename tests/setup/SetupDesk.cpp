#include "SetupDesk.h"

#include <QAbstractButton>
#include <QProcess>
#include <QWindow>
#include <array>
#include <sstream>

#include "../acceptance/simulated/CaseRunner.h"
#include "Accessibility.h"
#include "FocusRing.h"
#include "SetupStyle.h"
#include "Theme.h"
#include "Translations.h"

namespace trxtest {
namespace {

/// Until a test that waits gives up: not how fast the program must be.
constexpr int kPatienceMilliseconds = 90'000;

constexpr int kUsbPosition = 6;
// TRX-VOLT has as many, the others more; only these two channels have control tones here.
constexpr int kSelectors = 2;

/// A line of the wire log without its padding and its result, if it is a write.
std::optional<std::string> WriteIn(const std::string &line) {
  std::istringstream words(line);
  std::string unit;
  std::string number;
  std::string direction;
  std::string value;
  std::string index;
  std::string skipped;
  words >> unit >> number >> direction >> skipped >> skipped >> skipped >> value >> skipped >>
      index;
  if (direction != "OUT") return std::nullopt;
  return number + ' ' + value + ' ' + index;
}

/// Clicks in the window, as the display server does: what lies on top gets it.
void ClickAt(QWidget &widget, const QPoint &place, Qt::KeyboardModifiers modifiers) {
  QWidget *top = widget.window();
  QTest::mouseMove(top->windowHandle(), widget.mapTo(top, place));
  QTest::mouseClick(top->windowHandle(), Qt::LeftButton, modifiers, widget.mapTo(top, place));
}

QApplication *MakeApplication() {
  static int argumentCount = 1;
  static std::array<char *, 2> arguments = {const_cast<char *>("trx-setup"), nullptr};
  return new QApplication(argumentCount, arguments.data());
}

}  // namespace

SetupDesk::SetupDesk() : mixers_(ControlSocketIn(PrivateFolder())) {
  // A display with room for the window at the double scale.
  const std::string display = PrivateFolder() + "/display.json";
  WriteBytes(display,
             R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": 3200, "height": 2000,
                          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + display).c_str(), 1);
  setenv("TRX_SYSTEM_ROOT", BUILT_SYSTEM_ROOT, 1);
}

SetupDesk::~SetupDesk() { CloseWindow(); }

void SetupDesk::Plug(const std::string &model, int count) {
  for (int plugged = 0; plugged < count; ++plugged) {
    TurnSelectors(std::stoi(Mixers("plug " + model).front()), kUsbPosition);
  }
}

void SetupDesk::TurnSelectors(int unit, int position) {
  for (int channel = 0; channel < kSelectors; ++channel) {
    Mixers("set " + std::to_string(unit) + " selector " + std::to_string(channel) + ' ' +
           std::to_string(position));
  }
}

std::vector<std::string> SetupDesk::Written() {
  std::vector<std::string> written;
  for (const std::string &line : Mixers("log")) {
    if (const auto write = WriteIn(line)) written.push_back(*write);
  }
  return written;
}

void SetupDesk::OpenWindow() {
  if (!application_) application_.reset(MakeApplication());
  constexpr int kPointSize = 10;
  if (!font_.isEmpty()) QApplication::setFont(QFont(font_, kPointSize));
  QApplication::setStyle(new setup::SetupStyle);
  setup::UseTheme(colours_);
  setup::InstallAccessibility();
  // Owned by the application, as its other filters are.
  new setup::KeyboardUse(application_.get());
  const int32_t language = setup::InstallTranslations(*application_);
  state_ = std::make_unique<setup::SetupState>(client::DefaultModel(), language);
  window_ = std::make_unique<setup::SetupWindow>(*state_);
  QObject::connect(state_.get(), &setup::SetupState::Ready, window_.get(), &QWidget::show);
  state_->Start();
  WaitUntil("the window shows the mixers", [this] {
    const setup::Look &look = state_->LastLook();
    return window_->isVisible() && (look.isAsked || !look.CanSend());
  });
}

void SetupDesk::CloseWindow() {
  window_.reset();
  state_.reset();
}

QWidget &SetupDesk::FindIn(const QString &parent, const QString &name) {
  auto *found = Find(parent).findChild<QWidget *>(name);
  if (found == nullptr) throw std::runtime_error("nothing is called " + name.toStdString());
  return *found;
}

void SetupDesk::Click(QWidget &widget, Qt::KeyboardModifiers modifiers) {
  ClickAt(widget, widget.rect().center(), modifiers);
}

void SetupDesk::Choose(const QString &setting, int index) {
  if (qobject_cast<QComboBox *>(&Find(setting)) != nullptr) {
    ClickEntry(OpenList(setting), index);
  } else {
    Click(FindIn(setting, QString("choice%1").arg(index + 1)));
  }
}

QAbstractItemView &SetupDesk::OpenList(const QString &setting) {
  auto &list = Find<QComboBox>(setting);
  Click(list);
  WaitUntil("the list is open", [&list] { return list.view()->isVisible(); });
  return *list.view();
}

void SetupDesk::PointAtEntry(QAbstractItemView &entries, int row) {
  const QModelIndex entry = entries.model()->index(row, 0);
  QWidget &place = *entries.viewport();
  QWidget *top = place.window();
  QTest::mouseMove(top->windowHandle(), place.mapTo(top, entries.visualRect(entry).center()));
}

void SetupDesk::ClickEntry(QAbstractItemView &entries, int row) {
  const QModelIndex entry = entries.model()->index(row, 0);
  entries.scrollTo(entry);
  ClickAt(*entries.viewport(), entries.visualRect(entry).center(), {});
  WaitUntil("the list is closed", [&entries] { return !entries.isVisible(); });
}

void SetupDesk::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget *popup = QApplication::activePopupWidget();
  QTest::keyClick(popup != nullptr ? popup->windowHandle() : window_->windowHandle(), key,
                  modifiers);
}

QString SetupDesk::Shown(const QString &setting) {
  QWidget &control = Find(setting);
  if (const auto *list = qobject_cast<QComboBox *>(&control)) return list->currentText();
  for (const auto *button : control.findChildren<QAbstractButton *>()) {
    if (button->isChecked()) return button->text();
  }
  return {};
}

void SetupDesk::WaitUntil(const std::string &what, const std::function<bool()> &isSo) {
  if (!QTest::qWaitFor(isSo, kPatienceMilliseconds)) {
    throw std::runtime_error("this never happens: " + what);
  }
}

void SetupDesk::Settle() {
  WaitUntil("the window comes to rest", [this] {
    // What a job found may ask for another one.
    for (int round = 0; round < 3; ++round) {
      if (!state_->Jobs().WaitUntilDone(std::chrono::milliseconds(kPatienceMilliseconds)))
        return false;
      QCoreApplication::processEvents();
    }
    const QImage before = window_->grab().toImage();
    QCoreApplication::processEvents();
    return window_->grab().toImage() == before;
  });
}

void SetupDesk::WaitForStatus(const QString &text) {
  WaitUntil(text.toStdString() + " is told", [this, &text] { return Status() == text; });
}

int SetupDesk::Stored(const std::string &kind, int channel) {
  for (const client::Setting &setting : client::SettingsOf(state_->Model())) {
    if (setting.kind->name == kind && setting.channel == channel) return setting.Current();
  }
  throw std::runtime_error("no such setting: " + kind);
}

void SetupDesk::RunElsewhere(const QStringList &words) {
  QProcess program;
  program.start(TRXCTL, words);
  if (!program.waitForFinished(kPatienceMilliseconds)) throw std::runtime_error("trxctl hangs");
}

std::string SetupDesk::ConfigurationFolder() { return ConfigurationFolderIn(PrivateFolder()); }

}  // namespace trxtest
