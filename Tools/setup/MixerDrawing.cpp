#include "MixerDrawing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Theme.h"

namespace setup {
namespace {

// Around the mixer: for the cables, the mixer behind and the shadow.
constexpr double kGapOfPlayback = 60;
constexpr double kGapOfRecording = 78;
constexpr double kAbove = 55;
constexpr double kBelow = 26;
constexpr double kSmallestScale = 0.58;

constexpr double kCableWidth = 5;
constexpr double kBadge = 9;
constexpr double kSocketReach = 14;
constexpr QSizeF kPlug{9, 14};
constexpr std::chrono::milliseconds kMarchStep{40};

std::span<const Socket> SocketsOf(Direction direction) {
  return direction == Direction::kPlayback ? PlaybackSockets() : RecordingSockets();
}

double Distance(const QPointF &one, const QPointF &other) {
  return std::hypot(one.x() - other.x(), one.y() - other.y());
}

bool HaveSameEnd(const ShownCable &one, const ShownCable &other) {
  return one.direction == other.direction && one.socket == other.socket;
}

}  // namespace

MixerDrawing::MixerDrawing(QWidget *parent) : QWidget(parent) {
  setObjectName("drawing");
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  march_.setInterval(kMarchStep);
  connect(&march_, &QTimer::timeout, this, [this] {
    marched_ -= 1;
    update();
  });
}

void MixerDrawing::ShowMixer(const MixerLook &look) {
  if (look == look_) return;
  look_ = look;
  picture_ = {};
  update();
}

void MixerDrawing::ShowCables(const std::vector<ShownCable> &cables) {
  if (cables == cables_) return;
  cables_ = cables;
  const bool isSending = std::any_of(cables.begin(), cables.end(), [](const ShownCable &cable) {
    return cable.look == CableLook::kSending;
  });
  if (isSending && !march_.isActive()) march_.start();
  if (!isSending) march_.stop();
  update();
}

void MixerDrawing::SetFront(std::optional<std::pair<Direction, int>> front) {
  if (front == front_) return;
  front_ = front;
  update();
}

QRectF MixerDrawing::Body() const {
  const double gapOfRecording = look_.hasSockets ? kGapOfRecording : kGapOfPlayback / 2;
  const double gapOfPlayback = look_.hasSockets ? kGapOfPlayback : kGapOfPlayback / 2;
  const QSizeF room(width() - gapOfPlayback - gapOfRecording, height() - kAbove - kBelow);
  const double scale =
      std::min(room.width() / kMixerSize.width(), room.height() / kMixerSize.height());
  const QSizeF size = kMixerSize * scale;
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const double left =
      (isMirrored ? gapOfRecording : gapOfPlayback) + (room.width() - size.width()) / 2;
  return {QPointF(left, kAbove + (room.height() - size.height()) / 2), size};
}

QSize MixerDrawing::minimumSizeHint() const {
  return QSizeF(kMixerSize.width() * kSmallestScale + kGapOfPlayback + kGapOfRecording,
                kMixerSize.height() * kSmallestScale + kAbove + kBelow)
      .toSize();
}

QPointF MixerDrawing::PlaceOf(const Socket &socket) const { return OnMixer(Body(), socket.at); }

std::vector<Cable> MixerDrawing::Lay() const {
  const QRectF body = Body();
  std::vector<Cable> laid;
  for (const ShownCable &shown : cables_) {
    if (shown.socket == nullptr) {
      laid.emplace_back();
      continue;
    }
    CableEnds ends{.direction = shown.direction,
                   .channel = shown.channel,
                   .plug = shown.plug,
                   .socket = PlaceOf(*shown.socket),
                   .lane = OnMixer(body, {0, shown.socket->lane}).y()};
    ends.neighbours = 0;
    for (const ShownCable &other : cables_) {
      if (!HaveSameEnd(shown, other)) continue;
      if (&other == &shown) ends.place = ends.neighbours;
      ++ends.neighbours;
    }
    laid.push_back(LayCable(ends, body, width(), layoutDirection() == Qt::RightToLeft));
  }
  return laid;
}

bool MixerDrawing::IsPale(const ShownCable &cable) const {
  if (cable.look == CableLook::kPreview) return false;
  return front_ && *front_ != std::pair(cable.direction, cable.channel);
}

void MixerDrawing::paintEvent(QPaintEvent * /*event*/) {
  if (picture_.isNull()) {
    picture_ = QPixmap(size() * devicePixelRatioF());
    picture_.setDevicePixelRatio(devicePixelRatioF());
    picture_.fill(Qt::transparent);
    QPainter painter(&picture_);
    DrawMixer(painter, Body(), look_);
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, picture_);
  const std::vector<Cable> laid = Lay();
  // Pale ones first, so that the one in front crosses over them.
  for (const bool arePale : {true, false}) {
    for (std::size_t i = 0; i < cables_.size(); ++i) {
      if (IsPale(cables_[i]) == arePale) DrawCable(painter, cables_[i], laid[i]);
    }
  }
  if (drag_ && drag_->isMoved) DrawDrag(painter);
}

void MixerDrawing::DrawCable(QPainter &painter, const ShownCable &shown, const Cable &cable) const {
  const Theme &theme = CurrentTheme();
  const Tint &tint = theme.Channel(shown.channel);
  painter.save();
  const double away = theme.isDark ? 0.55 : 0.5;
  painter.setOpacity(IsPale(shown) ? 0.35 : look_.isConnected ? 1 : away);
  DrawPlug(painter, shown);
  if (shown.socket != nullptr) {
    painter.setBrush(Qt::NoBrush);
    const QPainterPath shadow = cable.path.translated(0, 2);
    painter.setPen(QPen(QColor(0, 0, 0, theme.isDark ? 110 : 60), kCableWidth + 1));
    painter.drawPath(shadow);
    QPen pen(tint.line, kCableWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (shown.look == CableLook::kPreview) pen.setDashPattern({2.2, 0.9});
    painter.setPen(pen);
    painter.drawPath(cable.path);
    if (shown.look == CableLook::kSending) {
      QPen dots(QColor(255, 255, 255, 220), 2.4, Qt::CustomDashLine, Qt::RoundCap);
      dots.setDashPattern({1.2, 6});
      dots.setDashOffset(marched_);
      painter.setPen(dots);
      painter.drawPath(cable.path);
    }
    painter.setPen(QPen(theme.isDark ? QColor("#0b0d10") : QColor("#ffffff"), 1.6));
    painter.setBrush(tint.fill);
    painter.drawEllipse(cable.end, kBadge, kBadge);
    QFont font = ScaledFont(1, QFont::Bold);
    font.setPixelSize(12);
    painter.setFont(font);
    painter.setPen(tint.onFill);
    painter.drawText(QRectF(cable.end - QPointF(kBadge, kBadge), QSizeF(kBadge, kBadge) * 2),
                     Qt::AlignCenter, QString::number(shown.channel + 1));
  }
  painter.restore();
}

void MixerDrawing::DrawPlug(QPainter &painter, const ShownCable &shown) const {
  const bool isAtLeft = shown.plug.x() < width() / 2.0;
  const QPointF corner =
      shown.plug + QPointF(isAtLeft ? -1 : 1 - kPlug.width(), -kPlug.height() / 2);
  painter.setPen(Qt::NoPen);
  painter.setBrush(CurrentTheme().Channel(shown.channel).line);
  painter.drawRoundedRect(QRectF(corner, kPlug), 3, 3);
}

void MixerDrawing::DrawDrag(QPainter &painter) const {
  const Theme &theme = CurrentTheme();
  const QColor colour = drag_->channel ? theme.Channel(*drag_->channel).line : theme.accent.line;
  painter.setBrush(Qt::NoBrush);
  // Where it may be dropped.
  for (const Socket &socket : SocketsOf(drag_->direction)) {
    if (!CanDrop({drag_->direction, &socket})) continue;
    const bool isNear = Distance(PlaceOf(socket), drag_->hand) < kSocketReach;
    painter.setPen(QPen(colour, isNear ? 4 : 2));
    painter.drawEllipse(PlaceOf(socket), kSocketReach - 1, kSocketReach - 1);
  }
  QPen pen(colour, kCableWidth, Qt::SolidLine, Qt::RoundCap);
  pen.setDashPattern({2.2, 1.6});
  painter.setPen(pen);
  painter.drawPath(LooseCable(drag_->start, drag_->hand));
  painter.setPen(QPen(Qt::white, 1.6));
  painter.setBrush(colour);
  painter.drawEllipse(drag_->hand, kBadge - 2, kBadge - 2);
}

std::optional<MixerDrawing::SocketHit> MixerDrawing::SocketAt(const QPointF &at) const {
  if (!look_.hasSockets) return std::nullopt;
  for (const Direction direction : {Direction::kPlayback, Direction::kRecording}) {
    for (const Socket &socket : SocketsOf(direction)) {
      if (Distance(PlaceOf(socket), at) <= kSocketReach) return SocketHit{direction, &socket};
    }
  }
  return std::nullopt;
}

const ShownCable *MixerDrawing::PlugAt(const QPointF &at) const {
  constexpr double kReach = 18;
  const auto found = std::find_if(cables_.begin(), cables_.end(), [&at](const ShownCable &cable) {
    return Distance(cable.plug, at) <= kReach;
  });
  return found == cables_.end() ? nullptr : &*found;
}

const ShownCable *MixerDrawing::CableIn(const SocketHit &hit) const {
  const auto found = std::find_if(cables_.begin(), cables_.end(), [&hit](const ShownCable &cable) {
    return cable.direction == hit.direction && cable.socket == hit.socket;
  });
  return found == cables_.end() ? nullptr : &*found;
}

bool MixerDrawing::CanDrop(const SocketHit &hit) const {
  return drag_ && drag_->channel && drag_->direction == hit.direction && canTake &&
         canTake(hit.direction, *drag_->channel, *hit.socket);
}

void MixerDrawing::mousePressEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton) return;
  const QPointF at = event->position();
  if (const ShownCable *plug = PlugAt(at)) {
    drag_ = Drag{plug->direction, plug->channel, nullptr, plug->plug, at};
  } else if (const auto hit = SocketAt(at)) {
    const ShownCable *cable = CableIn(*hit);
    drag_ = Drag{hit->direction, std::nullopt, hit->socket, PlaceOf(*hit->socket), at};
    // A cable that is pulled out of its socket still hangs on its card.
    if (cable != nullptr) {
      drag_->channel = cable->channel;
      drag_->start = cable->plug;
    }
  }
}

