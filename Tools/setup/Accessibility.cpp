#include "Accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "MixerDrawing.h"
#include "SegmentedChoice.h"
#include "StatusLine.h"
#include "WarningPanel.h"

namespace setup {
namespace {

/// A line that opens and closes the text below it.
class OpeningLine : public QAccessibleWidget {
 public:
  explicit OpeningLine(QWidget *line) : QAccessibleWidget(line, QAccessible::Button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const bool isOpen = static_cast<WarningLine *>(widget())->isChecked();
    state.expandable = true;
    state.expanded = isOpen;
    state.collapsed = !isOpen;
    return state;
  }

  QString text(QAccessible::Text part) const override {
    if (part != QAccessible::Name) return QAccessibleWidget::text(part);
    return static_cast<WarningLine *>(widget())->text();
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString &name) override {
    if (name == pressAction()) static_cast<WarningLine *>(widget())->click();
  }
};

/// The line at the foot of the window, whose text is its name.
class LiveLine : public QAccessibleWidget {
 public:
  explicit LiveLine(QWidget *line) : QAccessibleWidget(line, QAccessible::StatusBar) {}

  QString text(QAccessible::Text part) const override {
    if (part != QAccessible::Name) return QAccessibleWidget::text(part);
    return static_cast<StatusLine *>(widget())->text();
  }
};

QAccessibleInterface *Make(const QString & /*className*/, QObject *object) {
  if (auto *drawing = qobject_cast<MixerDrawing *>(object)) {
    return new QAccessibleWidget(drawing, QAccessible::Graphic);
  }
  if (auto *choices = qobject_cast<SegmentedChoice *>(object)) {
    return new QAccessibleWidget(choices, QAccessible::Grouping);
  }
  if (auto *line = qobject_cast<WarningLine *>(object)) return new OpeningLine(line);
  if (auto *line = qobject_cast<StatusLine *>(object)) return new LiveLine(line);
  return nullptr;
}

}  // namespace

void InstallAccessibility() { QAccessible::installFactory(Make); }

}  // namespace setup
