#include "SegmentedChoice.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include "FocusRing.h"

namespace setup {
namespace {

constexpr int kBars = 4;
constexpr double kBarsWidth = 20;

}  // namespace

Segment::Segment(const QString &text, int tint, QWidget *parent)
    : QRadioButton(text, parent), tint_(tint) {
  setFont(ScaledFont(1, QFont::Medium));
  setAttribute(Qt::WA_Hover);
}

void Segment::SetBars(int lit) { litBars_ = lit; }

QSize Segment::sizeHint() const {
  // The chosen one is bold, and choosing must not move its neighbours.
  const QFontMetrics letters(ScaledFont(1, QFont::Bold));
  const int bars = litBars_ > 0 ? Scaled(kBarsWidth) : 0;
  return {letters.horizontalAdvance(text()) + bars + Scaled(12),
          qMax(Scaled(28), letters.height() + Scaled(8))};
}

bool Segment::hitButton(const QPoint &position) const { return rect().contains(position); }

void Segment::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  const Tint &tint = tint_ < 0 ? theme.accent : theme.Channel(tint_);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  const double corner = ScaledReal(6);
  painter.setPen(Qt::NoPen);
  if (isChecked()) {
    painter.setBrush(tint.fill);
    painter.drawRoundedRect(area, corner, corner);
  } else if (underMouse()) {
    painter.setBrush(theme.fieldHover);
    painter.drawRoundedRect(area, corner, corner);
  }
  const QColor colour = isChecked() ? tint.onFill : theme.text;
  painter.setFont(ScaledFont(1, isChecked() ? QFont::Bold : QFont::Medium));
  QRectF letters = rect();
  if (litBars_ > 0) {
    const double room = ScaledReal(kBarsWidth);
    const double width = painter.fontMetrics().horizontalAdvance(text());
    const double left = (letters.width() - width - room) / 2;
    DrawBars(painter, colour, left);
    letters.setLeft(left + room);
    letters.setWidth(width + 2);
  }
  painter.setPen(colour);
  // Texts of choices are the mixer's own, and read from left to right in every language.
  painter.setLayoutDirection(Qt::LeftToRight);
  painter.drawText(letters, Qt::AlignCenter, text());
  DrawFocusRing(painter, *this, area, corner);
}

void Segment::DrawBars(QPainter &painter, const QColor &colour, double left) const {
  const double ground = height() / 2.0 + ScaledReal(5);
  for (int bar = 0; bar < kBars; ++bar) {
    QColor shade = colour;
    if (bar >= litBars_) shade.setAlphaF(0.3F);
    const double tall = ScaledReal(3 + 2.6 * bar);
    painter.fillRect(QRectF(left + ScaledReal(4.2) * bar, ground - tall, ScaledReal(3), tall),
                     shade);
  }
}

SegmentedChoice::SegmentedChoice(const QStringList &texts, const std::vector<int> &order, int tint,
                                 QWidget *parent)
    : QWidget(parent), segments_(static_cast<std::size_t>(texts.size())) {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(Scaled(3), Scaled(3), Scaled(3), Scaled(3));
  row->setSpacing(Scaled(3));
  for (const int index : order) {
    auto *segment = new Segment(texts.at(index), tint, this);
    segment->installEventFilter(this);
    segments_.at(static_cast<std::size_t>(index)) = segment;
    group_.addButton(segment, index);
    row->addWidget(segment, 1);
  }
  connect(&group_, &QButtonGroup::idToggled, this, [this](int index, bool isChosen) {
    if (isChosen) Q_EMIT Chosen(index);
  });
}

void SegmentedChoice::Show(int index) {
  const QSignalBlocker quiet(group_);
  if (QAbstractButton *button = group_.button(index)) {
    button->setChecked(true);
  } else if (QAbstractButton *chosen = group_.checkedButton()) {
    group_.setExclusive(false);
    chosen->setChecked(false);
    group_.setExclusive(true);
  }
  // Tab enters at the chosen one. Where none is, Qt would leave only the last chosen one to Tab.
  for (Segment *segment : segments_) {
    const bool isEntry = segment->isChecked() || group_.checkedButton() == nullptr;
    segment->setFocusPolicy(isEntry ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

void SegmentedChoice::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(theme.isHighContrast ? QPen(theme.text, 1) : QPen(Qt::NoPen));
  painter.setBrush(theme.field);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), ScaledReal(8),
                          ScaledReal(8));
}

bool SegmentedChoice::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Enter) {
    Q_EMIT Pointed(group_.id(qobject_cast<QAbstractButton *>(watched)));
  } else if (event->type() == QEvent::Leave) {
    Q_EMIT Pointed(-1);
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace setup
