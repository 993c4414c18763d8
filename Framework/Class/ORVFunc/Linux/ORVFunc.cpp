#include "ORVFunc.h"

#include <array>
#include <atomic>
#include <new>

#include "Deliver.h"
#include "Observer.h"

namespace orv {
namespace {

std::atomic<ORVFunc *> theObserver = nullptr;

// Calls one operation of the observer. The centre knows only plain functions.
template <void (ORVFunc::*operation)(const Notification &)>
void Call(const Notification &notification) {
  (theObserver.load()->*operation)(notification);
}

// By ObserverOperation.
constexpr std::array<NotificationHandler, 5> kHandlers = {
    Call<&ORVFunc::inputAudioChanged>, Call<&ORVFunc::outputAudioChanged>,
    Call<&ORVFunc::boostLevelChanged>, Call<&ORVFunc::midiChannelChanged>,
    Call<&ORVFunc::midiKeyModeChanged>};

}  // namespace

void ORVFunc::inputAudioChanged(const Notification &notification) {
  Deliver(kInputAudioChange, notification.userInfo);
}

void ORVFunc::outputAudioChanged(const Notification &notification) {
  Deliver(kOutputAudioChange, notification.userInfo);
}

void ORVFunc::boostLevelChanged(const Notification &notification) {
  Deliver(kBoostLevelChange, notification.userInfo);
}

void ORVFunc::midiChannelChanged(const Notification &notification) {
  Deliver(kMidiChannelChange, notification.userInfo);
}

void ORVFunc::midiKeyModeChanged(const Notification &notification) {
  Deliver(kMidiKeyModeChange, notification.userInfo);
}

void MakeObserver() noexcept {
  if (theObserver.load() == nullptr) theObserver.store(new (std::nothrow) ORVFunc);
}

// Without memory for an observer there is nobody to call.
void Observe(const std::string &name, ObserverOperation operation) noexcept {
  if (theObserver.load() == nullptr) return;
  AddObserver(name, kHandlers[static_cast<std::size_t>(operation)]);
}

}  // namespace orv
