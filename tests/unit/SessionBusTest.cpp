// The form of a notification on the bus, and which messages count as one.
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <systemd/sd-bus.h>

#include "PrivateSessionBus.h"
#include "SessionBus.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using trxtest::PrivateSessionBus;
using trxtest::TemporaryFolder;

constexpr std::uint64_t kPatience = 10'000'000;

struct ReleaseMessage {
  void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, ReleaseMessage>;

// A bus with a sender, and a listener that receives all its signals.
class SessionBus : public testing::Test {
 protected:
  void SetUp() override {
    sender_ = ConnectToBus();
    ASSERT_NE(sender_, nullptr);
    listener_ = Listen("type='signal',path='/com/orvikaudio/Setup'");
  }

  // A connection that asks for the signals of a match rule.
  Bus Listen(const std::string &rule) {
    sd_bus *connection = nullptr;
    EXPECT_GE(sd_bus_new(&connection), 0);
    Bus bus(connection);
    EXPECT_GE(sd_bus_set_address(connection, privateBus_.Address().c_str()), 0);
    EXPECT_GE(sd_bus_set_bus_client(connection, 1), 0);
    EXPECT_GE(sd_bus_start(connection), 0);
    EXPECT_GE(
        sd_bus_call_method(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                           "org.freedesktop.DBus", "AddMatch", nullptr, nullptr, "s", rule.c_str()),
        0);
    return bus;
  }