void MixerDrawing::mouseMoveEvent(QMouseEvent *event) {
  if (!drag_) {
    const bool isHand = PlugAt(event->position()) != nullptr || SocketAt(event->position());
    setCursor(isHand ? Qt::PointingHandCursor : Qt::ArrowCursor);
    return;
  }
  const QPointF from = drag_->from != nullptr ? PlaceOf(*drag_->from) : drag_->start;
  if (Distance(from, event->position()) >= QApplication::startDragDistance()) {
    drag_->isMoved = true;
  }
  drag_->hand = event->position();
  setCursor(Qt::ClosedHandCursor);
  update();
}

void MixerDrawing::mouseReleaseEvent(QMouseEvent *event) {
  if (!drag_ || event->button() != Qt::LeftButton) return;
  drag_->hand = event->position();
  if (drag_->isMoved) {
    Drop();
  } else if (drag_->from != nullptr) {
    const Drag click = *drag_;
    EndDrag();
    Q_EMIT SocketClicked(click.direction, click.from, event->globalPosition().toPoint());
    return;
  }
  EndDrag();
}

void MixerDrawing::Drop() {
  const Drag drag = *drag_;
  if (const auto hit = SocketAt(drag.hand); hit && CanDrop(*hit)) {
    Q_EMIT Dropped(hit->direction, *drag.channel, hit->socket);
    return;
  }
  // From a socket to a card.
  const ShownCable *plug = PlugAt(drag.hand);
  if (plug == nullptr || drag.from == nullptr || plug->direction != drag.direction) return;
  if (canTake && canTake(plug->direction, plug->channel, *drag.from)) {
    Q_EMIT Dropped(plug->direction, plug->channel, drag.from);
  }
}

void MixerDrawing::EndDrag() {
  drag_.reset();
  setCursor(Qt::ArrowCursor);
  update();
}

void MixerDrawing::keyPressEvent(QKeyEvent *event) {
  if (drag_ && event->key() == Qt::Key_Escape) {
    EndDrag();
    return;
  }
  QWidget::keyPressEvent(event);
}

void MixerDrawing::leaveEvent(QEvent *event) {
  QWidget::leaveEvent(event);
  if (!drag_) setCursor(Qt::ArrowCursor);
}

void MixerDrawing::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  picture_ = {};
}

void MixerDrawing::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LayoutDirectionChange) {
    picture_ = {};
    update();
  }
}

}  // namespace setup
