// The session bus as a notification service: the form of a notification on it, and connections.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <systemd/sd-bus.h>

#include "Notification.h"

namespace orv {

/// A notification is the signal Changed of this interface at this path, with the notification's
/// name and its dictionary.
inline constexpr const char *kBusPath = "/com/orvikaudio/Setup";
inline constexpr const char *kBusInterface = "com.orvikaudio.Setup";
inline constexpr const char *kBusMember = "Changed";
inline constexpr const char *kBusSignature = "sa{si}";

/// How long to wait for a bus that exists and does not answer, in microseconds.
inline constexpr std::uint64_t kBusPatience = 5'000'000;

struct CloseBus {
  void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
};
using Bus = std::unique_ptr<sd_bus, CloseBus>;

/// A new connection of this process. It is established during its first use. Null when there is no
/// bus. A connection belongs to one thread.
Bus ConnectToBus() noexcept;

/// Puts a notification into a message and sends it. Returns a negative errno value on failure.
int SendNotification(sd_bus *bus, const std::string &name, const UserInfo &userInfo);

/// The notification in a received message, with the keys of Notification.h; other entries are
/// ignored. Nothing for any other message, another signature, or more than 65,536 entries.
std::optional<Notification> ReadNotification(sd_bus_message *message);

/// The match rule for the notifications of one name.
std::string MatchRule(const std::string &name);

/// The present time in microseconds, on the clock that sd-bus uses for its time limits.
std::uint64_t MonotonicNow() noexcept;

}  // namespace orv
