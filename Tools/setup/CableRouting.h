#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <vector>

namespace setup {

/// Which way a cable's signal goes.
enum class Direction { kPlayback, kRecording };

/// A cable to be laid, in the coordinates of the drawing.
struct CableEnds {
  Direction direction;
  /// The USB channel, counted from 0: cables of one direction lie in this order.
  int channel;
  /// Where it leaves its card.
  QPointF plug;
  /// The middle of its socket.
  QPointF socket;
  /// The height of the lane in which it leaves the mixer.
  double lane;
  /// Its place among the cables in the same socket, and how many there are.
  int place = 0;
  int neighbours = 1;
};

/// A cable that was laid.
struct Cable {
  QPainterPath path;
  /// Where it ends in its socket.
  QPointF end;
};

/// Lays a cable around the mixer, with round bends, in lanes that hide no socket and no label.
///
/// @param body        the mixer.
/// @param isMirrored  whether the cards of playback are on the right, as where one writes so.
Cable LayCable(const CableEnds &ends, const QRectF &body, double width, bool isMirrored);

/// A cable that hangs on the mouse.
QPainterPath LooseCable(const QPointF &from, const QPointF &to);

}  // namespace setup
