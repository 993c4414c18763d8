#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <optional>
#include <span>
#include <string_view>

namespace setup {

/// Where everything is on the drawing of the mixer, in its own units.
inline constexpr QSizeF kMixerSize{440, 560};

/// A place where a cable ends.
struct Socket {
  /// The choice that it stands for, as the library calls it.
  std::string_view choice;
  QPointF at;
  /// The height of the empty lane in which its cable leaves the mixer; playback comes from above.
  double lane;
};

/// The sockets that the computer plays to, at the upper edge.
std::span<const Socket> PlaybackSockets();

/// The sockets that the computer records from.
std::span<const Socket> RecordingSockets();

/// The socket that stands for a choice; null for none.
const Socket *SocketFor(std::span<const Socket> sockets, std::string_view choice);

/// A text printed on the mixer.
struct PrintedLabel {
  std::string_view text;
  QPointF at;
  double size;
  /// Scenery is paler than what can be set.
  bool isScenery;
};
std::span<const PrintedLabel> PrintedLabels();

/// A knob that the mixer does not report.
struct SceneryKnob {
  QPointF at;
  double radius;
};
std::span<const SceneryKnob> SceneryKnobs();

/// A fader that the mixer does not report: a slot and a cap.
struct SceneryFader {
  QRectF slot;
  QRectF cap;
};
std::span<const SceneryFader> SceneryFaders();

/// The input selectors, by mixer channel.
struct SelectorKnob {
  QPointF at;
  QPointF usbLabel;
};
std::span<const SelectorKnob> SelectorKnobs();
inline constexpr double kSelectorRadius = 20;
inline constexpr int kSelectorPositions = 8;

/// Where a selector points at a position, in degrees from above, clockwise.
double SelectorAngle(int position);

/// The upper ends of the lines between the channels.
std::span<const double> Separators();
inline constexpr double kSeparatorTop = 62;
inline constexpr double kSeparatorBottom = 479;

/// The meter that the mixer does not report.
std::span<const QPointF> MeterLamps();

}  // namespace setup
