#include "PluggedInCard.h"

#include "Words.h"

namespace setup {
PluggedInCard::PluggedInCard(SetupState &state, QWidget *parent)
    : Card(tr("When a mixer is plugged in"), parent),
      state_(state),
      switch_(new ToggleSwitch(tr("&Send my settings to it"), this)),
      obstacle_(new QuietLabel({}, this)) {
  setObjectName("pluggedInCard");
  switch_->setObjectName("sendWhenPluggedIn");
  switch_->setAccessibleDescription(tr("When a mixer is plugged in"));
  obstacle_->setObjectName("sendWhenPluggedInObstacle");
  obstacle_->setWordWrap(true);
  Add(switch_);
  Add(obstacle_);
  connect(switch_, &QCheckBox::clicked, &state_, &SetupState::TurnAutoApply);
  Refresh();
}

void PluggedInCard::Refresh() {
  switch_->setChecked(state_.IsAutoApplyOn());
  const QString obstacle = AutoApplyObstacleAsText(state_.ObstacleToAutoApply());
  obstacle_->setText(obstacle);
  obstacle_->setVisible(!obstacle.isEmpty());
  switch_->setAccessibleDescription((tr("When a mixer is plugged in") + ". " + obstacle).trimmed());
}

}  // namespace setup
