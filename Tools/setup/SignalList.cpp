#include "SignalList.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "ActionButton.h"
#include "FocusRing.h"
#include "Theme.h"

namespace setup {
namespace {

/// Draws an entry of the open list; the chosen one is bold.
class EntryPainter : public QStyledItemDelegate {
 public:
  explicit EntryPainter(const QComboBox &list, QObject *parent)
      : QStyledItemDelegate(parent), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width() + Scaled(24), qMax(Scaled(30), size.height() + Scaled(10))};
  }

  void paint(QPainter *painter, const QStyleOptionViewItem &option,
             const QModelIndex &index) const override {
    const Theme &theme = CurrentTheme();
    const bool isMarked = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillRect(option.rect, theme.card);
    const QRectF area = QRectF(option.rect).adjusted(4, 1, -4, -1);
    if (isMarked) {
      painter->setPen(Qt::NoPen);
      painter->setBrush(theme.accent.fill);
      painter->drawRoundedRect(area, ScaledReal(5), ScaledReal(5));
    }
    const bool isChosen = index.row() == list_.currentIndex();
    painter->setFont(ScaledFont(1, isChosen ? QFont::Bold : QFont::Normal));
    painter->setPen(isMarked ? theme.accent.onFill : theme.text);
    painter->drawText(area.adjusted(Scaled(8), 0, -Scaled(8), 0),
                      Qt::AlignVCenter | Qt::AlignLeading, index.data().toString());
    painter->restore();
  }

 private:
  const QComboBox &list_;
};

}  // namespace

SignalList::SignalList(const QStringList &choices, QWidget *parent) : QComboBox(parent) {
  constexpr int kWithoutScrolling = 20;
  addItems(choices);
  setFont(ScaledFont(1, QFont::Medium));
  setMaxVisibleItems(kWithoutScrolling);
  setPlaceholderText(tr("Unknown choice"));
  setItemDelegate(new EntryPainter(*this, this));
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(this, &QComboBox::activated, this, &SignalList::Chosen);
  connect(this, &QComboBox::highlighted, this, [this](int index) {
    if (isOpen_) Q_EMIT Pointed(index);
  });
}

void SignalList::Show(int index) {
  if (isOpen_) {
    later_ = index;
    return;
  }
  const QSignalBlocker quiet(this);
  setCurrentIndex(index < count() ? index : -1);
}

QSize SignalList::sizeHint() const {
  return {QComboBox::sizeHint().width(), qMax(Scaled(36), fontMetrics().height() + Scaled(14))};
}

QSize SignalList::minimumSizeHint() const {
  int widest = 0;
  for (int entry = 0; entry < count(); ++entry) {
    widest = qMax(widest, fontMetrics().horizontalAdvance(itemText(entry)));
  }
  return {widest + Scaled(48), sizeHint().height()};
}

void SignalList::showPopup() {
  isOpen_ = true;
  QComboBox::showPopup();
}

void SignalList::hidePopup() {
  QComboBox::hidePopup();
  if (!isOpen_) return;
  isOpen_ = false;
  Q_EMIT Pointed(-1);
  // Whoever chose in the list has the last word; the choice comes after this.
  const auto shown = std::exchange(later_, std::nullopt);
  if (shown) Show(*shown);
}

void SignalList::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  const double corner = ScaledReal(7);
  painter.setPen(theme.isHighContrast ? QPen(theme.text, 1.5) : QPen(Qt::NoPen));
  painter.setBrush(underMouse() ? theme.fieldHover : theme.field);
  painter.drawRoundedRect(area, corner, corner);
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const double fromEdge = ScaledReal(17);
  DrawArrow(painter, {isMirrored ? fromEdge : width() - fromEdge, height() / 2.0}, false,
            theme.quietText);
  painter.setPen(currentIndex() < 0 ? theme.quietText : theme.text);
  const QRect letters = rect().adjusted(Scaled(12), 0, -Scaled(12), 0);
  painter.drawText(letters, Qt::AlignVCenter | Qt::AlignLeading,
                   currentIndex() < 0 ? placeholderText() : currentText());
  DrawFocusRing(painter, *this, area, corner);
}

// Scrolling past a list must not set the mixer.
void SignalList::wheelEvent(QWheelEvent *event) { event->ignore(); }

}  // namespace setup
