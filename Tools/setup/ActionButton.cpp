#include "ActionButton.h"

#include <QPainter>

#include "FocusRing.h"
#include "Theme.h"

namespace setup {
namespace {

constexpr double kArrowRoom = 22;

}  // namespace

ActionButton::ActionButton(const QString &text, QWidget *parent) : QPushButton(text, parent) {
  setFont(ScaledFont(1, QFont::Medium));
  setCursor(Qt::ArrowCursor);
  setAttribute(Qt::WA_Hover);
}

QSize ActionButton::sizeHint() const {
  const QSize letters = fontMetrics().size(Qt::TextShowMnemonic, text());
  const int arrow = menu() != nullptr && !property("plain").toBool() ? Scaled(kArrowRoom) : 0;
  return {letters.width() + Scaled(30) + arrow, qMax(Scaled(32), letters.height() + Scaled(12))};
}

void ActionButton::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  const double corner = ScaledReal(7);
  painter.setBrush(underMouse() || isDown() ? theme.fieldHover : theme.field);
  painter.setPen(theme.isHighContrast ? QPen(theme.text, 1.5) : QPen(Qt::NoPen));
  painter.drawRoundedRect(area, corner, corner);
  painter.setPen(isEnabled() ? theme.text : theme.quietText);
  QRect letters = rect();
  if (menu() != nullptr && !property("plain").toBool()) {
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const int room = Scaled(kArrowRoom);
    letters.adjust(isMirrored ? room : 0, 0, isMirrored ? 0 : -room, 0);
    const double arrow = isMirrored ? Scaled(20) : width() - Scaled(20);
    DrawArrow(painter, {arrow, height() / 2.0}, false, theme.text);
    painter.setPen(theme.text);
  }
  painter.drawText(letters, Qt::AlignCenter | MnemonicFlag(), text());
  DrawFocusRing(painter, *this, area, corner);
}

void DrawArrow(QPainter &painter, const QPointF &middle, bool isUp, const QColor &colour) {
  const double half = ScaledReal(5);
  const double rise = ScaledReal(isUp ? -2.8 : 2.8);
  painter.setPen(QPen(colour, ScaledReal(1.8), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF{{middle.x() - half, middle.y() - rise},
                                 {middle.x(), middle.y() + rise},
                                 {middle.x() + half, middle.y() - rise}});
}

}  // namespace setup
