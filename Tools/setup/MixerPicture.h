#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

#include "MixerLayout.h"

namespace setup {

/// What the picture of the mixer shows besides cables.
struct MixerLook {
  QString name;
  bool isConnected = false;
  bool isSecondBehind = false;
  bool hasSockets = true;
  /// By mixer channel: the position of its input selector, as far as it is reported.
  std::vector<std::optional<int>> selectors = {};
  /// The mixer channels whose selector has to be turned.
  std::vector<int> toTurn = {};

  bool operator==(const MixerLook &) const = default;
};

/// Draws the mixer without cables.
///
/// @param body  where it is; everything on it scales with it.
void DrawMixer(QPainter &painter, const QRectF &body, const MixerLook &look);

/// From the drawing's own units to a place on the screen.
QPointF OnMixer(const QRectF &body, const QPointF &point);

/// How large the drawing is compared with its own units.
double MixerScale(const QRectF &body);

}  // namespace setup
