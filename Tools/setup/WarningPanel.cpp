#include "WarningPanel.h"

#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include "ActionButton.h"
#include "FocusRing.h"
#include "Theme.h"
#include "Words.h"

namespace setup {
namespace {

constexpr double kMargin = 16;
constexpr double kSign = 16;
constexpr double kArrowRoom = 36;

void DrawSign(QPainter &painter, const QRectF &area) {
  const Theme &theme = CurrentTheme();
  painter.setPen(
      QPen(theme.warning.line, ScaledReal(1.5), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(theme.warning.line);
  painter.drawPolygon(
      QPolygonF{{area.center().x(), area.top()}, area.bottomRight(), area.bottomLeft()});
  QFont font = ScaledFont(0.85, QFont::Bold);
  painter.setFont(font);
  painter.setPen(theme.isDark ? QColor("#2e2313") : QColor("#ffffff"));
  painter.drawText(area.adjusted(0, area.height() * 0.15, 0, 0), Qt::AlignCenter, "!");
}

}  // namespace

WarningLine::WarningLine(QWidget *parent) : QPushButton(parent) {
  setCheckable(true);
  setChecked(true);
  setFont(ScaledFont(1, QFont::DemiBold));
  setFocusPolicy(Qt::StrongFocus);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QRect WarningLine::TextArea(const QRect &area) const {
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const int before = Scaled(kMargin + kSign + 6);
  const int after = Scaled(kArrowRoom);
  return area.adjusted(isMirrored ? after : before, 0, isMirrored ? -before : -after, 0);
}

QSize WarningLine::sizeHint() const {
  return {minimumSizeHint().width(), fontMetrics().height() + Scaled(12)};
}

QSize WarningLine::minimumSizeHint() const {
  return {Scaled(2 * kMargin + kSign + kArrowRoom), fontMetrics().height() + Scaled(12)};
}

int WarningLine::heightForWidth(int width) const {
  const QRect room = TextArea({0, 0, width, QWIDGETSIZE_MAX});
  return fontMetrics().boundingRect(room, Qt::TextWordWrap, text()).height() + Scaled(12);
}

void WarningLine::SetText(const QString &text) {
  setText(text);
  FitText();
}

// The column can be scrolled, and a scroll area does not ask for the height that a width needs.
void WarningLine::FitText() { setMinimumHeight(heightForWidth(width())); }

void WarningLine::resizeEvent(QResizeEvent *event) {
  QPushButton::resizeEvent(event);
  FitText();
}

void WarningLine::paintEvent(QPaintEvent * /*event*/) {
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double size = ScaledReal(kSign);
  const double left = isMirrored ? width() - ScaledReal(kMargin) - size : ScaledReal(kMargin);
  DrawSign(painter, QRectF(left, (height() - size * 0.88) / 2, size, size * 0.88));
  const double arrow = ScaledReal(kMargin + 7);
  DrawArrow(painter, {isMirrored ? arrow : width() - arrow, height() / 2.0}, isChecked(),
            CurrentTheme().warningText);
  painter.setFont(font());
  painter.setPen(CurrentTheme().warningText);
  painter.drawText(TextArea(rect()), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextWordWrap,
                   text());
  DrawFocusRing(painter, *this, QRectF(rect()).adjusted(3, 2, -3, -2), ScaledReal(6));
}

WarningPanel::WarningPanel(QWidget *parent)
    : QWidget(parent), line_(new WarningLine(this)), text_(new QLabel(this)) {
  line_->setObjectName("warningLine");
  text_->setObjectName("warningText");
  text_->setWordWrap(true);
  text_->setContentsMargins(Scaled(kMargin), 0, Scaled(kMargin), Scaled(12));
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(line_);
  column->addWidget(text_);
  connect(line_, &QPushButton::toggled, this, [this](bool isOpen) {
    text_->setVisible(isOpen);
    line_->update();
  });
  text_->setFont(ScaledFont(0.94));
  text_->setForegroundRole(kWarningRole);
  hide();
}

void WarningPanel::Show(const Warning *warning) {
  setVisible(warning != nullptr);
  if (warning == nullptr) return;
  line_->SetText(WarningAsTitle(*warning));
  text_->setText(QString::fromStdString(warning->text));
  line_->setAccessibleDescription(text_->text());
}

void WarningPanel::SetOpen(bool isOpen) { line_->setChecked(isOpen); }

void WarningPanel::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // Round below, as the card is; a little inside its border.
  const QRectF area = QRectF(rect()).adjusted(1, 0, -1, -1);
  const double corner = ScaledReal(11);
  QPainterPath path;
  path.addRoundedRect(area.adjusted(0, -2 * corner, 0, 0), corner, corner);
  painter.setClipRect(rect());
  painter.setPen(QPen(CurrentTheme().warning.line, 1));
  painter.setBrush(CurrentTheme().warning.fill);
  painter.drawPath(path);
}

}  // namespace setup
