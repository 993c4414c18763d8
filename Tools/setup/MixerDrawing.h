#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "CableRouting.h"
#include "MixerPicture.h"

namespace setup {

/// What a cable looks like.
enum class CableLook { kPlugged, kSending, kPreview };

/// A cable as the window wants it shown.
struct ShownCable {
  Direction direction;
  /// The USB channel, counted from 0.
  int channel;
  /// Where it leaves its card, in the drawing's coordinates.
  QPointF plug;
  /// Null for a choice without a socket: then only the plug is shown.
  const Socket *socket;
  CableLook look = CableLook::kPlugged;

  bool operator==(const ShownCable &) const = default;
};

/// The mixer with a cable for each route. Cables can be dragged from a USB channel to a socket,
/// from socket to socket, and from a socket to a USB channel.
class MixerDrawing : public QWidget {
  Q_OBJECT

 public:
  explicit MixerDrawing(QWidget *parent = nullptr);

  void ShowMixer(const MixerLook &look);
  void ShowCables(const std::vector<ShownCable> &cables);
  /// Brings the cable of a channel to the front and makes the others pale; nothing for none.
  void SetFront(std::optional<std::pair<Direction, int>> front);

  /// Which channels a socket can be chosen for.
  std::function<bool(Direction, int channel, const Socket &)> canTake;

  /// Where the mixer is.
  QRectF Body() const;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void Dropped(setup::Direction direction, int channel, const setup::Socket *socket);
  void SocketClicked(setup::Direction direction, const setup::Socket *socket, const QPoint &at);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void leaveEvent(QEvent *event) override;

 private:
  /// A cable in the hand of the user.
  struct Drag {
    Direction direction;
    /// Nothing while it hangs from a socket without a channel.
    std::optional<int> channel;
    /// The socket that it was taken from; null when it was taken from a card.
    const Socket *from;
    QPointF start;
    QPointF hand;
    bool isMoved = false;
  };

  struct SocketHit {
    Direction direction;
    const Socket *socket;
  };

  QPointF PlaceOf(const Socket &socket) const;
  std::vector<Cable> Lay() const;
  bool IsPale(const ShownCable &cable) const;
  std::optional<SocketHit> SocketAt(const QPointF &at) const;
  const ShownCable *PlugAt(const QPointF &at) const;
  const ShownCable *CableIn(const SocketHit &hit) const;
  bool CanDrop(const SocketHit &hit) const;
  void Drop();
  void EndDrag();
  void DrawCable(QPainter &painter, const ShownCable &shown, const Cable &cable) const;
  void DrawPlug(QPainter &painter, const ShownCable &shown) const;
  void DrawDrag(QPainter &painter) const;

  MixerLook look_;
  std::vector<ShownCable> cables_;
  std::optional<std::pair<Direction, int>> front_;
  std::optional<Drag> drag_;
  QPixmap picture_;
  QTimer march_;
  double marched_ = 0;
};

}  // namespace setup
