#pragma once

#include <QPushButton>

namespace setup {

/// A button in the window's look; one with a menu shows an arrow.
class ActionButton : public QPushButton {
  Q_OBJECT

 public:
  explicit ActionButton(const QString &text, QWidget *parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent *event) override;
};

/// The arrow of lists and menus, pointing down or up.
void DrawArrow(QPainter &painter, const QPointF &middle, bool isUp, const QColor &colour);

}  // namespace setup
