#import "ORVFunc.h"

#include <array>
#include <span>

#include "Deliver.h"
#import "FoundationCall.h"
#include "Observer.h"
#include "ReceivedNotification.h"

namespace {

ORVFunc *theObserver = nil;

// What is read of a notification of a kind.
using Keys = std::span<const char *const>;
constexpr std::array kKeysWithChannel = {orv::kProductIdKey, orv::kChannelKey, orv::kIndexKey};
constexpr std::array kKeysWithoutChannel = {orv::kProductIdKey, orv::kIndexKey};
Keys KeysOf(const orv::ChangeKind<ChannelIndexCallback> &) { return kKeysWithChannel; }
Keys KeysOf(const orv::ChangeKind<IndexCallback> &) { return kKeysWithoutChannel; }

template <typename Callback>
void DeliverReceived(const orv::ChangeKind<Callback> &kind, NSNotification *notification) {
  if (const auto userInfo = orv::ReceivedUserInfo(notification, KeysOf(kind)))
    orv::Deliver(kind, *userInfo);
}

}  // namespace

@implementation ORVFunc

- (void)inputAudioChanged:(NSNotification *)notification {
  DeliverReceived(orv::kInputAudioChange, notification);
}

- (void)outputAudioChanged:(NSNotification *)notification {
  DeliverReceived(orv::kOutputAudioChange, notification);
}

- (void)boostLevelChanged:(NSNotification *)notification {
  DeliverReceived(orv::kBoostLevelChange, notification);
}

- (void)midiChannelChanged:(NSNotification *)notification {
  DeliverReceived(orv::kMidiChannelChange, notification);
}

- (void)midiKeyModeChanged:(NSNotification *)notification {
  DeliverReceived(orv::kMidiKeyModeChange, notification);
}

@end

namespace orv {

// Without fields there is nothing to initialise.
void MakeObserver() noexcept {
  if (theObserver == nil)
    theObserver = UnlessRaised<ORVFunc *>(nil, [] { return [ORVFunc alloc]; });
}

void Observe(const std::string &name, ObserverOperation operation) noexcept {
  // In the order of ObserverOperation.
  const SEL operations[] = {
    @selector(inputAudioChanged:),
    @selector(outputAudioChanged:),
    @selector(boostLevelChanged:),
    @selector(midiChannelChanged:),
    @selector(midiKeyModeChanged:)
  };
  static_assert(sizeof operations / sizeof operations[0] ==
                static_cast<std::size_t>(ObserverOperation::kMidiKeyModeChanged) + 1);
  if (theObserver == nil) return;
  AddObserver(name, {theObserver, operations[static_cast<std::size_t>(operation)]});
}

}  // namespace orv
