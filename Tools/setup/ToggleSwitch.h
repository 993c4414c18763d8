#pragma once

#include <QCheckBox>

namespace setup {

/// A check box that looks like a switch; its text stands before it and wraps.
class ToggleSwitch : public QCheckBox {
  Q_OBJECT

 public:
  explicit ToggleSwitch(const QString &text, QWidget *parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool hitButton(const QPoint &position) const override;

 private:
  QRect TextArea(const QRect &area) const;
};

}  // namespace setup
