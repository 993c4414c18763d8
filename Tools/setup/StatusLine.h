#pragma once

#include <QLabel>
#include <QTimer>

namespace setup {

/// The line at the foot of the window: what has just happened, for a while; otherwise what is the
/// matter as long as it lasts.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget *parent = nullptr);

  void Tell(const QString &text);
  void SetLasting(const QString &text);

 private:
  void Refresh();

  QString told_;
  QString lasting_;
  QTimer forget_;
};

}  // namespace setup
