#pragma once

#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace setup {

/// Watches whether the user works with keys or with the mouse: a focus ring is shown after a key
/// only. One for the whole program.
class KeyboardUse : public QObject {
 public:
  explicit KeyboardUse(QObject *parent);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
};

/// How a text with a mnemonic is drawn: underlined for those who use keys.
int MnemonicFlag();

/// Draws the ring around a control that has the focus, for those who use keys.
void DrawFocusRing(QPainter &painter, const QWidget &control, const QRectF &around, double corner);

}  // namespace setup
