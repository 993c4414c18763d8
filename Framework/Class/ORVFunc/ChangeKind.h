// A kind of change: how it is announced to every process of the user, and which callbacks the host
// of this process has registered for it.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "NotificationCentre.h"
#include "Product.h"

namespace orv {

/// Keeps the dictionary of the last announced change. The library never reads it: it can be seen by
/// name in a debugger. Any thread, without a lock.
class LastPosted {
 public:
  void Keep(const UserInfo &userInfo) { delete held_.exchange(new Held{userInfo}); }

  /// Becomes empty. What it held stays alive for the rest of the process.
  void Empty() noexcept {
    if (Held *const held = held_.exchange(nullptr)) held->before = leftAlive_.exchange(held);
  }

 private:
  struct Held {
    UserInfo userInfo;
    Held *before = nullptr;
  };

  std::atomic<Held *> held_ = nullptr;
  std::atomic<Held *> leftAlive_ = nullptr;
};

/// Callbacks and contexts are indexed by ProductId. Only the receiving thread uses them.
template <typename Callback>
struct ChangeKind {
  const char *nameEnding;  // follows the model's name; null: never announced
  Delivery delivery;
  LastPosted &lastPosted;
  std::array<Callback, kProductIdLimit> callbacks = {};
  std::array<void *, kProductIdLimit> contexts = {};
};

extern ChangeKind<ChannelIndexCallback> inputAudioChange;
extern ChangeKind<ChannelIndexCallback> outputAudioChange;

/// Announces a change of a model that has a display name. Any thread.
void Announce(ChangeKind<ChannelIndexCallback> &kind, ProductId productId, std::int32_t channel,
              std::uint32_t index) noexcept;
void Announce(ChangeKind<IndexCallback> &kind, ProductId productId, std::uint32_t index) noexcept;

/// Makes this the callback of a model, and has changes of the model delivered once more: each call
/// adds one delivery, even for a callback that is registered already. The receiving thread only.
template <typename Callback>
StatusCode Register(ChangeKind<Callback> &kind, const ProductSet &models, ProductId productId,
                    Callback callback, void *context) noexcept;

/// Removes a model's callback. Changes are still delivered, and find no callback. The receiving
/// thread only.
template <typename Callback>
StatusCode Unregister(ChangeKind<Callback> &kind, const ProductSet &models,
                      ProductId productId) noexcept;

/// Calls the callback of the model that a received dictionary names, if there is one. The name of
/// the notification is not used; a number that names no model is ignored. The receiving thread
/// only.
void Deliver(const ChangeKind<ChannelIndexCallback> &kind, const UserInfo &userInfo);
void Deliver(const ChangeKind<IndexCallback> &kind, const UserInfo &userInfo);

/// Observes a name once more: the platform then delivers each notification of that name to the
/// kind. The receiving thread only.
void Observe(const std::string &name, ChangeKind<ChannelIndexCallback> &kind) noexcept;
void Observe(const std::string &name, ChangeKind<IndexCallback> &kind) noexcept;

}  // namespace orv
