#pragma once

#include <QLabel>
#include <QMenu>
#include <QWidget>

#include "ActionButton.h"
#include "SetupState.h"

namespace setup {

/// How well it goes with the mixers: the colour of the dot.
enum class Health { kAway, kGood, kBad };

/// Which mixers are there and how they are, and the menus.
class Header : public QWidget {
  Q_OBJECT

 public:
  explicit Header(QWidget *parent = nullptr);

  void Refresh(const SetupState &state);

  /// Shows the profile that is in use; empty for none.
  void ShowProfile(const QString &profile);

  ActionButton &ProfilesButton() { return *profiles_; }
  ActionButton &MoreButton() { return *more_; }

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  Health health_ = Health::kAway;
  QLabel *name_;
  QLabel *details_;
  ActionButton *profiles_;
  ActionButton *more_;
};

}  // namespace setup
