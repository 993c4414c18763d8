#include "MixerPicture.h"

#include <QLinearGradient>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "Theme.h"

namespace setup {
namespace {

constexpr double kCorner = 15;
constexpr QPointF kSecondBehind{13, -13};

/// The colours of the mixer, which is dark whatever the window is like; a mixer that is not there
/// is an outline in the window's own colours.
struct Paint {
  QColor label;
  QColor paleLabel;
  QColor separator;
  QColor hole;
  QColor ring;
  QColor tick;
  QColor usbTick;
  QColor warning;
};

Paint PaintFor(const MixerLook &look) {
  if (look.isConnected) {
    return {.label = "#e6e9ed",
            .paleLabel = "#99a1ab",
            .separator = "#3a4047",
            .hole = "#0d0f11",
            .ring = "#a9b0b8",
            .tick = "#6f7780",
            .usbTick = "#ffffff",
            .warning = "#fbb023"};
  }
  const Theme &theme = CurrentTheme();
  return {.label = theme.quietText,
          .paleLabel = theme.quietText,
          .separator = theme.cardBorder,
          .hole = theme.window,
          .ring = theme.outline,
          .tick = theme.outline,
          .usbTick = theme.outline,
          .warning = theme.warning.line};
}

/// A point on a circle; degrees from above, clockwise.
QPointF OnCircle(const QPointF &middle, double radius, double degrees) {
  const double radians = degrees * std::numbers::pi / 180;
  return middle + QPointF(std::sin(radians), -std::cos(radians)) * radius;
}

/// Draws in the drawing's own units.
class Artist {
 public:
  Artist(QPainter &painter, const MixerLook &look)
      : painter_(painter), look_(look), paint_(PaintFor(look)) {}

  void Draw() {
    if (look_.isSecondBehind) DrawBody(kSecondBehind);
    DrawBody({});
    for (const double separator : Separators()) {
      painter_.setPen(QPen(paint_.separator, 1));
      painter_.drawLine(QPointF(separator, kSeparatorTop), QPointF(separator, kSeparatorBottom));
    }
    DrawMeter();
    for (const SceneryKnob &knob : SceneryKnobs()) DrawKnob(knob.at, knob.radius, 0.0);
    for (const SceneryFader &fader : SceneryFaders()) DrawFader(fader);
    DrawSelectors();
    for (const PrintedLabel &label : PrintedLabels()) {
      DrawLabel(QString::fromUtf8(label.text.data(), static_cast<qsizetype>(label.text.size())),
                label.at, label.size, label.isScenery ? paint_.paleLabel : paint_.label);
    }
    DrawLabel(look_.name, {58, 539}, 10.5, paint_.paleLabel);
    DrawSockets();
  }

 private:
  void DrawBody(const QPointF &at) {
    const QRectF body(at, kMixerSize);
    if (!look_.isConnected) {
      if (!at.isNull()) return;
      QPen dashes(CurrentTheme().outline, 1.6);
      dashes.setDashPattern({4, 3});
      painter_.setPen(dashes);
      painter_.setBrush(Qt::NoBrush);
      painter_.drawRoundedRect(body, kCorner, kCorner);
      return;
    }
    DrawShadow(body);
    QLinearGradient metal(body.topLeft(), body.bottomLeft());
    metal.setColorAt(0, "#373d45");
    metal.setColorAt(0.12, "#2c3138");
    metal.setColorAt(1, "#1f2327");
    painter_.setPen(QPen(QColor("#454c55"), 1.5));
    painter_.setBrush(metal);
    painter_.drawRoundedRect(body, kCorner, kCorner);
  }

  // Rings that grow paler stand for a soft shadow.
  void DrawShadow(const QRectF &body) {
    constexpr int kRings = 8;
    QColor shadow = CurrentTheme().shadow;
    shadow.setAlpha(shadow.alpha() / kRings);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(shadow);
    for (int ring = 1; ring <= kRings; ++ring) {
      painter_.drawRoundedRect(body.adjusted(-ring, 2 - ring, ring, 4 + ring), kCorner + ring,
                               kCorner + ring);
    }
  }

  void DrawMeter() {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(look_.isConnected ? QColor("#121416") : CurrentTheme().cardBorder);
    for (const QPointF &lamp : MeterLamps()) {
      painter_.drawRoundedRect(QRectF(lamp - QPointF(3.5, 3.5), QSizeF(7, 7)), 1.5, 1.5);
    }
  }

