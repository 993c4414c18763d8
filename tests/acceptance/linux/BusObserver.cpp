#include "BusObserver.h"

#include <chrono>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace trxtest {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{60};

constexpr const char *kPath = "/com/orvikaudio/Setup";
constexpr const char *kInterface = "com.orvikaudio.Setup";
constexpr const char *kMember = "Changed";

int Check(int result, const char *what) {
  if (result < 0) throw std::system_error(-result, std::generic_category(), what);
  return result;
}

struct Release {
  void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, Release>;

std::string Text(const char *text) { return text != nullptr ? text : "(none)"; }

bool IsAnnouncement(sd_bus_message *message) {
  return sd_bus_message_is_signal(message, kInterface, kMember) > 0 &&
         Text(sd_bus_message_get_path(message)) == kPath &&
         sd_bus_message_get_destination(message) == nullptr &&
         sd_bus_message_has_signature(message, "sa{si}") > 0;
}

Announcement Misshapen(sd_bus_message *message) {
  return {"no announcement: path " + Text(sd_bus_message_get_path(message)) + " interface " +
              Text(sd_bus_message_get_interface(message)) + " member " +
              Text(sd_bus_message_get_member(message)) + " signature " +
              Text(sd_bus_message_get_signature(message, 1)),
          {}};
}

Announcement Read(sd_bus_message *message) {
  if (!IsAnnouncement(message)) return Misshapen(message);
  Announcement announcement;
  const char *text = nullptr;
  Check(sd_bus_message_read(message, "s", &text), "read name");
  announcement.name = text;
  Check(sd_bus_message_enter_container(message, 'a', "{si}"), "read dictionary");
  std::int32_t value = 0;
  while (Check(sd_bus_message_read(message, "{si}", &text, &value), "read entry") > 0) {
    announcement.entries.emplace_back(text, value);
  }
  return announcement;
}

Message NewSignal(sd_bus *bus, const char *path, const char *interface, const char *member) {
  sd_bus_message *message = nullptr;
  Check(sd_bus_message_new_signal(bus, &message, path, interface, member), "new signal");
  return Message(message);
}

void AppendDictionary(sd_bus_message *message, const Announcement &announcement) {
  Check(sd_bus_message_open_container(message, 'a', "{si}"), "open dictionary");
  for (const auto &[key, value] : announcement.entries) {
    Check(sd_bus_message_append(message, "{si}", key.c_str(), value), "append entry");
  }
  Check(sd_bus_message_close_container(message), "close dictionary");
}

Message WellShaped(sd_bus *bus, const Announcement &announcement, const char *path = kPath,
                   const char *interface = kInterface, const char *member = kMember) {
  Message message = NewSignal(bus, path, interface, member);
  Check(sd_bus_message_append(message.get(), "s", announcement.name.c_str()), "append name");
  AppendDictionary(message.get(), announcement);
  return message;
}

// The dictionary with values of another type: "s", "v", "u" or "x".
Message WithValuesOf(const char *type, sd_bus *bus, const Announcement &announcement) {
  Message message = NewSignal(bus, kPath, kInterface, kMember);
  Check(sd_bus_message_append(message.get(), "s", announcement.name.c_str()), "append name");
  const std::string entryType = std::string("s") + type;
  Check(sd_bus_message_open_container(message.get(), 'a', ('{' + entryType + '}').c_str()), "open");
  for (const auto &[key, value] : announcement.entries) {
    Check(sd_bus_message_open_container(message.get(), 'e', entryType.c_str()), "open entry");
    Check(sd_bus_message_append(message.get(), "s", key.c_str()), "append key");
    switch (*type) {
      case 's':
        Check(sd_bus_message_append(message.get(), "s", std::to_string(value).c_str()), "append");
        break;
      case 'v':
        Check(sd_bus_message_append(message.get(), "v", "i", value), "append");
        break;
      case 'u':
        Check(sd_bus_message_append(message.get(), "u", static_cast<std::uint32_t>(value)),
              "append");
        break;
      default:
        Check(sd_bus_message_append(message.get(), "x", std::int64_t{value}), "append");
    }
    Check(sd_bus_message_close_container(message.get()), "close entry");
  }
  Check(sd_bus_message_close_container(message.get()), "close");
  return message;
}

Message NameOnly(sd_bus *bus, const Announcement &announcement) {
  Message message = NewSignal(bus, kPath, kInterface, kMember);
  Check(sd_bus_message_append(message.get(), "s", announcement.name.c_str()), "append name");
  return message;
}

Message WithMoreBehind(sd_bus *bus, const Announcement &announcement) {
  Message message = WellShaped(bus, announcement);
  Check(sd_bus_message_append(message.get(), "i", 0), "append");
  return message;
}

Message Empty(sd_bus *bus) { return NewSignal(bus, kPath, kInterface, kMember); }

}  // namespace

BusObserver::BusObserver(const std::string &address) {
  sd_bus *bus = nullptr;
  Check(sd_bus_new(&bus), "new connection");
  bus_.reset(bus);
  Check(sd_bus_set_address(bus, address.c_str()), "address");
  Check(sd_bus_set_bus_client(bus, 1), "client");
  Check(sd_bus_start(bus), "connect");
  Check(sd_bus_add_match(bus, nullptr, "type='signal'", Arrived, this), "observe");
}

std::vector<Announcement> BusObserver::Take(std::size_t count) {
  const auto deadline = Clock::now() + kPatience;
  PassThroughBus();
  while (arrived_.size() < count && Clock::now() < deadline) {
    Check(sd_bus_wait(bus_.get(), 100'000), "wait");
    ProcessAll();
  }
  return std::exchange(arrived_, {});
}

void BusObserver::Post(const Announcement &announcement) {
  Send(WellShaped(bus_.get(), announcement).get());
}

int BusObserver::PostMisshapen(const Announcement &announcement) {
  sd_bus *const bus = bus_.get();
  std::vector<Message> messages;
  messages.push_back(WellShaped(bus, announcement, "/com/orvikaudio/Other"));
  messages.push_back(WellShaped(bus, announcement, kPath, "com.orvikaudio.Other"));
  messages.push_back(WellShaped(bus, announcement, kPath, kInterface, "Other"));
  for (const char *type : {"s", "v", "u", "x"}) {
    messages.push_back(WithValuesOf(type, bus, announcement));
  }
  messages.push_back(NameOnly(bus, announcement));
  messages.push_back(WithMoreBehind(bus, announcement));
  messages.push_back(Empty(bus));
  for (const Message &message : messages) Send(message.get());
  return static_cast<int>(messages.size());
}

void BusObserver::Send(sd_bus_message *message) {
  Check(sd_bus_send(bus_.get(), message, nullptr), "send");
  Check(sd_bus_flush(bus_.get()), "flush");
}

// The bus serves its connections in turn. After two round trips, every connection that had sent
// something before has been served.
void BusObserver::PassThroughBus() {
  for (int trip = 0; trip < 2; ++trip) {
    Check(sd_bus_call_method(bus_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
                             "org.freedesktop.DBus", "GetId", nullptr, nullptr, nullptr),
          "round trip");
  }
  ProcessAll();
}

void BusObserver::ProcessAll() {
  while (Check(sd_bus_process(bus_.get(), nullptr), "process") > 0) {
  }
}

int BusObserver::Arrived(sd_bus_message *message, void *self, sd_bus_error * /*error*/) {
  if (Text(sd_bus_message_get_sender(message)) != "org.freedesktop.DBus") {
    static_cast<BusObserver *>(self)->arrived_.push_back(Read(message));
  }
  return 0;
}

}  // namespace trxtest
