#import "ORVFunc.h"

#include "Deliver.h"
#import "FoundationCall.h"
#include "Observer.h"

namespace {

ORVFunc *theObserver = nil;

template <typename Callback>
void DeliverReceived(const orv::ChangeKind<Callback> &kind, NSNotification *notification) {
  if (const auto userInfo = orv::ReceivedUserInfo(notification)) orv::Deliver(kind, *userInfo);
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
  if (theObserver == nil) return;
  AddObserver(name, {theObserver, operations[static_cast<std::size_t>(operation)]});
}

}  // namespace orv
