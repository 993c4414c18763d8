#pragma once

#include <QMenu>
#include <functional>

#include "ProfileShelf.h"

namespace setup {

/// The menu of the profiles, and the questions that it asks.
class ProfileMenu : public QMenu {
  Q_OBJECT

 public:
  ProfileMenu(ProfileShelf &shelf, QWidget *parent);

  /// Asks for a name and saves under it.
  void AskAndSave();

 private:
  void Fill();
  void AddSubmenu(const QString &title, const QString &name,
                  const std::function<void(const QString &)> &function);
  void AskName(const QString &title, const QString &name,
               const std::function<void(const QString &)> &function);
  void AskWhether(const QString &question, const QString &yes,
                  const std::function<void()> &function);
  void AskAndRename(const QString &name);
  void AskAndDelete(const QString &name);
  void AskAndExport(const QString &name);
  void AskAndImport();

  ProfileShelf &shelf_;
};

}  // namespace setup
