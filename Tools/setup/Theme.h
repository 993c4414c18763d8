#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <array>

#include "DesktopAppearance.h"

namespace setup {

/// The colours that stand for one thing, such as a USB channel.
struct Tint {
  /// Lines and glow.
  QColor line;
  /// An area with text on it.
  QColor fill;
  QColor onFill;
  /// A card that glows.
  QColor wash;
};

/// All colours of the window.
struct Theme {
  bool isDark;
  bool isHighContrast;
  QColor window;
  QColor card;
  QColor cardBorder;
  QColor field;
  QColor fieldHover;
  QColor text;
  QColor quietText;
  QColor shadow;
  QColor good;
  QColor bad;
  QColor away;
  /// The mixer that is not there.
  QColor outline;
  Tint accent;
  Tint warning;
  QColor warningText;
  std::array<Tint, 3> channels;

  /// The colours of a USB channel, counted from 0.
  const Tint &Channel(int channel) const;

  QPalette Palette() const;
};

/// The places of the palette that hold the colours of quiet texts and of warnings.
inline constexpr QPalette::ColorRole kQuietRole = QPalette::PlaceholderText;
inline constexpr QPalette::ColorRole kWarningRole = QPalette::BrightText;

/// The colours in use.
const Theme &CurrentTheme();

/// Uses other colours in the whole program.
void UseTheme(const Appearance &appearance);

/// The colours for a wish of the desktop.
const Theme &ThemeFor(const Appearance &appearance);

/// A length for a font of 10 points, in that of the user: everything grows with the letters.
int Scaled(double length);
double ScaledReal(double length);

/// The user's font, larger or smaller, or heavier.
QFont ScaledFont(double factor, QFont::Weight weight = QFont::Normal);

}  // namespace setup
