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
  const orv::ChangeKind<IndexCallback> *kind;
}
- (void)changed:(NSNotification *)notification;
@end

namespace {

// What is read of a notification of a kind.
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
  Receive(*kind, notification);
}
@end

namespace orv {
namespace {

// The one observer of the process, made by the first registration and never released. Without
// fields there is nothing to initialise.
ORVFunc *TheObserver() {
  static ORVFunc *observer = nil;
  if (observer == nil) observer = UnlessRaised<ORVFunc *>(nil, [] { return [ORVFunc alloc]; });
  return observer;
}

ORVKindObserver *ObserverOf(const ChangeKind<IndexCallback> &kind) {
  ORVKindObserver *const observer =
      UnlessRaised<ORVKindObserver *>(nil, [] { return [ORVKindObserver alloc]; });
  if (observer != nil) observer->kind = &kind;
  return observer;
}

void AddHandler(const std::string &name, NotificationHandler handler) {
  if (handler.observer != nil) AddObserver(name, handler);
}

}  // namespace

void Observe(const std::string &name, ChangeKind<ChannelIndexCallback> &kind) noexcept {
  AddHandler(name, {
    TheObserver(),
        &kind == &inputAudioChange ? @selector(inputAudioChanged:) : @selector(outputAudioChanged:)
  });
}

void Observe(const std::string &name, ChangeKind<IndexCallback> &kind) noexcept {
  if (&kind == &boostLevel.change) {
    AddHandler(name, { TheObserver(), @selector(boostLevelChanged:) });
  } else if (&kind == &midiChannel.change) {
    AddHandler(name, { TheObserver(), @selector(midiChannelChanged:) });
  } else {
    AddHandler(name, { ObserverOf(kind), @selector(changed:) });
  }
}

}  // namespace orv
