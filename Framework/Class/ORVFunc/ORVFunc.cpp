#include "ORVFunc.h"

#include <atomic>
#include <new>

#include "ChangeKinds.h"

namespace orv {
namespace {

std::atomic<ORVFunc *> theObserver = nullptr;

// The callback of the model that a notification names. Any process can post any number, so it is
// checked before it serves as a place in a table.
template <typename Callback>
Callback CallbackFor(const ChangeKind<Callback> &kind, ProductId productId) {
  return productId < kProductIdLimit ? kind.callbacks[productId] : nullptr;
}

void Deliver(const ChangeKind<ChannelIndexCallback> &kind, const Notification &notification) {
  const UserInfo &info = notification.userInfo;
  const auto productId = static_cast<ProductId>(info.IntegerForKey(kProductIdKey));
  if (const ChannelIndexCallback callback = CallbackFor(kind, productId)) {
    callback(info.IntegerForKey(kChannelKey), info.IntegerForKey(kIndexKey),
             kind.contexts[productId]);
  }
}

void Deliver(const ChangeKind<IndexCallback> &kind, const Notification &notification) {
  const UserInfo &info = notification.userInfo;
  const auto productId = static_cast<ProductId>(info.IntegerForKey(kProductIdKey));
  if (const IndexCallback callback = CallbackFor(kind, productId)) {
    callback(info.IntegerForKey(kIndexKey), kind.contexts[productId]);
  }
}

}  // namespace

void ORVFunc::inputAudioChanged(const Notification &notification) {
  Deliver(kInputAudioChange, notification);
}

void ORVFunc::outputAudioChanged(const Notification &notification) {
  Deliver(kOutputAudioChange, notification);
}

void ORVFunc::boostLevelChanged(const Notification &notification) {
  Deliver(kBoostLevelChange, notification);
}

void ORVFunc::midiChannelChanged(const Notification &notification) {
  Deliver(kMidiChannelChange, notification);
}

void ORVFunc::midiKeyModeChanged(const Notification &notification) {
  Deliver(kMidiKeyModeChange, notification);
}

ORVFunc *Observer() noexcept {
  if (theObserver.load() == nullptr) theObserver.store(new (std::nothrow) ORVFunc);
  return theObserver.load();
}

}  // namespace orv
