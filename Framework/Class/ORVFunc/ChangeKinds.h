// The kinds of change that are announced, and for each the callbacks that hosts have registered.
#pragma once

#include <array>
#include <cstdint>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "NotificationCentre.h"
#include "Observer.h"
#include "Product.h"
#include "UserInfoSlot.h"

namespace orv {

/// The keys of a notification's dictionary.
inline constexpr const char *kProductIdKey = "ProductID";
inline constexpr const char *kChannelKey = "Channel";
inline constexpr const char *kIndexKey = "Index";

/// One place a ProductId. Written by Register and Unregister, read by the observer, all on the
/// receiving thread.
template <typename Callback>
using CallbackTable = std::array<Callback, kProductIdLimit>;
using ContextTable = std::array<void *, kProductIdLimit>;

/// One kind of change: how it is announced and who is called.
template <typename Callback>
struct ChangeKind {
  const char *nameEnding;  // stands behind the model's name
  ProductSet models;
  Delivery delivery;
  ObserverOperation operation;
  CallbackTable<Callback> &callbacks;
  ContextTable &contexts;
  UserInfoSlot &lastPosted;
};

extern const ChangeKind<ChannelIndexCallback> kInputAudioChange;
extern const ChangeKind<ChannelIndexCallback> kOutputAudioChange;
extern const ChangeKind<IndexCallback> kBoostLevelChange;
extern const ChangeKind<IndexCallback> kMidiChannelChange;
extern const ChangeKind<IndexCallback> kMidiKeyModeChange;

/// Announces a change to every process of the user; the model must be one that has a display name.
/// Any thread.
void Announce(const ChangeKind<ChannelIndexCallback> &kind, ProductId productId,
              std::int32_t channel, std::uint32_t index) noexcept;
void Announce(const ChangeKind<IndexCallback> &kind, ProductId productId,
              std::uint32_t index) noexcept;

}  // namespace orv
