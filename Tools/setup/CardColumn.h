#pragma once

#include <QVBoxLayout>
#include <QWidget>
#include <vector>

#include "SettingCard.h"

namespace setup {

/// Cards below each other, under a heading.
class CardColumn : public QWidget {
  Q_OBJECT

 public:
  /// @param heading  empty for none.
  CardColumn(const QString &heading, const QString &subheading, QWidget *parent);

  void Add(QWidget *card);
  /// What is added from now on stands at the foot.
  void AddRoom();
  /// Lets a mnemonic in the heading lead to a control.
  void SetBuddy(QWidget *control);

 private:
  QVBoxLayout *column_;
  QLabel *heading_ = nullptr;
};

}  // namespace setup
