#include "Deliver.h"

namespace orv {
namespace {

// The callback of the model that a notification names. Any process can post any number, so it is
// checked before it serves as a place in a table.
template <typename Callback>
Callback CallbackFor(const ChangeKind<Callback> &kind, ProductId productId) {
  return productId < kProductIdLimit ? kind.callbacks[productId] : nullptr;
}

}  // namespace

void Deliver(const ChangeKind<ChannelIndexCallback> &kind, const UserInfo &userInfo) {
  const auto productId = static_cast<ProductId>(userInfo.IntegerForKey(kProductIdKey));
  if (const ChannelIndexCallback callback = CallbackFor(kind, productId)) {
    callback(userInfo.IntegerForKey(kChannelKey), userInfo.IntegerForKey(kIndexKey),
             kind.contexts[productId]);
  }
}

void Deliver(const ChangeKind<IndexCallback> &kind, const UserInfo &userInfo) {
  const auto productId = static_cast<ProductId>(userInfo.IntegerForKey(kProductIdKey));
  if (const IndexCallback callback = CallbackFor(kind, productId)) {
    callback(userInfo.IntegerForKey(kIndexKey), kind.contexts[productId]);
  }
}

}  // namespace orv