  // The next signal of the product that a connection receives; null when none arrives in time.
  static Message Next(const Bus &bus) {
    const std::uint64_t deadline = MonotonicNow() + kPatience;
    while (MonotonicNow() < deadline) {
      sd_bus_message *message = nullptr;
      if (sd_bus_process(bus.get(), &message) < 0) return nullptr;
      Message held(message);
      if (held && IsOfProduct(held.get())) return held;
      if (!held) sd_bus_wait(bus.get(), 100'000);
    }
    return nullptr;
  }

  static bool IsOfProduct(sd_bus_message *message) {
    const char *path = sd_bus_message_get_path(message);
    return path != nullptr && std::string(path) == "/com/orvikaudio/Setup";
  }

  // Sends a notification and waits until it has left.
  void Send(const std::string &name, const UserInfo &userInfo) {
    ASSERT_GE(SendNotification(sender_.get(), name, userInfo), 0);
    ASSERT_GE(sd_bus_flush(sender_.get()), 0);
  }

  // A signal with this content, as if it had been received.
  Message Arrived(const std::function<int(sd_bus_message *)> &fill,
                  const char *path = "/com/orvikaudio/Setup",
                  const char *interface = "com.orvikaudio.Setup", const char *member = "Changed") {
    sd_bus_message *message = nullptr;
    EXPECT_GE(sd_bus_message_new_signal(sender_.get(), &message, path, interface, member), 0);
    return Arrived(message, fill);
  }

  static Message Arrived(sd_bus_message *message,
                         const std::function<int(sd_bus_message *)> &fill) {
    Message held(message);
    EXPECT_GE(fill(message), 0);
    EXPECT_GE(sd_bus_message_seal(message, 1, 0), 0);
    EXPECT_GE(sd_bus_message_rewind(message, 1), 0);
    return held;
  }

  PrivateSessionBus privateBus_;
  Bus sender_;
  Bus listener_;
};

// The dictionary of a received message, read without the library.
std::vector<std::pair<std::string, std::int32_t>> DictionaryOf(sd_bus_message *message) {
  std::vector<std::pair<std::string, std::int32_t>> entries;
  EXPECT_GT(sd_bus_message_enter_container(message, 'a', "{si}"), 0);
  while (sd_bus_message_enter_container(message, 'e', "si") > 0) {
    const char *key = nullptr;
    std::int32_t value = 0;
    EXPECT_GT(sd_bus_message_read_basic(message, 's', &key), 0);
    EXPECT_GT(sd_bus_message_read_basic(message, 'i', &value), 0);
    EXPECT_GE(sd_bus_message_exit_container(message), 0);
    entries.emplace_back(key, value);
  }
  EXPECT_GE(sd_bus_message_exit_container(message), 0);
  return entries;
}

TEST_F(SessionBus, TheBusCarriesANotificationAsASignalOfTheAgreedShape) {
  Send("TRX-SELVA InputAudio Change", {{"ProductID", 11}, {"Channel", 1}, {"Index", 7}});
  const Message message = Next(listener_);
  ASSERT_NE(message, nullptr);
  EXPECT_STREQ(sd_bus_message_get_path(message.get()), "/com/orvikaudio/Setup");
  EXPECT_STREQ(sd_bus_message_get_interface(message.get()), "com.orvikaudio.Setup");
  EXPECT_STREQ(sd_bus_message_get_member(message.get()), "Changed");
  EXPECT_STREQ(sd_bus_message_get_signature(message.get(), 1), "sa{si}");
  EXPECT_EQ(sd_bus_message_get_destination(message.get()), nullptr);
  std::uint8_t type = 0;
  EXPECT_GE(sd_bus_message_get_type(message.get(), &type), 0);
  EXPECT_EQ(type, SD_BUS_MESSAGE_SIGNAL);
}

TEST_F(SessionBus, TheBusCarriesNameAndDictionaryInTheOrderOfTheKeys) {
  Send("TRX-SELVA InputAudio Change", {{"ProductID", 11}, {"Channel", -1}, {"Index", 7}});
  const Message message = Next(listener_);
  ASSERT_NE(message, nullptr);
  const char *name = nullptr;
  ASSERT_GT(sd_bus_message_read_basic(message.get(), 's', &name), 0);
  EXPECT_STREQ(name, "TRX-SELVA InputAudio Change");
  EXPECT_THAT(DictionaryOf(message.get()),
              ElementsAre(Pair("ProductID", 11), Pair("Channel", -1), Pair("Index", 7)));
  EXPECT_GT(sd_bus_message_at_end(message.get(), 1), 0);
}

TEST_F(SessionBus, TheBusCarriesAnEmptyDictionary) {
  Send("a name", {});
  const Message message = Next(listener_);
  ASSERT_NE(message, nullptr);
  EXPECT_STREQ(sd_bus_message_get_signature(message.get(), 1), "sa{si}");
  const auto notification = ReadNotification(message.get());
  ASSERT_TRUE(notification);
  EXPECT_THAT(notification->userInfo.Entries(), IsEmpty());
}

TEST_F(SessionBus, TheBusCarriesNotificationsInTheOrderInWhichTheyAreSent) {
  for (std::int32_t i = 0; i < 50; ++i) Send("a name", {{"Index", i}});
  for (std::int32_t i = 0; i < 50; ++i) {
    const Message message = Next(listener_);
    ASSERT_NE(message, nullptr);
    const auto notification = ReadNotification(message.get());
    ASSERT_TRUE(notification);
    EXPECT_EQ(notification->userInfo.IntegerForKey("Index"), i);
  }
}

TEST_F(SessionBus, AReceivedNotificationIsWhatWasSent) {
  Send("TRX-VOLT MidiChannel Change", {{"ProductID", 1}, {"Index", 15}});
  const Message message = Next(listener_);
  ASSERT_NE(message, nullptr);
  const auto notification = ReadNotification(message.get());
  ASSERT_TRUE(notification);
  EXPECT_EQ(notification->name, "TRX-VOLT MidiChannel Change");
  EXPECT_THAT(notification->userInfo.Entries(),
              ElementsAre(Pair("ProductID", 1), Pair("Index", 15)));
}

TEST_F(SessionBus, TheRuleOfANameBringsThatNameAndNoOther) {
  EXPECT_EQ(MatchRule("TRX-SELVA BoostLevel Change"),
            "type='signal',path='/com/orvikaudio/Setup',interface='com.orvikaudio.Setup',"
            "member='Changed',arg0='TRX-SELVA BoostLevel Change'");
  const Bus listener = Listen(MatchRule("TRX-SELVA BoostLevel Change"));
  Send("TRX-VOLT BoostLevel Change", {{"Index", 1}});
  Send("TRX-SELVA BoostLevel", {{"Index", 2}});
  Send("TRX-SELVA BoostLevel Change", {{"Index", 3}});
  const Message message = Next(listener);
  ASSERT_NE(message, nullptr);
  const auto notification = ReadNotification(message.get());
  ASSERT_TRUE(notification);
  EXPECT_EQ(notification->userInfo.IntegerForKey("Index"), 3);
}

TEST_F(SessionBus, AMessageOfTheAgreedShapeIsANotification) {
  const Message message = Arrived([](sd_bus_message *to) {
    return sd_bus_message_append(to, "sa{si}", "name", 2, "Index", 7, "ProductID", 11);
  });
  const auto notification = ReadNotification(message.get());
  ASSERT_TRUE(notification);
  EXPECT_EQ(notification->name, "name");
  EXPECT_THAT(notification->userInfo.Entries(),
              ElementsAre(Pair("Index", 7), Pair("ProductID", 11)));
}

// A notification with this many other entries before its own.
int AppendMany(sd_bus_message *to, int others) {
  int result = sd_bus_message_append(to, "s", "name");
  if (result >= 0) result = sd_bus_message_open_container(to, 'a', "{si}");
  for (int i = 0; i < others && result >= 0; ++i) {
    result = sd_bus_message_append(to, "{si}", ("key " + std::to_string(i)).c_str(), i);
  }
  if (result >= 0) result = sd_bus_message_append(to, "{si}", "Index", 7);
  return result < 0 ? result : sd_bus_message_close_container(to);
}

TEST_F(SessionBus, OtherEntriesArePassedOver) {
  const Message few = Arrived([](sd_bus_message *to) {
    return sd_bus_message_append(to, "sa{si}", "name", 6, "index", 1, "Channel", 2, "", 3, "Index",
                                 4, "Index ", 5, "ProductID", 6);
  });
  const auto notification = ReadNotification(few.get());
  ASSERT_TRUE(notification);
  EXPECT_THAT(notification->userInfo.Entries(),
              ElementsAre(Pair("Channel", 2), Pair("Index", 4), Pair("ProductID", 6)));
}

TEST_F(SessionBus, OnlyTheKnownOfManyEntriesAreKept) {
  const Message many = Arrived([](sd_bus_message *to) { return AppendMany(to, 50'000); });
  const auto notification = ReadNotification(many.get());
  ASSERT_TRUE(notification);
  EXPECT_THAT(notification->userInfo.Entries(), ElementsAre(Pair("Index", 7)));
}

TEST_F(SessionBus, AMessageWithMoreThan65536EntriesIsNone) {
  const Message most = Arrived([](sd_bus_message *to) { return AppendMany(to, 65'535); });
  EXPECT_TRUE(ReadNotification(most.get()));
  const Message tooMany = Arrived([](sd_bus_message *to) { return AppendMany(to, 65'536); });
  EXPECT_FALSE(ReadNotification(tooMany.get()));
}

TEST_F(SessionBus, AKeyThatComesTwiceHasItsLastValue) {
  const Message message = Arrived([](sd_bus_message *to) {
    return sd_bus_message_append(to, "sa{si}", "name", 2, "Index", 7, "Index", 8);
  });
  const auto notification = ReadNotification(message.get());
  ASSERT_TRUE(notification);
  EXPECT_THAT(notification->userInfo.Entries(), ElementsAre(Pair("Index", 8)));
}

TEST_F(SessionBus, AMessageOfAnotherShapeIsNone) {
  const std::vector<std::function<int(sd_bus_message *)>> others = {
      [](sd_bus_message *) { return 0; },
      [](sd_bus_message *to) { return sd_bus_message_append(to, "s", "name"); },
      [](sd_bus_message *to) { return sd_bus_message_append(to, "a{si}", 1, "Index", 7); },
      [](sd_bus_message *to) { return sd_bus_message_append(to, "si", "name", 7); },
      [](sd_bus_message *to) {
        return sd_bus_message_append(to, "oa{si}", "/name", 1, "Index", 7);
      },
      [](sd_bus_message *to) { return sd_bus_message_append(to, "sa{su}", "name", 1, "Index", 7); },
      [](sd_bus_message *to) {
        return sd_bus_message_append(to, "sa{ss}", "name", 1, "Index", "7");
      },
      [](sd_bus_message *to) {
        return sd_bus_message_append(to, "sa{sv}", "name", 1, "Index", "i", 7);
      },
      [](sd_bus_message *to) { return sd_bus_message_append(to, "sa(si)", "name", 1, "Index", 7); },
      [](sd_bus_message *to) { return sd_bus_message_append(to, "sa{si}i", "name", 1, "I", 7, 8); },
      [](sd_bus_message *to) { return sd_bus_message_append(to, "a{si}s", 1, "Index", 7, "name"); },
  };
  for (std::size_t i = 0; i < others.size(); ++i) {
    EXPECT_FALSE(ReadNotification(Arrived(others[i]).get()).has_value()) << "shape " << i;
  }
}

// Match rules apply to broadcast signals; anyone may send anything to one connection.
TEST_F(SessionBus, ASignalOfAnotherPathInterfaceOrMemberIsNone) {
  const auto fill = [](sd_bus_message *to) {
    return sd_bus_message_append(to, "sa{si}", "name", 1, "Index", 7);
  };
  const auto isNotification = [&](const char *path, const char *interface, const char *member) {
    return ReadNotification(Arrived(fill, path, interface, member).get()).has_value();
  };
  EXPECT_TRUE(isNotification("/com/orvikaudio/Setup", "com.orvikaudio.Setup", "Changed"));
  EXPECT_FALSE(isNotification("/com/orvikaudio/Setup/a", "com.orvikaudio.Setup", "Changed"));
  EXPECT_FALSE(isNotification("/com/orvikaudio", "com.orvikaudio.Setup", "Changed"));
  EXPECT_FALSE(isNotification("/com/orvikaudio/Setup", "com.orvikaudio.Setup2", "Changed"));
  EXPECT_FALSE(isNotification("/com/orvikaudio/Setup", "com.orvikaudio.Setup", "Changes"));
}

TEST_F(SessionBus, ACallOfAMethodOfTheSameNameIsNone) {
  sd_bus_message *call = nullptr;
  ASSERT_GE(
      sd_bus_message_new_method_call(sender_.get(), &call, "org.freedesktop.DBus",
                                     "/com/orvikaudio/Setup", "com.orvikaudio.Setup", "Changed"),
      0);
  const Message message = Arrived(call, [](sd_bus_message *to) {
    return sd_bus_message_append(to, "sa{si}", "name", 1, "Index", 7);
  });
  EXPECT_FALSE(ReadNotification(message.get()).has_value());
}

TEST(SessionBusThatIsAway, ABusThatIsAwayGivesNoConnection) {
  const TemporaryFolder folder;
  setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + (folder / "bus")).c_str(), 1);
  EXPECT_EQ(ConnectToBus(), nullptr);
  unsetenv("DBUS_SESSION_BUS_ADDRESS");
  setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
  EXPECT_EQ(ConnectToBus(), nullptr);
}

}  // namespace
}  // namespace orv
