#pragma once

#include <QDialog>
#include <QFormLayout>

#include "SetupState.h"

namespace setup {

/// What this program is, and the versions of everything that is installed.
class VersionsDialog : public QDialog {
  Q_OBJECT

 public:
  VersionsDialog(SetupState &state, QWidget *parent);

 private:
  void Add(const QString &what, const QString &version, const QString &name);

  QFormLayout *lines_;
};

}  // namespace setup
