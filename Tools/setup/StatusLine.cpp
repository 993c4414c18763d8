#include "StatusLine.h"

#include <QAccessible>
#include <chrono>

#include "Theme.h"

namespace setup {
namespace {

constexpr std::chrono::seconds kTold{8};

}  // namespace

StatusLine::StatusLine(QWidget *parent) : QLabel(parent) {
  setObjectName("status");
  forget_.setSingleShot(true);
  connect(&forget_, &QTimer::timeout, this, [this] {
    told_.clear();
    Refresh();
  });
  setMinimumHeight(Scaled(20));
  setFont(ScaledFont(0.95));
  setForegroundRole(kQuietRole);
}

void StatusLine::Tell(const QString &text) {
  told_ = text;
  forget_.start(kTold);
  Refresh();
}

void StatusLine::SetLasting(const QString &text) {
  if (text == lasting_) return;
  lasting_ = text;
  Refresh();
}

void StatusLine::Refresh() {
  const QString text = told_.isEmpty() ? lasting_ : told_;
  if (text == this->text()) return;
  setText(text);
  // Screen readers say what is new here, wherever the focus is.
  QAccessibleEvent changed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace setup
