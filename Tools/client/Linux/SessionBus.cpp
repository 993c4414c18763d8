#include "SessionBus.h"

#include <chrono>
#include <memory>

#include <systemd/sd-bus.h>

namespace client {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{5};

struct CloseBus {
  void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
};

/// Takes the connection a step further. False when it has failed or time is over.
bool Advance(sd_bus *bus, Clock::time_point deadline) {
  const int processed = sd_bus_process(bus, nullptr);
  if (processed != 0) return processed > 0;
  const auto left =
      std::chrono::duration_cast<std::chrono::microseconds>(deadline - Clock::now()).count();
  return left > 0 && sd_bus_wait(bus, static_cast<uint64_t>(left)) >= 0;
}

using Bus = std::unique_ptr<sd_bus, CloseBus>;

/// Connects, or tells why not.
SessionBusState Connect(Bus &bus) {
  sd_bus *raw = nullptr;
  if (sd_bus_open_user(&raw) < 0) return SessionBusState::kMissing;
  bus.reset(raw);
  const auto deadline = Clock::now() + kPatience;
  while (sd_bus_is_ready(raw) == 0) {
    if (Advance(raw, deadline)) continue;
    return Clock::now() < deadline ? SessionBusState::kMissing : SessionBusState::kNoAnswer;
  }
  return sd_bus_is_ready(raw) > 0 ? SessionBusState::kReached : SessionBusState::kMissing;
}

}  // namespace

SessionBusState ReachSessionBus() {
  Bus bus;
  return Connect(bus);
}

struct SessionBusWatch::Connection {
  Bus bus;  // null while the bus is not reached
};

SessionBusWatch::SessionBusWatch() : connection_(std::make_unique<Connection>()) { State(); }

SessionBusWatch::~SessionBusWatch() = default;

int SessionBusWatch::Descriptor() const {
  return connection_->bus ? sd_bus_get_fd(connection_->bus.get()) : -1;
}

SessionBusState SessionBusWatch::State() {
  Bus &bus = connection_->bus;
  SessionBusState state = SessionBusState::kReached;
  int processed = bus ? 1 : -1;
  while (processed > 0) processed = sd_bus_process(bus.get(), nullptr);
  if (processed < 0) {
    bus.reset();
    state = Connect(bus);
  }
  if (state != SessionBusState::kReached) bus.reset();
  return state;
}

}  // namespace client
