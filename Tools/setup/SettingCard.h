#pragma once

#include <QTimer>
#include <optional>

#include "Card.h"
#include "SegmentedChoice.h"
#include "SetupState.h"
#include "SignalList.h"
#include "WarningPanel.h"

namespace setup {

/// The card of one setting: its choices, and a warning where one applies.
class SettingCard : public Card {
  Q_OBJECT

 public:
  SettingCard(SetupState &state, const client::Setting &setting, QWidget *parent);

  const client::Setting &Setting() const { return setting_; }

  /// Where the cable is plugged in: the height of the choices.
  int PlugHeight() const;
  /// What takes the focus for this card.
  QWidget *Control() const { return control_; }
  void FocusControl();
  void SetWarningOpen(bool isOpen);

  /// Shows what the state says.
  void Refresh();
  /// Says for a while that another program has set this.
  void ShowElsewhere();

 Q_SIGNALS:
  /// The user has chosen something here.
  void Touched();
  /// The mouse or an open list is at this card, and at a choice, if at one.
  void PointedAt(bool isPointed, std::optional<int> choice);

 protected:
  void enterEvent(QEnterEvent *event) override;
  void leaveEvent(QEvent *event) override;

 private:
  void MakeSegments(const ShownSetting &shown);
  void MakeList(const ShownSetting &shown);
  void Choose(int index);
  void Mark();
  const Tint *TintOfMark() const;

  SetupState &state_;
  const client::Setting setting_;
  SegmentedChoice *segments_ = nullptr;
  SignalList *list_ = nullptr;
  QWidget *control_ = nullptr;
  /// Null for a setting that no warning is for.
  WarningPanel *warning_ = nullptr;
  bool isPreviewing_ = false;
  QTimer glow_;
  QTimer note_;
};

}  // namespace setup
