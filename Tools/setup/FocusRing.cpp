#include "FocusRing.h"

#include <QApplication>
#include <QEvent>

#include "Theme.h"

namespace setup {
namespace {

bool isKeyboardUsed = false;

void NoteUse(bool isKeyboard) {
  if (isKeyboard == isKeyboardUsed) return;
  isKeyboardUsed = isKeyboard;
  // Mnemonics are underlined everywhere, or no more.
  for (QWidget *widget : QApplication::allWidgets()) widget->update();
}

}  // namespace

KeyboardUse::KeyboardUse(QObject *parent) : QObject(parent) { qApp->installEventFilter(this); }

bool KeyboardUse::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
    NoteUse(true);
  } else if (event->type() == QEvent::MouseButtonPress) {
    NoteUse(false);
  }
  return QObject::eventFilter(watched, event);
}

int MnemonicFlag() { return isKeyboardUsed ? Qt::TextShowMnemonic : Qt::TextHideMnemonic; }

void DrawFocusRing(QPainter &painter, const QWidget &control, const QRectF &around, double corner) {
  if (!isKeyboardUsed || !control.hasFocus()) return;
  painter.setPen(QPen(CurrentTheme().text, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(around, corner, corner);
}

}  // namespace setup
