#include "CableRouting.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

namespace setup {
namespace {

constexpr double kBend = 14;
/// Between cables that run beside each other.
constexpr double kApart = 11;
constexpr double kLaneApart = 7;
constexpr double kPlaybackLaneApart = 9.5;
/// From a card to the first cable that goes up or down.
constexpr double kBesideCard = 19;
/// From the mixer to the first one.
constexpr double kBesideMixer = 26;
/// From the mixer to the first lane above it.
constexpr double kAboveMixer = 30;
/// Between the ends of cables in one socket.
constexpr double kEndsApart = 15;

double Length(const QPointF &vector) { return std::hypot(vector.x(), vector.y()); }

/// A line with round bends; a bend is no wider than half a side.
QPainterPath Rounded(const std::vector<QPointF> &points) {
  QPainterPath path(points.front());
  for (std::size_t i = 1; i + 1 < points.size(); ++i) {
    const QPointF in = points[i] - points[i - 1];
    const QPointF out = points[i + 1] - points[i];
    const double inLength = Length(in);
    const double outLength = Length(out);
    if (inLength < 1 || outLength < 1) continue;
    const double bend = std::min({kBend, inLength / 2, outLength / 2});
    path.lineTo(points[i] - in * (bend / inLength));
    path.quadTo(points[i], points[i] + out * (bend / outLength));
  }
  path.lineTo(points.back());
  return path;
}

/// The corners of a cable to a socket from above.
std::vector<QPointF> PlaybackCorners(const CableEnds &ends, const QPointF &end,
                                     const QRectF &body) {
  const double up = ends.plug.x() + kBesideCard + kApart * ends.channel;
  const double lane = body.top() - kAboveMixer + kPlaybackLaneApart * ends.channel;
  return {ends.plug, {up, ends.plug.y()}, {up, lane}, {end.x(), lane}, end};
}

/// The corners of a cable from a socket, down into its lane and out on the far side.
std::vector<QPointF> RecordingCorners(const CableEnds &ends, const QPointF &end,
                                      const QRectF &body) {
  const double lane = ends.lane + kLaneApart * ends.channel;
  const double up = body.right() + kBesideMixer + kApart * ends.channel;
  return {end, {end.x(), lane}, {up, lane}, {up, ends.plug.y()}, ends.plug};
}

QPointF Mirrored(const QPointF &point, double width) { return {width - point.x(), point.y()}; }

}  // namespace

Cable LayCable(const CableEnds &ends, const QRectF &body, double width, bool isMirrored) {
  if (isMirrored) {
    CableEnds mirrored = ends;
    mirrored.plug = Mirrored(ends.plug, width);
    mirrored.socket = Mirrored(ends.socket, width);
    const QRectF mirroredBody(Mirrored(body.topRight(), width), body.size());
    const Cable cable = LayCable(mirrored, mirroredBody, width, false);
    const QTransform back(-1, 0, 0, 1, width, 0);
    return {back.map(cable.path), back.map(cable.end)};
  }
  const double aside = kEndsApart * (ends.place - (ends.neighbours - 1) / 2.0);
  const QPointF end = ends.socket + QPointF(aside, 0);
  const bool isPlayback = ends.direction == Direction::kPlayback;
  return {
      Rounded(isPlayback ? PlaybackCorners(ends, end, body) : RecordingCorners(ends, end, body)),
      end};
}

QPainterPath LooseCable(const QPointF &from, const QPointF &to) {
  const double sag = std::min(60.0, Length(to - from) / 3);
  QPainterPath path(from);
  path.cubicTo(from + QPointF(0, sag), to + QPointF(0, sag), to);
  return path;
}

}  // namespace setup
