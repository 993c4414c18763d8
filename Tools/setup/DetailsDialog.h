#pragma once

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "SetupState.h"

namespace setup {

/// Everything that can be checked, a line each, as "trxctl diagnose" does it.
class DetailsDialog : public QDialog {
  Q_OBJECT

 public:
  DetailsDialog(SetupState &state, QWidget *parent);

 private:
  void Check();
  void Show(const std::vector<client::Check> &checks);

  SetupState &state_;
  QLabel *list_;
  QPushButton *again_;
  QPushButton *copy_;
};

}  // namespace setup
