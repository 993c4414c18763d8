#include "DesktopAppearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace setup {
namespace {

Appearance AppearanceNow() {
  // Qt takes its palette from the system there, also when the system changes it.
  return {.isDark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128};
}

}  // namespace

struct DesktopAppearance::Machinery {};

DesktopAppearance::DesktopAppearance() : machinery_(std::make_unique<Machinery>()) {}

DesktopAppearance::~DesktopAppearance() = default;

void DesktopAppearance::Start() { Q_EMIT Changed(AppearanceNow()); }

}  // namespace setup
