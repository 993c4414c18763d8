#include "SettingCard.h"

#include <algorithm>
#include <chrono>
#include <numeric>

#include "Words.h"

namespace setup {
namespace {

constexpr std::chrono::milliseconds kGlow{2600};
constexpr std::chrono::milliseconds kNote{4000};

/// More choices than these stand in a list.
constexpr qsizetype kMostSegments = 5;

bool IsBoost(const client::Setting &setting) { return setting.kind->name == "boost"; }

/// What stands at the top of the card.
QString TitleOf(const client::Setting &setting) {
  return setting.kind->hasChannels ? UsbChannelAsText(setting.channel) : SettingAsText(setting);
}

/// The indices from left to right: boost levels from quiet to loud, which the library counts down.
std::vector<int> OrderOf(const ShownSetting &shown) {
  std::vector<int> order(static_cast<std::size_t>(shown.choices.size()));
  std::iota(order.begin(), order.end(), 0);
  if (IsBoost(shown.setting)) std::reverse(order.begin(), order.end());
  return order;
}

const Warning *WarningOf(const Look &look, const client::Setting &setting) {
  if (setting.kind->extras.warning == nullptr) return nullptr;
  const auto found =
      std::find_if(look.warnings.begin(), look.warnings.end(),
                   [&](const Warning &warning) { return warning.channel == setting.channel; });
  return found == look.warnings.end() ? nullptr : &*found;
}

}  // namespace

SettingCard::SettingCard(SetupState &state, const client::Setting &setting, QWidget *parent)
    : Card(TitleOf(setting), parent), state_(state), setting_(setting) {
  const std::string name = std::string(setting.kind->name) +
                           (setting.kind->hasChannels ? std::to_string(setting.channel + 1) : "");
  setObjectName(QString::fromStdString(name) + "Card");
  const ShownSetting &shown = *state.Find(setting);
  if (shown.choices.size() > kMostSegments) {
    MakeList(shown);
  } else {
    MakeSegments(shown);
  }
  control_->setObjectName(QString::fromStdString(name));
  Add(control_);
  if (setting.kind->extras.warning != nullptr) {
    warning_ = new WarningPanel(this);
    AddWide(warning_);
  }
  glow_.setSingleShot(true);
  note_.setSingleShot(true);
  connect(&glow_, &QTimer::timeout, this, &SettingCard::Mark);
  connect(&note_, &QTimer::timeout, this, &SettingCard::Refresh);
  Refresh();
}

void SettingCard::MakeSegments(const ShownSetting &shown) {
  const int tint = setting_.kind->hasChannels ? setting_.channel : -1;
  segments_ = new SegmentedChoice(shown.choices, OrderOf(shown), tint, this);
  const auto count = static_cast<int>(shown.choices.size());
  for (int index = 0; index < count; ++index) {
    Segment &segment = segments_->SegmentFor(index);
    segment.setObjectName(QString("choice%1").arg(index + 1));
    segment.setAccessibleName(
        tr("%1: %2", "setting: choice").arg(SettingAsText(setting_), shown.choices.at(index)));
    segment.setAccessibleDescription(SettingAsDescription(setting_));
    if (IsBoost(setting_)) segment.SetBars(count - index);
  }
  segments_->setAccessibleName(SettingAsText(setting_));
  segments_->setAccessibleDescription(SettingAsDescription(setting_));
  connect(segments_, &SegmentedChoice::Chosen, this, &SettingCard::Choose);
  connect(segments_, &SegmentedChoice::Pointed, this, [this](int index) {
    Q_EMIT PointedAt(true, index < 0 ? std::nullopt : std::optional(index));
  });
  control_ = segments_;
}

void SettingCard::MakeList(const ShownSetting &shown) {
  list_ = new SignalList(shown.choices, this);
  Title().setBuddy(list_);
  Title().setAccessibleName(SettingAsText(setting_));
  list_->setAccessibleName(SettingAsText(setting_));
  list_->setAccessibleDescription(SettingAsDescription(setting_));
  connect(list_, &SignalList::Chosen, this, &SettingCard::Choose);
  connect(list_, &SignalList::Pointed, this, [this](int index) {
    isPreviewing_ = index >= 0;
    Mark();
    Q_EMIT PointedAt(isPreviewing_ || underMouse(),
                     isPreviewing_ ? std::optional(index) : std::nullopt);
  });
  control_ = list_;
}

int SettingCard::PlugHeight() const { return control_->geometry().center().y(); }

void SettingCard::FocusControl() {
  const ShownSetting *shown = state_.Find(setting_);
  if (segments_ != nullptr) {
    segments_->SegmentFor(shown->IsChoice() ? shown->index : 0).setFocus();
  } else {
    list_->setFocus();
  }
}

void SettingCard::SetWarningOpen(bool isOpen) {
  if (warning_ != nullptr) warning_->SetOpen(isOpen);
}

void SettingCard::Refresh() {
  const ShownSetting *shown = state_.Find(setting_);
  if (shown == nullptr) return;
  if (segments_ != nullptr) segments_->Show(shown->index);
  if (list_ != nullptr) list_->Show(shown->index);
  if (warning_ != nullptr) warning_->Show(WarningOf(state_.LastLook(), setting_));
  const QString hint = IsBoost(setting_) ? tr("how loud you record") : QString();
  SetNote(note_.isActive() ? tr("set by another program") : hint);
  Mark();
}

void SettingCard::ShowElsewhere() {
  glow_.start(kGlow);
  note_.start(kNote);
  Refresh();
}

void SettingCard::Choose(int index) {
  glow_.stop();
  note_.stop();
  Q_EMIT Touched();
  state_.Choose(setting_, index);
}

void SettingCard::Mark() { SetMark(TintOfMark(), glow_.isActive()); }

const Tint *SettingCard::TintOfMark() const {
  const Theme &theme = CurrentTheme();
  const Tint &own = setting_.kind->hasChannels ? theme.Channel(setting_.channel) : theme.accent;
  if (glow_.isActive() || isPreviewing_) return &own;
  if (WarningOf(state_.LastLook(), setting_) != nullptr) return &theme.warning;
  return nullptr;
}

void SettingCard::enterEvent(QEnterEvent *event) {
  Card::enterEvent(event);
  Q_EMIT PointedAt(true, std::nullopt);
}

void SettingCard::leaveEvent(QEvent *event) {
  Card::leaveEvent(event);
  if (!isPreviewing_) Q_EMIT PointedAt(false, std::nullopt);
}

}  // namespace setup
