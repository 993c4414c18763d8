// The observer of this process: receives the notifications for which a host has registered.
#include <array>
#include <span>

#import <Foundation/Foundation.h>

#import "FoundationCall.h"
#include "ReceivedNotification.h"
#include "Setting.h"

// An operation that is missing or misspelled does not compile.
#pragma clang diagnostic error "-Wincomplete-implementation"
#pragma clang diagnostic error "-Wundeclared-selector"

/// One operation a kind of change, in this order. The receiving thread only.
@interface ORVFunc : NSObject
- (void)inputAudioChanged:(NSNotification *)notification;
- (void)outputAudioChanged:(NSNotification *)notification;
- (void)boostLevelChanged:(NSNotification *)notification;
- (void)midiChannelChanged:(NSNotification *)notification;
- (void)midiKeyModeChanged:(NSNotification *)notification;
@end

/// Observes a kind of change that came to the library later and has no operation above.
@interface ORVKindObserver : NSObject {
 @public
  const void *kind;
  void (*receive)(const void *kind, NSNotification *notification);
}
- (void)changed:(NSNotification *)notification;
@end

namespace {

// The keys that are read from a notification of a kind.
using Keys = std::span<const char *const>;
constexpr std::array kKeysWithChannel = {orv::kProductIdKey, orv::kChannelKey, orv::kIndexKey};
constexpr std::array kKeysWithoutChannel = {orv::kProductIdKey, orv::kIndexKey};
Keys KeysOf(const orv::ChangeKind<ChannelIndexCallback> &) { return kKeysWithChannel; }
Keys KeysOf(const orv::ChangeKind<IndexCallback> &) { return kKeysWithoutChannel; }

template <typename Callback>
void Receive(const orv::ChangeKind<Callback> &kind, NSNotification *notification) {
  if (const auto userInfo = orv::ReceivedUserInfo(notification, KeysOf(kind)))
    orv::Deliver(kind, *userInfo);
}

}  // namespace

@implementation ORVFunc
- (void)inputAudioChanged:(NSNotification *)notification {
  Receive(orv::inputAudioChange, notification);
}
- (void)outputAudioChanged:(NSNotification *)notification {
  Receive(orv::outputAudioChange, notification);
}
- (void)boostLevelChanged:(NSNotification *)notification {
  Receive(orv::boostLevel.change, notification);
}
- (void)midiChannelChanged:(NSNotification *)notification {
  Receive(orv::midiChannel.change, notification);
}
- (void)midiKeyModeChanged:(NSNotification *)notification {
  Receive(orv::midiKeyMode.change, notification);
}
@end

@implementation ORVKindObserver
- (void)changed:(NSNotification *)notification {
  receive(kind, notification);
}
@end

namespace orv {
namespace {

// The one observer of the process, made by the first registration and never released. It has no
// fields, so there is nothing to initialise.
ORVFunc *TheObserver() {
  static ORVFunc *observer = nil;
  if (observer == nil) observer = UnlessRaised<ORVFunc *>(nil, [] { return [ORVFunc alloc]; });
  return observer;
}

template <typename Callback>
ORVKindObserver *ObserverOf(const ChangeKind<Callback> &kind) {
  ORVKindObserver *const observer =
      UnlessRaised<ORVKindObserver *>(nil, [] { return [ORVKindObserver alloc]; });
  if (observer == nil) return nil;
  observer->kind = &kind;
  observer->receive = [](const void *received, NSNotification *notification) {
    Receive(*static_cast<const ChangeKind<Callback> *>(received), notification);
  };
  return observer;
}

// Null for a kind that has no operation.
SEL OperationFor(const ChangeKind<ChannelIndexCallback> &kind) {
  if (&kind == &inputAudioChange) return @selector(inputAudioChanged:);
  if (&kind == &outputAudioChange) return @selector(outputAudioChanged:);
  return nullptr;
}

SEL OperationFor(const ChangeKind<IndexCallback> &kind) {
  if (&kind == &boostLevel.change) return @selector(boostLevelChanged:);
  if (&kind == &midiChannel.change) return @selector(midiChannelChanged:);
  if (&kind == &midiKeyMode.change) return @selector(midiKeyModeChanged:);
  return nullptr;
}

template <typename Callback>
void AddObservation(const std::string &name, const ChangeKind<Callback> &kind) noexcept {
  const SEL operation = OperationFor(kind);
  const id observer = operation != nullptr ? id{TheObserver()} : id{ObserverOf(kind)};
  if (observer == nil) return;
  AddObserver(name, { observer, operation != nullptr ? operation : @selector(changed:) });
}

}  // namespace

void Observe(const std::string &name, ChangeKind<ChannelIndexCallback> &kind) noexcept {
  AddObservation(name, kind);
}

void Observe(const std::string &name, ChangeKind<IndexCallback> &kind) noexcept {
  AddObservation(name, kind);
}

}  // namespace orv
