#include "CardColumn.h"

namespace setup {

CardColumn::CardColumn(const QString &heading, const QString &subheading, QWidget *parent)
    : QWidget(parent), column_(new QVBoxLayout(this)) {
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(Scaled(11));
  if (heading.isEmpty()) return;
  heading_ = new QLabel(heading, this);
  heading_->setFont(ScaledFont(1.12, QFont::DemiBold));
  auto *headings = new QVBoxLayout;
  headings->setSpacing(0);
  headings->addWidget(heading_);
  headings->addWidget(new QuietLabel(subheading, this));
  column_->addLayout(headings);
}

void CardColumn::Add(QWidget *card) { column_->addWidget(card); }

void CardColumn::AddRoom() { column_->addStretch(); }

void CardColumn::SetBuddy(QWidget *control) {
  if (heading_ != nullptr) heading_->setBuddy(control);
}

}  // namespace setup
