#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "Look.h"

namespace setup {

/// The line of a warning, which opens and closes the text below it.
class WarningLine : public QPushButton {
  Q_OBJECT

 public:
  explicit WarningLine(QWidget *parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  void SetText(const QString &text);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  /// Where the text stands, between the sign and the arrow.
  QRect TextArea(const QRect &area) const;
  void FitText();
};

/// A warning at the foot of a card: a line with a sign, and what to do below it.
class WarningPanel : public QWidget {
  Q_OBJECT

 public:
  explicit WarningPanel(QWidget *parent = nullptr);

  /// Shows a warning; null hides the panel.
  void Show(const Warning *warning);
  void SetOpen(bool isOpen);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  WarningLine *line_;
  QLabel *text_;
};

}  // namespace setup
