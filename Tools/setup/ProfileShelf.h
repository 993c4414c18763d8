#pragma once

#include <QFile>
#include <QStringList>
#include <functional>
#include <optional>

#include "SetupState.h"
#include "client/Profiles.h"

namespace setup {

/// The profiles of the user and what can be done with them. Their files are read and written on the
/// sender's thread.
class ProfileShelf : public QObject {
  Q_OBJECT

 public:
  explicit ProfileShelf(SetupState &state);

  /// The names of the profiles for the model that is shown.
  const QStringList &Names() const { return names_; }
  /// The profile that was loaded or saved last; empty for none.
  QString Current() const;
  /// Whether something was set since.
  bool IsChanged() const;

  /// Reads the names anew.
  void LookAgain();
  void Load(const QString &name);
  void Save(const QString &name, client::OldFile oldFile);
  void Rename(const QString &name, const QString &newName);
  void Delete(const QString &name);
  void Export(const QString &name, const QString &file);
  void Import(const QString &file, client::OldFile oldFile);

 Q_SIGNALS:
  void Changed();
  void Told(const QString &text);
  /// There is a profile of this name already: the user has to decide.
  void SaveWouldReplace(const QString &name);
  void ImportWouldReplace(const QString &name, const QString &file);

 private:
  /// What came of something that was done with a file.
  struct Result {
    std::optional<client::Profile> profile = {};
    std::optional<client::ProfileFault> fault = {};
  };

  void Do(const std::function<std::optional<client::Profile>()> &work,
          const std::function<void(const Result &)> &done);
  bool TellFault(const Result &result);
  void TakeLoaded(const client::Profile &profile);

  SetupState &state_;
  QStringList names_;
  std::optional<client::Profile> current_;
};

}  // namespace setup
