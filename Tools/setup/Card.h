#pragma once

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include "Theme.h"

namespace setup {

/// A rounded area with a title, a note beside it, and something below.
class Card : public QWidget {
  Q_OBJECT

 public:
  explicit Card(const QString &title, QWidget *parent = nullptr);

  QLabel &Title() { return *title_; }
  void SetNote(const QString &note);
  QString Note() const { return note_->text(); }
  /// Adds what stands below the title.
  void Add(QWidget *content);
  /// Adds something below all that has the whole width of the card.
  void AddWide(QWidget *content);

  /// Marks the card with the colours of a tint; null for none.
  void SetMark(const Tint *tint, bool isWashed);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QVBoxLayout *inner_;
  QVBoxLayout *outer_;
  QLabel *title_;
  QLabel *note_;
  const Tint *mark_ = nullptr;
  bool isWashed_ = false;
};

/// A label in the quiet colour, smaller than the rest.
class QuietLabel : public QLabel {
  Q_OBJECT

 public:
  explicit QuietLabel(const QString &text = {}, QWidget *parent = nullptr);
};

}  // namespace setup
