#include "ToggleSwitch.h"

#include <QPainter>

#include "FocusRing.h"
#include "Theme.h"

namespace setup {
namespace {

constexpr QSizeF kTrack{40, 22};
constexpr double kBetween = 12;

}  // namespace

ToggleSwitch::ToggleSwitch(const QString &text, QWidget *parent) : QCheckBox(text, parent) {
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QRect ToggleSwitch::TextArea(const QRect &area) const {
  const int room = Scaled(kTrack.width() + kBetween);
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  return area.adjusted(isMirrored ? room : 0, 0, isMirrored ? 0 : -room, 0);
}

QSize ToggleSwitch::minimumSizeHint() const {
  constexpr double kNarrowText = 100;
  return {Scaled(kTrack.width() + kBetween + kNarrowText), Scaled(kTrack.height() + 4)};
}

QSize ToggleSwitch::sizeHint() const { return minimumSizeHint(); }

int ToggleSwitch::heightForWidth(int width) const {
  const QRect room = TextArea({0, 0, width, QWIDGETSIZE_MAX});
  const int letters =
      fontMetrics().boundingRect(room, Qt::TextWordWrap | Qt::TextShowMnemonic, text()).height();
  return qMax(letters, Scaled(kTrack.height() + 4));
}

bool ToggleSwitch::hitButton(const QPoint &position) const { return rect().contains(position); }

void ToggleSwitch::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(theme.text);
  const int flags = static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading) | Qt::TextWordWrap;
  painter.drawText(TextArea(rect()), flags | MnemonicFlag(), text());
  const QSizeF size(ScaledReal(kTrack.width()), ScaledReal(kTrack.height()));
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const QRectF track(
      QPointF(isMirrored ? 1 : width() - size.width() - 1, (height() - size.height()) / 2), size);
  const double round = size.height() / 2;
  painter.setPen(theme.isHighContrast ? QPen(theme.text, 2) : QPen(Qt::NoPen));
  painter.setBrush(isChecked() ? theme.accent.fill : theme.away);
  painter.drawRoundedRect(track, round, round);
  const bool isAtRight = isChecked() != isMirrored;
  const QPointF middle(isAtRight ? track.right() - round : track.left() + round,
                       track.center().y());
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor("#ffffff"));
  painter.drawEllipse(middle, round - ScaledReal(3), round - ScaledReal(3));
  DrawFocusRing(painter, *this, track, round);
}

}  // namespace setup
