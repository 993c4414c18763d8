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

 protected:
  void paintEvent(QPaintEvent *event) override;
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
  void changeEvent(QEvent *event) override;

 private:
  void Dress();

  WarningLine *line_;
  QLabel *text_;
};

}  // namespace setup
