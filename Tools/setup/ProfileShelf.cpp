#include "ProfileShelf.h"

#include <algorithm>

#include "ProfileFaultWords.h"

namespace setup {
namespace {

QStringList NamesFor(const client::Model &model) {
  QStringList names;
  try {
    for (const client::StoredProfile &stored : client::StoredProfiles()) {
      if (stored.profile && stored.profile->model == &model) {
        names << QString::fromStdString(stored.name);
      }
    }
  } catch (const client::ProfileFault &) {
    // Without a folder there are none; saving one tells why.
  }
  return names;
}

}  // namespace

ProfileShelf::ProfileShelf(SetupState &state) : QObject(&state), state_(state) {
  connect(&state, &SetupState::FilesChanged, this, &ProfileShelf::LookAgain);
  connect(&state, &SetupState::Changed, this, &ProfileShelf::Changed);
  connect(&state, &SetupState::ModelChanged, this, [this] {
    current_.reset();
    LookAgain();
  });
}

QString ProfileShelf::Current() const {
  return current_ ? QString::fromStdString(current_->name) : QString();
}

bool ProfileShelf::IsChanged() const {
  if (!current_) return false;
  return std::any_of(current_->choices.begin(), current_->choices.end(),
                     [this](const client::ProfileChoice &choice) {
                       const ShownSetting *shown = state_.Find(choice.setting);
                       return shown == nullptr || shown->index != choice.index;
                     });
}

void ProfileShelf::LookAgain() {
  state_.Jobs().Run(
      "profiles", this, [model = &state_.Model()] { return NamesFor(*model); },
      [this](const QStringList &names) {
        if (names == names_) return;
        names_ = names;
        Q_EMIT Changed();
      });
}

void ProfileShelf::Do(const std::function<std::optional<client::Profile>()> &work,
                      const std::function<void(const Result &)> &done) {
  state_.Jobs().Run(
      "", this,
      [work] {
        Result result;
        try {
          result.profile = work();
        } catch (const client::ProfileFault &fault) {
          result.fault = fault;
        }
        return result;
      },
      [this, done](const Result &result) {
        done(result);
        LookAgain();
        Q_EMIT Changed();
      });
}

bool ProfileShelf::TellFault(const Result &result) {
  if (!result.fault) return false;
  Q_EMIT Told(FaultAsText(*result.fault));
  return true;
}

void ProfileShelf::Load(const QString &name) {
  Do([name = name.toStdString()] { return client::LoadProfile(name); },
     [this](const Result &result) {
       if (!TellFault(result)) TakeLoaded(*result.profile);
     });
}

void ProfileShelf::TakeLoaded(const client::Profile &profile) {
  const QString name = QString::fromStdString(profile.name);
  if (profile.model != &state_.Model()) {
    Q_EMIT Told(tr("%1 is for another mixer, %2.")
                    .arg(name, QString::fromUtf8(profile.model->name.data())));
    return;
  }
  std::vector<Change> changes;
  for (const client::ProfileChoice &choice : profile.choices) {
    changes.push_back({choice.setting, choice.index});
  }
  current_ = profile;
  state_.ChooseAll(changes);
  Q_EMIT Told(tr("%1 loaded. Ctrl+Z takes it back.").arg(name));
}

void ProfileShelf::Save(const QString &name, client::OldFile oldFile) {
  Do(
      [model = &state_.Model(), name = name.trimmed().toStdString(), oldFile] {
        client::Profile profile = client::ProfileOfStored(*model, name);
        client::SaveProfile(profile, oldFile);
        return profile;
      },
      [this](const Result &result) {
        if (result.fault && result.fault->problem == client::ProfileProblem::kNameTaken) {
          Q_EMIT SaveWouldReplace(QString::fromStdString(result.fault->what));
          return;
        }
        if (TellFault(result)) return;
        current_ = result.profile;
        Q_EMIT Told(tr("Saved as %1.").arg(Current()));
      });
}

void ProfileShelf::Rename(const QString &name, const QString &newName) {
  Do(
      [name = name.toStdString(), newName = newName.trimmed().toStdString()] {
        client::RenameProfile(name, newName, client::OldFile::kIsKept);
        return client::LoadProfile(newName);
      },
      [this, name](const Result &result) {
        if (TellFault(result)) return;
        if (name == Current()) current_->name = result.profile->name;
        Q_EMIT Told(
            tr("%1 is called %2 now.").arg(name, QString::fromStdString(result.profile->name)));
      });
}

void ProfileShelf::Delete(const QString &name) {
  Do(
      [name = name.toStdString()]() -> std::optional<client::Profile> {
        client::DeleteProfile(name);
        return std::nullopt;
      },
      [this, name](const Result &result) {
        if (TellFault(result)) return;
        if (name == Current()) current_.reset();
        Q_EMIT Told(tr("%1 is deleted.").arg(name));
      });
}

void ProfileShelf::Export(const QString &name, const QString &file) {
  Do(
      // Whoever names the file has been asked whether to replace one.
      [name = name.toStdString(), file = QFile::encodeName(file).toStdString()] {
        return client::ExportProfile(name, file, client::OldFile::kIsReplaced);
      },
      [this, name, file](const Result &result) {
        if (!TellFault(result)) Q_EMIT Told(tr("%1 is written to %2.").arg(name, file));
      });
}

void ProfileShelf::Import(const QString &file, client::OldFile oldFile) {
  Do([path = QFile::encodeName(file).toStdString(),
      oldFile] { return client::ImportProfile(path, std::nullopt, oldFile); },
     [this, file](const Result &result) {
       if (result.fault && result.fault->problem == client::ProfileProblem::kNameTaken) {
         Q_EMIT ImportWouldReplace(QString::fromStdString(result.fault->what), file);
         return;
       }
       if (TellFault(result)) return;
       Q_EMIT Told(tr("%1 is among your profiles now. Choose it in the menu to load it.")
                       .arg(QString::fromStdString(result.profile->name)));
     });
}

}  // namespace setup
