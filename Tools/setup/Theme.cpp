#include "Theme.h"

#include <QApplication>
#include <QFontInfo>
#include <QStyleFactory>
#include <algorithm>
#include <cmath>

namespace setup {
namespace {

QColor Mixed(const QColor &one, const QColor &other, double share) {
  return QColor::fromRgbF(static_cast<float>(one.redF() * share + other.redF() * (1 - share)),
                          static_cast<float>(one.greenF() * share + other.greenF() * (1 - share)),
                          static_cast<float>(one.blueF() * share + other.blueF() * (1 - share)));
}

// White text needs darker fills than the cables have.
Theme LightTheme() {
  return {
      .isDark = false,
      .isHighContrast = false,
      .window = "#f3f4f8",
      .card = "#ffffff",
      .cardBorder = "#dfe3e9",
      .field = "#ebeef2",
      .fieldHover = "#e0e5eb",
      .text = "#15181d",
      .quietText = "#566069",
      .shadow = QColor(0, 0, 0, 60),
      .good = "#12854d",
      .bad = "#d98a04",
      .away = "#8a929c",
      .outline = "#8e959d",
      .accent = {"#2b7bf5", "#1f66e5", "#ffffff", "#e6effd"},
      .warning = {"#e09b12", "#fff3da", "#5f3b06", "#fff3da"},
      .warningText = "#6b4408",
      .channels = {{{"#2b7bf5", "#1f66e5", "#ffffff", "#e6effd"},
                    {"#9b4df0", "#8b37dd", "#ffffff", "#f3e9fd"},
                    {"#12a47c", "#0b7f60", "#ffffff", "#e3f4ee"}}},
  };
}

Theme DarkTheme() {
  return {
      .isDark = true,
      .isHighContrast = false,
      .window = "#121317",
      .card = "#1c1f24",
      .cardBorder = "#30343a",
      .field = "#272b31",
      .fieldHover = "#31363d",
      .text = "#f2f4f7",
      .quietText = "#a3abb6",
      .shadow = QColor(0, 0, 0, 140),
      .good = "#3ecf7f",
      .bad = "#fbb023",
      .away = "#9aa1ab",
      .outline = "#5b6168",
      .accent = {"#5b9dff", "#5b9dff", "#0a1426", "#1c2b44"},
      .warning = {"#fbb731", "#2e2313", "#fbd491", "#2e2313"},
      .warningText = "#fbd491",
      .channels = {{{"#5b9dff", "#5b9dff", "#0a1426", "#1c2b44"},
                    {"#c78aff", "#c78aff", "#1b0a2e", "#332547"},
                    {"#34d3a5", "#34d3a5", "#04231a", "#14392f"}}},
  };
}

/// Black and white, with borders instead of shades.
Theme WithHighContrast(Theme theme) {
  const QColor ground = theme.isDark ? "#000000" : "#ffffff";
  const QColor ink = theme.isDark ? "#ffffff" : "#000000";
  theme.isHighContrast = true;
  theme.window = theme.card = theme.field = ground;
  theme.fieldHover = Mixed(ink, ground, 0.2);
  theme.cardBorder = theme.text = theme.quietText = theme.outline = theme.away = ink;
  theme.warningText = ink;
  theme.warning.fill = theme.warning.wash = ground;
  theme.warning.onFill = ink;
  for (Tint &tint : theme.channels) tint.wash = ground;
  return theme;
}

Theme &Used() {
  static Theme theme = LightTheme();
  return theme;
}

/// The size of the user's letters, compared with the one that all lengths are given for.
double LetterScale() {
  constexpr double kPixels = 13.3;  // ten points on an ordinary screen
  return std::max(0.8, QFontInfo(QApplication::font()).pixelSize() / kPixels);
}

}  // namespace

const Tint &Theme::Channel(int channel) const {
  return channels.at(static_cast<std::size_t>(channel) % channels.size());
}

QPalette Theme::Palette() const {
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, card);
  palette.setColor(QPalette::AlternateBase, field);
  palette.setColor(QPalette::Text, text);
  palette.setColor(kQuietRole, quietText);
  palette.setColor(QPalette::Button, field);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(kWarningRole, warningText);
  palette.setColor(QPalette::Light, fieldHover);
  palette.setColor(QPalette::Midlight, field);
  palette.setColor(QPalette::Mid, cardBorder);
  palette.setColor(QPalette::Dark, cardBorder);
  palette.setColor(QPalette::Shadow, shadow);
  palette.setColor(QPalette::Highlight, accent.fill);
  palette.setColor(QPalette::HighlightedText, accent.onFill);
  palette.setColor(QPalette::ToolTipBase, card);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Link, accent.line);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, quietText);
  }
  return palette;
}

const Theme &CurrentTheme() { return Used(); }

const Theme &ThemeFor(const Appearance &appearance) {
  static const std::array<Theme, 4> kThemes{
      LightTheme(), DarkTheme(), WithHighContrast(LightTheme()), WithHighContrast(DarkTheme())};
  return kThemes.at((appearance.isDark ? 1U : 0U) + (appearance.isHighContrast ? 2U : 0U));
}

void UseTheme(const Appearance &appearance) {
  Used() = ThemeFor(appearance);
  QApplication::setPalette(Used().Palette());
}

double ScaledReal(double length) { return length * LetterScale(); }

int Scaled(double length) { return static_cast<int>(std::lround(ScaledReal(length))); }

QFont ScaledFont(double factor, QFont::Weight weight) {
  QFont font = QApplication::font();
  font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
  font.setWeight(weight);
  return font;
}

}  // namespace setup
