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

/// Keeps the dictionary of the change announced last. The library never reads it: it is there under
/// its name for whoever looks into a process with a debugger. Any thread, without a lock.
class LastPosted {
 public:
  void Keep(const UserInfo &userInfo) { delete held_.exchange(new Held{userInfo}); }

  /// Holds nothing any more. What was held stays alive for the rest of the process.
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

/// Callbacks and contexts have one place a ProductId. Only the receiving thread touches them.
template <typename Callback>
struct ChangeKind {
  const char *nameEnding;  // stands behind the model's name; null: never announced
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

/// Takes a model's callback away. What is announced is delivered as before and finds no callback.
/// The receiving thread only.
template <typename Callback>
StatusCode Unregister(ChangeKind<Callback> &kind, const ProductSet &models,
                      ProductId productId) noexcept;

/// Calls the callback of the model that a received dictionary names, if it has one. The name of the
/// notification does not matter, and a number that names no model is ignored. The receiving thread
/// only.
void Deliver(const ChangeKind<ChannelIndexCallback> &kind, const UserInfo &userInfo);
void Deliver(const ChangeKind<IndexCallback> &kind, const UserInfo &userInfo);

/// Adds one observation of a name, by the means of the platform: each notification of that name is
/// delivered to the kind. The receiving thread only.
void Observe(const std::string &name, ChangeKind<ChannelIndexCallback> &kind) noexcept;
void Observe(const std::string &name, ChangeKind<IndexCallback> &kind) noexcept;

}  // namespace orv
