#include "ChangeKinds.h"

#include <memory>

#include "OutOfMemory.h"

namespace orv {
namespace {

CallbackTable<ChannelIndexCallback> InputAudioChangedCallback;
CallbackTable<ChannelIndexCallback> OutputAudioChangedCallback;
CallbackTable<IndexCallback> BoostLevelChangedCallback;
CallbackTable<IndexCallback> MidiChannelChangedCallback;
CallbackTable<IndexCallback> MidiKeyModeChangedCallback;

ContextTable InputAudioChangedContext;
ContextTable OutputAudioChangedContext;
ContextTable BoostLevelChangedContext;
ContextTable MidiChannelChangedContext;
ContextTable MidiKeyModeChangedContext;

UserInfoSlot inputAudioInfo;
UserInfoSlot outputAudioInfo;
UserInfoSlot boostLevelInfo;
UserInfoSlot midiChannelInfo;
UserInfoSlot midiKeyModeInfo;

template <typename Callback>
void Post(const ChangeKind<Callback> &kind, ProductId productId,
          std::initializer_list<UserInfo::Entry> entries) {
  const auto userInfo = std::make_shared<const UserInfo>(entries);
  kind.lastPosted.Keep(userInfo);
  PostNotification(std::string(ModelDisplayName(productId)) + kind.nameEnding, *userInfo,
                   kind.delivery);
}

}  // namespace

// A routing change reaches even a receiver that the platform has suspended: what a channel carries
// must not be shown wrong.
const ChangeKind<ChannelIndexCallback> kInputAudioChange = {" InputAudio Change",
                                                            kEveryServedModel,
                                                            Delivery::kImmediately,
                                                            ObserverOperation::kInputAudioChanged,
                                                            InputAudioChangedCallback,
                                                            InputAudioChangedContext,
                                                            inputAudioInfo};
const ChangeKind<ChannelIndexCallback> kOutputAudioChange = {" OutputAudio Change",
                                                             kEveryServedModel,
                                                             Delivery::kImmediately,
                                                             ObserverOperation::kOutputAudioChanged,
                                                             OutputAudioChangedCallback,
                                                             OutputAudioChangedContext,
                                                             outputAudioInfo};
const ChangeKind<IndexCallback> kBoostLevelChange = {" BoostLevel Change",
                                                     kEveryServedModel,
                                                     Delivery::kPlain,
                                                     ObserverOperation::kBoostLevelChanged,
                                                     BoostLevelChangedCallback,
                                                     BoostLevelChangedContext,
                                                     boostLevelInfo};
const ChangeKind<IndexCallback> kMidiChannelChange = {" MidiChannel Change",
                                                      kVoltOnly,
                                                      Delivery::kPlain,
                                                      ObserverOperation::kMidiChannelChanged,
                                                      MidiChannelChangedCallback,
                                                      MidiChannelChangedContext,
                                                      midiChannelInfo};
// No model offers a key mode: nothing is announced, so there is no name.
const ChangeKind<IndexCallback> kMidiKeyModeChange = {nullptr,
                                                      kNoModel,
                                                      Delivery::kPlain,
                                                      ObserverOperation::kMidiKeyModeChanged,
                                                      MidiKeyModeChangedCallback,
                                                      MidiKeyModeChangedContext,
                                                      midiKeyModeInfo};

void Announce(const ChangeKind<ChannelIndexCallback> &kind, ProductId productId,
              std::int32_t channel, std::uint32_t index) noexcept {
  WhileMemoryLasts([&] {
    Post(kind, productId,
         {{kProductIdKey, static_cast<std::int32_t>(productId)},
          {kChannelKey, channel},
          {kIndexKey, static_cast<std::int32_t>(index)}});
  });
}

void Announce(const ChangeKind<IndexCallback> &kind, ProductId productId,
              std::uint32_t index) noexcept {
  WhileMemoryLasts([&] {
    Post(kind, productId,
         {{kProductIdKey, static_cast<std::int32_t>(productId)},
          {kIndexKey, static_cast<std::int32_t>(index)}});
  });
}

}  // namespace orv
