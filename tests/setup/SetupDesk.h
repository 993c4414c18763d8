// What the tests of the setup application share: a desk with software mixers, a session bus and the
// window, which a user sees and touches.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Control/ControlClient.h"
#include "PrivateSessionBus.h"
#include "SetupState.h"
#include "SetupWindow.h"

namespace trxtest {

/// A case with software mixers (none at first), an empty settings folder, and a session bus. The
/// window is used as a person does: by mouse and keyboard events at what can be seen.
class SetupDesk : public testing::Test {
 protected:
  SetupDesk();
  ~SetupDesk() override;

  // --- The mixers ---

  /// Sends a command to the software mixers: see trx-mixer-ctl(1).
  std::vector<std::string> Mixers(const std::string &command) { return mixers_.Ask(command); }
  /// Plugs in mixers of a model, their input selectors on USB.
  void Plug(const std::string &model = "TRX-SELVA", int count = 1);
  /// Turns the selectors of all channels of a mixer.
  void TurnSelectors(int unit, int position);
  /// Every value written to the mixers so far: "1 0300 8003" for unit, value and index.
  std::vector<std::string> Written();
  void ForgetRequests() { Mixers("log clear"); }

  // --- The window ---

  /// The font and the colours, before the window is opened.
  void UseFont(const QString &family) { font_ = family; }
  void UseColours(const setup::Appearance &colours) { colours_ = colours; }

  /// Opens the window and waits until mixers and stored settings are shown.
  void OpenWindow();
  void CloseWindow();
  setup::SetupWindow &Window() { return *window_; }

  /// What has this name in the window; a failure of the test when there is none.
  template <typename Widget = QWidget>
  Widget &Find(const QString &name) {
    auto *found = window_->findChild<Widget *>(name);
    if (found == nullptr) throw std::runtime_error("nothing is called " + name.toStdString());
    return *found;
  }
  /// The same within another, such as "choice2" in "boost".
  QWidget &FindIn(const QString &parent, const QString &name);

  /// Clicks in the middle of what can be seen there, which need not be this widget.
  void Click(QWidget &widget, Qt::KeyboardModifiers modifiers = {});
  /// Chooses the entry with this number, from 0, in a row of choices or in a list.
  void Choose(const QString &setting, int index);
  /// Opens a list and leaves it open.
  QAbstractItemView &OpenList(const QString &setting);
  /// Points at an entry of an open list.
  void PointAtEntry(QAbstractItemView &entries, int row);
  /// Clicks an entry of an open list.
  void ClickEntry(QAbstractItemView &entries, int row);
  /// Presses a key where the focus is.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

  /// The chosen text of a setting; empty for none.
  QString Shown(const QString &setting);
  QString TextOf(const QString &label) { return Find<QLabel>(label).text(); }
  QString Status() { return TextOf("status"); }

  /// Lets the program run until something is so; a failure of the test when it never is.
  void WaitUntil(const std::string &what, const std::function<bool()> &isSo);
  /// Waits until every look and every choice is done, and the window shows it.
  void Settle();
  /// The same for a text that has to be told at the foot of the window.
  void WaitForStatus(const QString &text);

  // --- Other programs of the user ---

  /// The index stored for a setting, such as "output" with channel 0.
  int Stored(const std::string &kind, int channel = client::kNoChannel);
  /// Runs trxctl, with words such as "output 1 AUX", to its end.
  static void RunElsewhere(const QStringList &words);
  PrivateSessionBus &Bus() { return bus_; }
  static std::string ConfigurationFolder();

 private:
  PrivateSessionBus bus_;
  trxsim::ControlClient mixers_;
  QString font_;
  setup::Appearance colours_;
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<setup::SetupState> state_;
  std::unique_ptr<setup::SetupWindow> window_;
};

}  // namespace trxtest
