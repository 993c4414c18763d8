#include "ChangeKind.h"

namespace orv {
namespace {

template <typename Callback>
void AddObservation(const std::string &name, ChangeKind<Callback> &kind) noexcept {
  const auto deliver = [](void *receiver, const Notification &notification) {
    Deliver(*static_cast<const ChangeKind<Callback> *>(receiver), notification.userInfo);
  };
  AddObserver(name, {deliver, &kind});
}

}  // namespace

void Observe(const std::string &name, ChangeKind<ChannelIndexCallback> &kind) noexcept {
  AddObservation(name, kind);
}

void Observe(const std::string &name, ChangeKind<IndexCallback> &kind) noexcept {
  AddObservation(name, kind);
}

}  // namespace orv
