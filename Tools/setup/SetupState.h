#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ChangeListener.h"
#include "Look.h"
#include "Sender.h"
#include "client/AutoApply.h"

namespace setup {

/// A setting as the window shows it.
struct ShownSetting {
  client::Setting setting;
  /// The texts of all choices.
  QStringList choices;
  /// What was chosen last, and where the cable is; not necessarily a choice.
  int32_t index = -1;
  /// What this computer kept last.
  int32_t stored = -1;
  /// The number of the order that is on its way; 0 for none.
  unsigned order = 0;

  bool IsSending() const { return order != 0; }
  bool IsChoice() const { return index >= 0 && index < choices.size(); }
};

/// A choice of a setting.
struct Change {
  client::Setting setting;
  int32_t index;
};

/// What came of sending several settings.
struct SentAll {
  client::Delivery delivery;
  std::size_t count = 0;
  /// Settings that could not be stored or sent.
  std::vector<client::Setting> failed = {};
};

/// What the window shows, and what it can do about it. Lives on the window's thread; nothing here
/// waits for a mixer, the session bus or a disk.
class SetupState : public QObject {
  Q_OBJECT

 public:
  /// @param usual     the model to show while no mixer tells another one.
  /// @param language  the number of the language of warnings.
  SetupState(const client::Model &usual, int32_t language);

  /// Begins to look and to listen.
  void Start();

  const client::Model &Model() const { return *model_; }
  const std::vector<ShownSetting> &Settings() const { return settings_; }
  std::vector<const ShownSetting *> SettingsOfKind(std::string_view kind) const;
  const ShownSetting *Find(const client::Setting &setting) const;

  /// The last look; without a model before the first.
  const Look &LastLook() const { return look_; }
  bool IsBusReached() const { return isBusReached_; }
  /// Why nothing can be stored; nothing when all is well.
  const std::optional<client::Check> &StorageProblem() const { return storageProblem_; }
  bool IsAnySending() const;

  /// Whether the settings are sent to a mixer that is plugged in, and what keeps that from working.
  bool IsAutoApplyOn() const { return look_.isAutoApplyOn; }
  client::AutoApplyObstacle ObstacleToAutoApply() const { return autoApplyObstacle_; }
  bool IsAutoApplyWorking() const {
    return IsAutoApplyOn() && autoApplyObstacle_ == client::AutoApplyObstacle::kNone;
  }
  void TurnAutoApply(bool on);

  /// Shows a choice and sends it. What is chosen already is left alone.
  void Choose(const client::Setting &setting, int32_t index);
  /// Shows and sends several choices, one after the other; undone in one step.
  void ChooseAll(const std::vector<Change> &changes);
  bool CanUndo() const { return !undo_.empty(); }
  void Undo();
  /// Sends everything that is stored once more.
  void SendAllAgain();
  /// Looks at mixers and files anew.
  void LookAgain();

  /// Selectors are asked for again and again only while somebody can see the warning.
  void SetWatched(bool isWatched);

  /// Where everything that may wait is done.
  Sender &Jobs() { return sender_; }

 Q_SIGNALS:
  /// Another model is shown, with other settings.
  void ModelChanged();
  /// Something shown has changed.
  void Changed();
  /// Another program has set something.
  void ChangedElsewhere(const client::Setting &setting);
  /// Something to tell for a moment.
  void Told(const QString &text);
  /// Something was written to the folders of settings or profiles.
  void FilesChanged();
  /// The first look is there.
  void Ready();

 private:
  struct StoreResult {
    client::SendResult sent;
    int32_t stored;
    std::optional<client::Check> storage;
  };

  ShownSetting *Editable(const client::Setting &setting);
  void Show(const client::Model &model);
  void Send(ShownSetting &shown, int32_t index);
  void TakeSent(const client::Setting &setting, unsigned order, const StoreResult &result);
  void TakeLook(const Look &look);
  void TakeStored(const std::vector<StoredChoice> &stored);
  void DropWarnings();
  void TakeAnswers();
  void LookAtFiles();
  void CheckStorage();
  void CheckAutoApply();
  void TellWhatPlugInSent();
  void UpdateTimers();

  const client::Model *usual_;
  int32_t language_;
  const client::Model *model_;
  std::vector<ShownSetting> settings_;
  Look look_;
  bool isReady_ = false;
  bool isBusReached_ = true;
  bool isSilent_ = false;
  bool isWatched_ = true;
  std::optional<client::Check> storageProblem_;
  client::AutoApplyObstacle autoApplyObstacle_ = client::AutoApplyObstacle::kNone;
  unsigned lastOrder_ = 0;
  std::vector<std::vector<Change>> undo_;
  QTimer selectorTimer_;
  QTimer silentTimer_;
  QTimer plugTimer_;
  ChangeListener listener_;
  // Last, so that no job hands a result to what is gone.
  Sender sender_;
};

/// Whether two settings are the same one.
bool IsSame(const client::Setting &left, const client::Setting &right);

}  // namespace setup
