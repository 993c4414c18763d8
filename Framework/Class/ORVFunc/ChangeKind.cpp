#include "ChangeKind.h"

#include "OutOfMemory.h"

namespace orv {
namespace {

template <typename Callback>
std::string NameOf(const ChangeKind<Callback> &kind, ProductId productId) {
  return std::string(ModelDisplayName(productId)) + kind.nameEnding;
}

template <typename Callback>
void Post(ChangeKind<Callback> &kind, ProductId productId, const UserInfo &userInfo) {
  kind.lastPosted.Keep(userInfo);
  PostNotification(NameOf(kind, productId), userInfo, kind.delivery);
}

// Any process can post any number, so it is checked before it is used as an index.
template <typename Callback>
Callback CallbackFor(const ChangeKind<Callback> &kind, ProductId productId) {
  return productId < kProductIdLimit ? kind.callbacks[productId] : nullptr;
}

}  // namespace

void Announce(ChangeKind<ChannelIndexCallback> &kind, ProductId productId, std::int32_t channel,
              std::uint32_t index) noexcept {
  WhileMemoryLasts([&] {
    Post(kind, productId,
         {{kProductIdKey, static_cast<std::int32_t>(productId)},
          {kChannelKey, channel},
          {kIndexKey, static_cast<std::int32_t>(index)}});
  });
}

void Announce(ChangeKind<IndexCallback> &kind, ProductId productId, std::uint32_t index) noexcept {
  WhileMemoryLasts([&] {
    Post(kind, productId,
         {{kProductIdKey, static_cast<std::int32_t>(productId)},
          {kIndexKey, static_cast<std::int32_t>(index)}});
  });
}

template <typename Callback>
StatusCode Register(ChangeKind<Callback> &kind, const ProductSet &models, ProductId productId,
                    Callback callback, void *context) noexcept {
  if (!models.Contains(productId)) return ORV_BAD_ARGUMENT;
  kind.lastPosted.Empty();
  WhileMemoryLasts([&] { Observe(NameOf(kind, productId), kind); });
  kind.callbacks[productId] = callback;
  kind.contexts[productId] = context;
  return ORV_SUCCESS;
}

template <typename Callback>
StatusCode Unregister(ChangeKind<Callback> &kind, const ProductSet &models,
                      ProductId productId) noexcept {
  if (!models.Contains(productId)) return ORV_BAD_ARGUMENT;
  kind.callbacks[productId] = nullptr;
  return ORV_SUCCESS;
}

template StatusCode Register(ChangeKind<ChannelIndexCallback> &, const ProductSet &, ProductId,
                             ChannelIndexCallback, void *) noexcept;
template StatusCode Register(ChangeKind<IndexCallback> &, const ProductSet &, ProductId,
                             IndexCallback, void *) noexcept;
template StatusCode Unregister(ChangeKind<ChannelIndexCallback> &, const ProductSet &,
                               ProductId) noexcept;
template StatusCode Unregister(ChangeKind<IndexCallback> &, const ProductSet &, ProductId) noexcept;

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
