#include "Card.h"

#include <QHBoxLayout>
#include <QPainter>

namespace setup {

QuietLabel::QuietLabel(const QString &text, QWidget *parent) : QLabel(text, parent) {
  setFont(ScaledFont(0.92));
  setForegroundRole(kQuietRole);
}

Card::Card(const QString &title, QWidget *parent)
    : QWidget(parent),
      inner_(new QVBoxLayout),
      outer_(new QVBoxLayout(this)),
      title_(new QLabel(title, this)),
      note_(new QuietLabel({}, this)) {
  title_->setFont(ScaledFont(1, QFont::DemiBold));
  note_->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  auto *heading = new QHBoxLayout;
  heading->addWidget(title_);
  heading->addStretch();
  heading->addWidget(note_);
  inner_->setContentsMargins(Scaled(16), Scaled(9), Scaled(16), Scaled(12));
  inner_->setSpacing(Scaled(7));
  inner_->addLayout(heading);
  outer_->setContentsMargins(0, 0, 0, 0);
  outer_->setSpacing(0);
  outer_->addLayout(inner_);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Card::SetNote(const QString &note) { note_->setText(note); }

void Card::Add(QWidget *content) { inner_->addWidget(content); }

void Card::AddWide(QWidget *content) { outer_->addWidget(content); }

void Card::SetMark(const Tint *tint, bool isWashed) {
  if (tint == mark_ && isWashed == isWashed_) return;
  mark_ = tint;
  isWashed_ = isWashed;
  update();
}

void Card::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double line = mark_ != nullptr || theme.isHighContrast ? 2 : 1;
  painter.setPen(QPen(mark_ != nullptr ? mark_->line : theme.cardBorder, line));
  painter.setBrush(mark_ != nullptr && isWashed_ ? mark_->wash : theme.card);
  const QRectF area = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
  painter.drawRoundedRect(area, ScaledReal(12), ScaledReal(12));
}

}  // namespace setup
