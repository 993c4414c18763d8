#pragma once

#include "Card.h"
#include "SetupState.h"
#include "ToggleSwitch.h"

namespace setup {

/// The card with the switch: whether a mixer that is plugged in gets the settings by itself, with
/// the window open or closed.
class PluggedInCard : public Card {
  Q_OBJECT

 public:
  PluggedInCard(SetupState &state, QWidget *parent);

  void Refresh();

 private:
  SetupState &state_;
  ToggleSwitch *switch_;
  QLabel *obstacle_;
};

}  // namespace setup
