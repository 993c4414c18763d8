#pragma once

#include <QButtonGroup>
#include <QRadioButton>
#include <QWidget>
#include <functional>

#include "Theme.h"

namespace setup {

/// One of the choices that stand beside each other.
class Segment : public QRadioButton {
  Q_OBJECT

 public:
  Segment(const QString &text, int tint, QWidget *parent);

  /// Shows rising bars before the text, this many of them lit; 0 for no bars.
  void SetBars(int lit);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool hitButton(const QPoint &position) const override;

 private:
  void DrawBars(QPainter &painter, const QColor &colour, double left) const;

  int tint_;
  int litBars_ = 0;
};

/// A few choices beside each other, of which one is chosen; arrow keys choose at once.
class SegmentedChoice : public QWidget {
  Q_OBJECT

 public:
  /// @param texts  by index.
  /// @param order  the indices from left to right.
  /// @param tint   the USB channel whose colour marks the chosen one; -1 for none.
  SegmentedChoice(const QStringList &texts, const std::vector<int> &order, int tint,
                  QWidget *parent = nullptr);

  /// Shows a choice; a number that is none leaves nothing chosen.
  void Show(int index);
  Segment &SegmentFor(int index) { return *segments_.at(static_cast<std::size_t>(index)); }

 Q_SIGNALS:
  void Chosen(int index);
  /// The mouse is on a choice; -1 when it is on none.
  void Pointed(int index);

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QButtonGroup group_;
  std::vector<Segment *> segments_;
};

}  // namespace setup
