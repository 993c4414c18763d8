#include "SetupState.h"

#include <algorithm>

#include "Words.h"

namespace setup {
namespace {

constexpr std::chrono::milliseconds kBetweenSelectorLooks{1500};
constexpr std::chrono::milliseconds kBetweenSilentLooks{8000};

/// How long the service manager may need after a mixer was plugged in.
constexpr std::chrono::milliseconds kUntilPlugInSent{4000};

/// How many steps can be undone.
constexpr std::size_t kUndoSteps = 100;

QStringList ChoicesOf(const client::Setting &setting) {
  QStringList choices;
  for (const std::string &choice : setting.Choices()) choices << QString::fromStdString(choice);
  return choices;
}

/// Whether both looks saw the same mixers, so that what one of them was answered still counts.
bool HaveSameMixers(const Look &left, const Look &right) {
  return left.model == right.model && left.isConnected == right.isConnected &&
         std::equal(
             left.mixers.begin(), left.mixers.end(), right.mixers.begin(), right.mixers.end(),
             [](const client::MixerResult &one, const client::MixerResult &other) {
               return one.mixer.bus == other.mixer.bus &&
                      one.mixer.address == other.mixer.address && one.refusal == other.refusal;
             });
}

std::string KeyOf(const client::Setting &setting) {
  return std::string(setting.kind->name) + std::to_string(setting.channel);
}

/// The setting among those shown; null when the model that is shown does not have it.
template <typename Settings>
auto FindIn(Settings &settings, const client::Setting &setting) {
  const auto found = std::find_if(
      settings.begin(), settings.end(),
      [&setting](const ShownSetting &shown) { return IsSame(shown.setting, setting); });
  return found == settings.end() ? nullptr : &*found;
}

}  // namespace

bool IsSame(const client::Setting &left, const client::Setting &right) {
  return left.kind == right.kind && left.model == right.model && left.channel == right.channel;
}

SetupState::SetupState(const client::Model &usual, int32_t language)
    : usual_(&usual), language_(language), model_(&usual) {
  Show(usual);
  selectorTimer_.setInterval(kBetweenSelectorLooks);
  silentTimer_.setInterval(kBetweenSilentLooks);
  plugTimer_.setSingleShot(true);
  connect(&plugTimer_, &QTimer::timeout, this, &SetupState::TellWhatPlugInSent);
  connect(&selectorTimer_, &QTimer::timeout, this, &SetupState::LookAgain);
  connect(&silentTimer_, &QTimer::timeout, this, &SetupState::LookAgain);
  connect(&listener_, &ChangeListener::Announced, this, [this](const client::Setting &setting) {
    if (setting.model == model_) LookAtFiles();
  });
  connect(&listener_, &ChangeListener::FilesChanged, this, [this] {
    LookAtFiles();
    Q_EMIT FilesChanged();
  });
  connect(&listener_, &ChangeListener::MixersChanged, this, &SetupState::LookAgain);
  connect(&listener_, &ChangeListener::BusReached, this, [this](bool isReached) {
    if (isReached == isBusReached_) return;
    isBusReached_ = isReached;
    // What was announced meanwhile is lost.
    LookAtFiles();
    Q_EMIT Changed();
  });
}

void SetupState::Start() {
  CheckStorage();
  LookAgain();
  CheckAutoApply();
  listener_.Start();
}

std::vector<const ShownSetting *> SetupState::SettingsOfKind(std::string_view kind) const {
  std::vector<const ShownSetting *> found;
  for (const ShownSetting &shown : settings_) {
    if (shown.setting.kind->name == kind) found.push_back(&shown);
  }
  return found;
}

const ShownSetting *SetupState::Find(const client::Setting &setting) const {
  return FindIn(settings_, setting);
}

ShownSetting *SetupState::Editable(const client::Setting &setting) {
  return FindIn(settings_, setting);
}

bool SetupState::IsAnySending() const {
  return std::any_of(settings_.begin(), settings_.end(),
                     [](const ShownSetting &shown) { return shown.IsSending(); });
}

void SetupState::Show(const client::Model &model) {
  model_ = &model;
  usual_ = &model;
  settings_.clear();
  for (const client::Setting &setting : SettingsShown(model)) {
    const int32_t index = setting.Default();
    settings_.push_back({setting, ChoicesOf(setting), index, index});
  }
  undo_.clear();
}

void SetupState::Choose(const client::Setting &setting, int32_t index) {
  ChooseAll({{setting, index}});
}

void SetupState::ChooseAll(const std::vector<Change> &changes) {
  std::vector<Change> former;
  for (const Change &change : changes) {
    ShownSetting *shown = Editable(change.setting);
    if (shown == nullptr || shown->index == change.index) continue;
    if (shown->IsChoice()) former.push_back({shown->setting, shown->index});
    Send(*shown, change.index);
  }
  if (former.empty()) return;
  undo_.push_back(std::move(former));
  if (undo_.size() > kUndoSteps) undo_.erase(undo_.begin());
  Q_EMIT Changed();
}

void SetupState::Undo() {
  if (undo_.empty()) return;
  const std::vector<Change> former = std::move(undo_.back());
  undo_.pop_back();
  for (const Change &change : former) {
    if (ShownSetting *shown = Editable(change.setting)) Send(*shown, change.index);
  }
  Q_EMIT Changed();
}

void SetupState::Send(ShownSetting &shown, int32_t index) {
  const client::Setting setting = shown.setting;
  const unsigned order = ++lastOrder_;
  shown.index = index;
  shown.order = order;
  DropWarnings();
  sender_.Run(
      KeyOf(setting), this,
      [setting, index] {
        StoreResult result{.sent = client::Set(setting, static_cast<uint32_t>(index)),
                           .stored = setting.Current(),
                           .storage = {}};
        if (!result.sent.isStored) result.storage = client::CheckFolder();
        return result;
      },
      [this, setting, order](const StoreResult &result) { TakeSent(setting, order, result); });
  Q_EMIT Changed();
}

void SetupState::TakeSent(const client::Setting &setting, unsigned order,
                          const StoreResult &result) {
  ShownSetting *shown = Editable(setting);
  // A newer choice is on its way, or another model is shown.
  if (shown == nullptr || shown->order != order) return;
  shown->order = 0;
  shown->stored = result.stored;
  // What a mixer has is shown also where this computer could not keep it.
  if (result.sent.delivery.CountTaken() == 0) shown->index = result.stored;
  storageProblem_.reset();
  if (result.storage && !result.storage->IsGood()) storageProblem_ = result.storage;
  Q_EMIT Told(SentAsText(result.sent));
  Q_EMIT Changed();
  LookAgain();
}

void SetupState::SendAllAgain() {
  sender_.Run(
      "again", this,
      [model = model_] {
        SentAll all;
        for (const client::Setting &setting : SettingsShown(*model)) {
          if (client::ObstacleToAgain(setting) != client::AgainObstacle::kNone) {
            all.failed.push_back(setting);
            continue;
          }
          all.delivery.Add(client::SendAgain(setting).delivery);
          ++all.count;
        }
        return all;
      },
      [this](const SentAll &all) {
        Q_EMIT Told(SentAllAsText(all));
        LookAgain();
      });
  Q_EMIT Told(SendingAsText(look_));
}

void SetupState::LookAgain() {
  // First what is known at once, since asking may take long.
  sender_.Run(
      "look", this, [usual = usual_] { return LookAround(*usual); },
      [this](const Look &look) { TakeLook(look); });
  sender_.Run(
      "ask", this, [usual = usual_, language = language_] { return LookAndAsk(*usual, language); },
      [this](const Look &look) { TakeLook(look); });
}

void SetupState::LookAtFiles() {
  struct Files {
    std::vector<StoredChoice> stored;
    bool isAutoApplyOn;
  };
  sender_.Run(
      "files", this,
      [model = model_] {
        return Files{LookAtStored(*model), client::IsAutoApplyOn()};
      },
      [this](const Files &files) {
        TakeStored(files.stored);
        if (std::exchange(look_.isAutoApplyOn, files.isAutoApplyOn) == files.isAutoApplyOn) return;
        Q_EMIT Changed();
      });
}

void SetupState::CheckStorage() {
  sender_.Run("storage", this, client::CheckFolder, [this](const client::Check &check) {
    storageProblem_.reset();
    if (!check.IsGood()) storageProblem_ = check;
    Q_EMIT Changed();
  });
}

void SetupState::TurnAutoApply(bool on) {
  look_.isAutoApplyOn = on;
  sender_.Run(
      "auto-apply", this, [on] { return client::TurnAutoApply(on); },
      [this](int reason) {
        if (reason != 0) Q_EMIT Told(NotTurnedAsText(reason));
        LookAgain();
      });
  Q_EMIT Changed();
}

void SetupState::CheckAutoApply() {
  sender_.Run("obstacle", this, client::ObstacleToAutoApply,
              [this](client::AutoApplyObstacle obstacle) {
                autoApplyObstacle_ = obstacle;
                Q_EMIT Changed();
              });
}

// The service manager sends, and says in the journal what it did.
void SetupState::TellWhatPlugInSent() {
  sender_.Run("run", this, client::LastAutoApplyRun,
              [this](const std::optional<client::AutoApplyRun> &run) {
                constexpr std::chrono::seconds kRecent{30};
                if (run && std::chrono::system_clock::now() - run->time < kRecent) {
                  Q_EMIT Told(AutoApplyRunAsText(*run));
                }
              });
}

void SetupState::TakeLook(const Look &look) {
  const bool isOtherModel = look.model != model_;
  if (isOtherModel) Show(*look.model);
  const Look former = std::exchange(look_, look);
  const bool isPlugged = isReady_ && look.mixers.size() > former.mixers.size();
  if (isPlugged && IsAutoApplyWorking()) plugTimer_.start(kUntilPlugInSent);
  if (!look.isAsked && HaveSameMixers(former, look)) {
    look_.isAsked = former.isAsked;
    look_.silent = former.silent;
    look_.firmware = former.firmware;
    look_.selectors = former.selectors;
    look_.warnings = former.warnings;
  }
  if (!isReady_ || isOtherModel) {
    for (const StoredChoice &stored : look.stored) {
      ShownSetting *shown = Editable(stored.setting);
      if (!shown->IsSending()) shown->index = shown->stored = stored.index;
    }
  }
  if (isOtherModel) Q_EMIT ModelChanged();
  TakeStored(look.stored);
  if (look.isAsked || !look.CanSend()) TakeAnswers();
  UpdateTimers();
  Q_EMIT Changed();
  if (!std::exchange(isReady_, true)) Q_EMIT Ready();
}

void SetupState::TakeStored(const std::vector<StoredChoice> &stored) {
  for (const StoredChoice &choice : stored) {
    ShownSetting *shown = Editable(choice.setting);
    if (shown == nullptr || shown->IsSending() || shown->stored == choice.index) continue;
    shown->stored = choice.index;
    if (shown->index == choice.index) continue;
    shown->index = choice.index;
    DropWarnings();
    Q_EMIT Changed();
    Q_EMIT ChangedElsewhere(choice.setting);
    // A control tone may need a warning now.
    if (IsControlTone(choice.setting, choice.index)) LookAgain();
  }
}

// What passes no input selector needs no warning any more.
void SetupState::DropWarnings() {
  for (const ShownSetting &shown : settings_) {
    if (shown.setting.kind->extras.warning == nullptr) continue;
    if (IsControlTone(shown.setting, shown.index)) continue;
    std::erase_if(look_.warnings, [&shown](const Warning &warning) {
      return warning.channel == shown.setting.channel;
    });
  }
}

// Only the probe decides that a mixer answers again: one request may fail for ever.
void SetupState::TakeAnswers() {
  const bool wasSilent = std::exchange(isSilent_, !look_.silent.empty());
  if (wasSilent && !isSilent_ && look_.CanSend()) SendAllAgain();
}

void SetupState::SetWatched(bool isWatched) {
  isWatched_ = isWatched;
  UpdateTimers();
}

void SetupState::UpdateTimers() {
  const auto run = [](QTimer &timer, bool isWanted) {
    if (isWanted == timer.isActive()) return;
    if (isWanted) {
      timer.start();
    } else {
      timer.stop();
    }
  };
  run(selectorTimer_, isWatched_ && !look_.warnings.empty());
  run(silentTimer_, isSilent_);
}

}  // namespace setup