  /// A knob with its pointer, or without one where its position is not known.
  void DrawKnob(const QPointF &at, double radius, std::optional<double> angle) {
    const QRectF circle(at - QPointF(radius, radius), QSizeF(radius, radius) * 2);
    if (!look_.isConnected) {
      painter_.setPen(QPen(CurrentTheme().outline, 1.2));
      painter_.setBrush(Qt::NoBrush);
      painter_.drawEllipse(circle);
      return;
    }
    QRadialGradient dome(at - QPointF(radius * 0.3, radius * 0.4), radius * 1.4);
    dome.setColorAt(0, "#565d66");
    dome.setColorAt(1, "#262a30");
    painter_.setPen(QPen(QColor("#0c0e10"), 1.6));
    painter_.setBrush(dome);
    painter_.drawEllipse(circle);
    if (!angle) return;
    painter_.setPen(QPen(QColor("#c9cfd6"), radius > 18 ? 2.6 : 1.4, Qt::SolidLine, Qt::RoundCap));
    painter_.drawLine(OnCircle(at, radius * 0.4, *angle), OnCircle(at, radius * 0.85, *angle));
  }

  void DrawFader(const SceneryFader &fader) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(look_.isConnected ? QColor("#0d0f11") : CurrentTheme().cardBorder);
    painter_.drawRoundedRect(fader.slot, 2.5, 2.5);
    painter_.setPen(QPen(look_.isConnected ? QColor("#15181b") : CurrentTheme().outline, 1.2));
    QLinearGradient cap(fader.cap.topLeft(), fader.cap.bottomRight());
    cap.setColorAt(0, "#596069");
    cap.setColorAt(1, "#33383e");
    painter_.setBrush(look_.isConnected ? QBrush(cap) : QBrush(CurrentTheme().window));
    painter_.drawRoundedRect(fader.cap, 3, 3);
    if (!look_.isConnected) return;
    const bool isUpright = fader.slot.height() > fader.slot.width();
    const QPointF middle = fader.cap.center();
    const QPointF along =
        isUpright ? QPointF(fader.cap.width() / 2 - 2, 0) : QPointF(0, fader.cap.height() / 2 - 2);
    painter_.setPen(QPen(QColor("#c9cfd6"), 1.4));
    painter_.drawLine(middle - along, middle + along);
  }

  void DrawSelectors() {
    int channel = 0;
    for (const SelectorKnob &knob : SelectorKnobs()) DrawSelector(knob, channel++);
  }

  void DrawSelector(const SelectorKnob &knob, int channel) {
    const bool isToTurn =
        std::find(look_.toTurn.begin(), look_.toTurn.end(), channel) != look_.toTurn.end();
    for (int position = 0; position < kSelectorPositions; ++position) {
      const bool isUsb = position >= kSelectorPositions - 2;
      const QColor usb = isToTurn ? paint_.warning : paint_.usbTick;
      const double angle = SelectorAngle(position);
      painter_.setPen(
          QPen(isUsb ? usb : paint_.tick, isUsb ? 3.2 : 1.8, Qt::SolidLine, Qt::RoundCap));
      painter_.drawLine(OnCircle(knob.at, kSelectorRadius + 7, angle),
                        OnCircle(knob.at, kSelectorRadius + (isUsb ? 14 : 12), angle));
    }
    const auto place = static_cast<std::size_t>(channel);
    std::optional<double> angle;
    if (place < look_.selectors.size() && look_.selectors.at(place)) {
      angle = SelectorAngle(*look_.selectors.at(place));
    }
    DrawKnob(knob.at, kSelectorRadius, angle);
    if (isToTurn) {
      painter_.setPen(QPen(paint_.warning, 2.6));
      painter_.setBrush(Qt::NoBrush);
      const double ring = kSelectorRadius + 3;
      painter_.drawEllipse(knob.at, ring, ring);
    }
    DrawLabel("USB", knob.usbLabel, 10, isToTurn ? paint_.warning : paint_.label);
  }

  void DrawLabel(const QString &text, const QPointF &at, double size, const QColor &colour) {
    QFont font = ScaledFont(1, QFont::Bold);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    if (size < 12) font.setLetterSpacing(QFont::AbsoluteSpacing, 0.4);
    painter_.setFont(font);
    painter_.setPen(colour);
    const QRectF around(at - QPointF(70, 14), QSizeF(140, 28));
    painter_.drawText(around, Qt::AlignCenter, text);
  }

  void DrawSockets() {
    if (!look_.hasSockets) return;
    painter_.setBrush(paint_.hole);
    painter_.setPen(QPen(paint_.ring, 1.6));
    for (const Socket &socket : PlaybackSockets()) {
      painter_.drawRoundedRect(QRectF(socket.at - QPointF(10.5, 9.5), QSizeF(21, 15)), 3, 3);
    }
    painter_.setPen(QPen(paint_.ring, 2.4));
    for (const Socket &socket : RecordingSockets()) painter_.drawEllipse(socket.at, 8, 8);
  }

  QPainter &painter_;
  const MixerLook &look_;
  const Paint paint_;
};

}  // namespace

void DrawMixer(QPainter &painter, const QRectF &body, const MixerLook &look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(body.topLeft());
  painter.scale(MixerScale(body), MixerScale(body));
  Artist(painter, look).Draw();
  painter.restore();
}

QPointF OnMixer(const QRectF &body, const QPointF &point) {
  return body.topLeft() + point * MixerScale(body);
}

double MixerScale(const QRectF &body) { return body.width() / kMixerSize.width(); }

}  // namespace setup
