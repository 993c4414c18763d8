#pragma once

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "ActionButton.h"
#include "SetupState.h"

namespace setup {

/// The card in the middle of the window that says why no mixer can be set, and what to do.
class TroubleCard : public QWidget {
  Q_OBJECT

 public:
  explicit TroubleCard(QWidget *parent);

  /// Shows the first problem on the way to the mixers, or hides the card when there is none.
  void Refresh(const SetupState &state);

 Q_SIGNALS:
  void DetailsWanted();
  void Told(const QString &text);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void ShowChecks(const std::vector<client::Check> &checks);

  QLabel *title_;
  QLabel *text_;
  QVBoxLayout *checks_;
  QLabel *command_;
  ActionButton *copy_;
  ActionButton *details_;
};

}  // namespace setup
