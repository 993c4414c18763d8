#include "SessionBus.h"

#include <algorithm>
#include <cerrno>
#include <string_view>

#include <time.h>

namespace orv {
namespace {

struct ReleaseMessage {
  void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, ReleaseMessage>;

Message NewSignal(sd_bus *bus) {
  sd_bus_message *signal = nullptr;
  sd_bus_message_new_signal(bus, &signal, kBusPath, kBusInterface, kBusMember);
  return Message(signal);
}

int AppendDictionary(sd_bus_message *message, const UserInfo &userInfo) {
  int result = sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "{si}");
  for (const auto &[key, value] : userInfo.Entries()) {
    if (result < 0) return result;
    result = sd_bus_message_append(message, "{si}", key.c_str(), value);
  }
  return result < 0 ? result : sd_bus_message_close_container(message);
}

bool IsNotificationKey(std::string_view key) {
  return std::find(kNotificationKeys.begin(), kNotificationKeys.end(), key) !=
         kNotificationKeys.end();
}

// A dictionary with more entries than this is not read to its end: a message may have many millions
// of them, and dispatching it must not stop the host.
constexpr int kMostEntries = 65'536;

int ReadDictionary(sd_bus_message *message, UserInfo &userInfo) {
  int result = sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{si}");
  if (result < 0) return result;
  const char *key = nullptr;
  std::int32_t value = 0;
  int left = kMostEntries;
  while ((result = sd_bus_message_read(message, "{si}", &key, &value)) > 0) {
    if (left-- == 0) return -E2BIG;
    if (IsNotificationKey(key)) userInfo.Set(key, value);
  }
  return result < 0 ? result : sd_bus_message_exit_container(message);
}

}  // namespace

Bus ConnectToBus() noexcept {
  sd_bus *bus = nullptr;
  if (sd_bus_open_user_with_description(&bus, "TRX-SELVASetup") < 0) return nullptr;
  return Bus(bus);
}

int SendNotification(sd_bus *bus, const std::string &name, const UserInfo &userInfo) {
  const Message signal = NewSignal(bus);
  if (!signal) return -ENOTCONN;
  int result = sd_bus_message_append(signal.get(), "s", name.c_str());
  if (result >= 0) result = AppendDictionary(signal.get(), userInfo);
  return result < 0 ? result : sd_bus_send(bus, signal.get(), nullptr);
}

std::optional<Notification> ReadNotification(sd_bus_message *message) {
  if (sd_bus_message_is_signal(message, kBusInterface, kBusMember) <= 0 ||
      std::string_view(sd_bus_message_get_path(message)) != kBusPath ||
      sd_bus_message_has_signature(message, kBusSignature) <= 0) {
    return std::nullopt;
  }
  const char *name = nullptr;
  Notification notification;
  if (sd_bus_message_read(message, "s", &name) < 0 ||
      ReadDictionary(message, notification.userInfo) < 0) {
    return std::nullopt;
  }
  notification.name = name;
  return notification;
}

std::string MatchRule(const std::string &name) {
  return std::string("type='signal',path='") + kBusPath + "',interface='" + kBusInterface +
         "',member='" + kBusMember + "',arg0='" + name + "'";
}

std::uint64_t MonotonicNow() noexcept {
  timespec now = {};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint64_t>(now.tv_sec) * 1'000'000 +
         static_cast<std::uint64_t>(now.tv_nsec) / 1'000;
}

}  // namespace orv
