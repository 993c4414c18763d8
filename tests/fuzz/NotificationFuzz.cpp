// The input describes messages, which are sent over a real bus to this process. Every callback that
// a host can register is registered once. For each message:
//   1 byte   the name: one of those that are observed, then others
//   1 byte   below 128: a well-formed notification, for 127 after many entries of another program,
//            whose number the next byte gives; else another kind of message
//   1 byte   how many entries or other repeated parts
//   the parts: 1 byte selects a key or text, 4 bytes are a number
#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <poll.h>
#include <systemd/sd-bus.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Promise.h"
#include "Surroundings.h"
#include "support/PrivateSessionBus.h"
#include "support/RemovalAtTheEnd.h"

namespace trxfuzz {
namespace {

constexpr const char *kPath = "/com/orvikaudio/Setup";
constexpr const char *kInterface = "com.orvikaudio.Setup";
constexpr const char *kMember = "Changed";
constexpr const char *kShape = "sa{si}";

constexpr std::size_t kMostMessages = 32;
constexpr std::size_t kMostParts = 6;
constexpr std::uint8_t kWithManyOthers = 127;
constexpr std::size_t kMostEntries = 65'536;
constexpr auto kPatience = std::chrono::seconds(30);

/// Reads the parts of the input; zeros after its end.
class Input {
 public:
  Input(const std::uint8_t *data, std::size_t size) : data_(data), size_(size) {}

  bool IsOver() const { return size_ == 0; }

  std::uint8_t Byte() {
    if (size_ == 0) return 0;
    --size_;
    return *data_++;
  }

  std::int32_t Number() {
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i) number = number << 8 | Byte();
    return static_cast<std::int32_t>(number);
  }

 private:
  const std::uint8_t *data_;
  std::size_t size_;
};

// --- What is registered ----------------------------------------------------------------------

enum class Kind { kInputAudio, kOutputAudio, kBoostLevel, kMidiChannel };

/// One callback's place, which is also its context.
struct Place {
  Kind kind;
  std::int32_t productId;
  const char *name;
};

constexpr std::array<Place, 19> kPlaces = {{
    {Kind::kInputAudio, 0, "TRX-Arden InputAudio Change"},
    {Kind::kInputAudio, 1, "TRX-VOLT InputAudio Change"},
    {Kind::kInputAudio, 5, "TRX-HALDEN InputAudio Change"},
    {Kind::kInputAudio, 6, "TRX-LUMEN InputAudio Change"},
    {Kind::kInputAudio, 8, "TRX-MORROW InputAudio Change"},
    {Kind::kInputAudio, 11, "TRX-SELVA InputAudio Change"},
    {Kind::kOutputAudio, 0, "TRX-Arden OutputAudio Change"},
    {Kind::kOutputAudio, 1, "TRX-VOLT OutputAudio Change"},
    {Kind::kOutputAudio, 5, "TRX-HALDEN OutputAudio Change"},
    {Kind::kOutputAudio, 6, "TRX-LUMEN OutputAudio Change"},
    {Kind::kOutputAudio, 8, "TRX-MORROW OutputAudio Change"},
    {Kind::kOutputAudio, 11, "TRX-SELVA OutputAudio Change"},
    {Kind::kBoostLevel, 0, "TRX-Arden BoostLevel Change"},
    {Kind::kBoostLevel, 1, "TRX-VOLT BoostLevel Change"},
    {Kind::kBoostLevel, 5, "TRX-HALDEN BoostLevel Change"},
    {Kind::kBoostLevel, 6, "TRX-LUMEN BoostLevel Change"},
    {Kind::kBoostLevel, 8, "TRX-MORROW BoostLevel Change"},
    {Kind::kBoostLevel, 11, "TRX-SELVA BoostLevel Change"},
    {Kind::kMidiChannel, 1, "TRX-VOLT MidiChannel Change"},
}};

constexpr std::array<const char *, 5> kOtherNames = {"TRX-SELVA MidiChannel Change",
                                                     "TRX-SELVA MidiKeyMode Change", "",
                                                     "TRX-SELVA", "TRX-SELVA BoostLevel Change "};

/// One call of a callback.
struct Call {
  const Place *place;
  std::int32_t channel;
  std::int32_t index;

  bool operator==(const Call &) const = default;
};

std::vector<Call> calls;

void ChannelIndexChanged(std::int32_t channel, std::int32_t index, void *place) {
  calls.push_back({static_cast<const Place *>(place), channel, index});
}

void IndexChanged(std::int32_t index, void *place) {
  calls.push_back({static_cast<const Place *>(place), 0, index});
}

void Register(const Place &place) {
  void *const context = const_cast<Place *>(&place);
  const auto product = static_cast<ProductId>(place.productId);
  switch (place.kind) {
    case Kind::kInputAudio:
      ORV_RegisterInputAudioChangedCallback(product, ChannelIndexChanged, context);
      return;
    case Kind::kOutputAudio:
      ORV_RegisterOutputAudioChangedCallback(product, ChannelIndexChanged, context);
      return;
    case Kind::kBoostLevel:
      ORV_RegisterBoostLevelChangedCallback(product, IndexChanged, context);
      return;
    case Kind::kMidiChannel:
      ORV_RegisterMidiChannelChangedCallback(product, IndexChanged, context);
      return;
  }
}

// --- Messages --------------------------------------------------------------------------------

struct ReleaseMessage {
  void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, ReleaseMessage>;

struct CloseBus {
  void operator()(sd_bus *bus) const { sd_bus_flush_close_unref(bus); }
};
using Bus = std::unique_ptr<sd_bus, CloseBus>;

using Entries = std::map<std::string, std::int32_t>;

std::string NameSelectedBy(std::uint8_t byte) {
  const std::size_t place = byte % (kPlaces.size() + kOtherNames.size());
  return place < kPlaces.size() ? kPlaces[place].name : kOtherNames[place - kPlaces.size()];
}

std::string KeySelectedBy(std::uint8_t byte) {
  constexpr std::array<const char *, 8> kKeys = {"ProductID", "Channel",   "Index",   "",
                                                 "productid", "ProductId", "Index\n", "\u00DF"};
  return kKeys[byte % kKeys.size()];
}

Message NewMessage(sd_bus *bus, const char *path, const char *interface, const char *member) {
  sd_bus_message *message = nullptr;
  Promise(sd_bus_message_new_signal(bus, &message, path, interface, member) >= 0,
          "a message can be made");
  return Message(message);
}

/// The number of entries of another program for a byte: a few, or the most that are allowed.
std::size_t OthersOf(std::uint8_t byte) {
  return byte == 255 ? kMostEntries : byte * std::size_t{8};
}

/// A well-formed notification. Its entries after the `others` entries of another program are also
/// put into `entries`; nothing is put there when it is too long to be accepted.
Message Notification(sd_bus *bus, const char *name, std::size_t others, Input &input,
                     std::optional<Entries> &entries) {
  Message message = NewMessage(bus, kPath, kInterface, kMember);
  sd_bus_message_append(message.get(), "s", name);
  sd_bus_message_open_container(message.get(), 'a', "{si}");
  for (std::size_t i = 0; i < others; ++i) {
    sd_bus_message_append(message.get(), "{si}", std::to_string(i).c_str(), 7);
  }
  const std::size_t parts = input.Byte() % (kMostParts + 1);
  if (others + parts <= kMostEntries) entries.emplace();
  for (std::size_t left = parts; left > 0; --left) {
    const std::string key = KeySelectedBy(input.Byte());
    const std::int32_t value = input.Number();
    sd_bus_message_append(message.get(), "{si}", key.c_str(), value);
    if (entries) (*entries)[key] = value;  // of two entries with the same key, the last one counts
  }
  sd_bus_message_close_container(message.get());
  return message;
}

std::size_t TypeLength(std::string_view signature) {
  if (signature.front() == 'a') return 1 + TypeLength(signature.substr(1));
  const std::size_t close = signature.find(signature.front() == '{' ? '}' : ')');
  return signature.front() == '{' || signature.front() == '(' ? close + 1 : 1;
}

void AppendAll(sd_bus_message *message, std::string_view signature, const char *name, Input &input);

void AppendContainer(sd_bus_message *message, std::string_view type, const char *name,
                     Input &input) {
  const bool isArray = type.front() == 'a';
  const char kind = isArray ? 'a' : type.front() == '{' ? 'e' : 'r';
  const std::string contents(isArray ? type.substr(1) : type.substr(1, type.size() - 2));
  sd_bus_message_open_container(message, kind, contents.c_str());
  const std::size_t times = isArray ? input.Byte() % (kMostParts + 1) : 1;
  for (std::size_t left = times; left > 0; --left) AppendAll(message, contents, name, input);
  sd_bus_message_close_container(message);
}

void AppendBasic(sd_bus_message *message, char type, const char *name, Input &input) {
  const std::int32_t number = type == 's' ? input.Byte() : input.Number();
  switch (type) {
    case 's':
      sd_bus_message_append(message, "s",
                            name != nullptr ? name : KeySelectedBy(input.Byte()).c_str());
      return;
    case 'i':
    case 'u':
      sd_bus_message_append(message, std::string(1, type).c_str(), number);
      return;
    case 'x':
      sd_bus_message_append(message, "x", std::int64_t{number});
      return;
    case 'v':
      sd_bus_message_append(message, "v", "i", number);
      return;
    case 'o':
      sd_bus_message_append(message, "o", kPath);
      return;
    default:
      std::abort();
  }
}

void AppendAll(sd_bus_message *message, std::string_view signature, const char *name,
               Input &input) {
  while (!signature.empty()) {
    const std::string_view type = signature.substr(0, TypeLength(signature));
    signature.remove_prefix(type.size());
    if (type.size() > 1) {
      AppendContainer(message, type, nullptr, input);
    } else {
      AppendBasic(message, type.front(), name, input);
    }
  }
}

/// A message that is not a notification.
Message OtherMessage(sd_bus *bus, const char *name, std::uint8_t form, Input &input) {
  constexpr std::array<const char *, 3> kPaths = {"/com/orvikaudio/Setup/a", "/",
                                                  "/com/orvikaudio"};
  constexpr std::array<const char *, 12> kShapes = {"",       "s",      "sa{si}i", "a{si}",
                                                    "sa{su}", "sa{sv}", "sa{is}",  "ia{si}",
                                                    "sa(si)", "sai",    "oa{si}",  "sa{sx}"};
  const std::size_t which = form % (kPaths.size() + 2 + kShapes.size());
  const bool isElsewhere = which < kPaths.size() + 2;
  Message message = NewMessage(bus, which < kPaths.size() ? kPaths[which] : kPath,
                               which == kPaths.size() ? "com.orvikaudio.Setup2" : kInterface,
                               which == kPaths.size() + 1 ? "Changed2" : kMember);
  AppendAll(message.get(), isElsewhere ? kShape : kShapes[which - kPaths.size() - 2], name, input);
  return message;
}

// --- What must come of them ------------------------------------------------------------------

std::optional<Call> ExpectedCall(std::string_view name, const Entries &entries) {
  const auto observed = std::find_if(kPlaces.begin(), kPlaces.end(),
                                     [&](const Place &place) { return name == place.name; });
  if (observed == kPlaces.end()) return std::nullopt;
  const auto value = [&](const char *key) {
    const auto found = entries.find(key);
    return found != entries.end() ? found->second : 0;
  };
  const auto called = std::find_if(kPlaces.begin(), kPlaces.end(), [&](const Place &place) {
    return place.kind == observed->kind && place.productId == value("ProductID");
  });
  if (called == kPlaces.end()) return std::nullopt;
  const bool hasChannel = called->kind == Kind::kInputAudio || called->kind == Kind::kOutputAudio;
  return Call{&*called, hasChannel ? value("Channel") : 0, value("Index")};
}

/// This process as a host with callbacks, and a second connection that posts.
class Host {
 public:
  Host() {
    trxtest::RemoveAtTheEnd(bus_.Address().substr(
        bus_.Address().find('/'), bus_.Address().rfind('/') - bus_.Address().find('/')));
    sd_bus *poster = nullptr;
    Promise(sd_bus_open_user(&poster) >= 0, "there is a bus");
    poster_.reset(poster);
    for (const Place &place : kPlaces) Register(place);
    ORV_GetNotificationDescriptor(&descriptor_);
  }

  sd_bus *Poster() const { return poster_.get(); }

  void Send(const Message &message) const {
    Promise(sd_bus_send(Poster(), message.get(), nullptr) >= 0, "a message can be sent");
  }

  /// Sends a last notification and dispatches until its call has come, or too many calls.
  void Await(std::vector<Call> expected) {
    calls.clear();
    SendMark();
    expected.push_back({&kPlaces.back(), 0, mark_});
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (calls.size() < expected.size()) {
      Promise(std::chrono::steady_clock::now() < deadline, "every call comes");
      pollfd loop = {descriptor_, POLLIN, 0};
      poll(&loop, 1, 1000);
      ORV_DispatchNotifications();
    }
    Promise(calls == expected, "callbacks are called for served models, as the messages say");
  }

 private:
  void SendMark() {
    ++mark_;
    const Message message = NewMessage(Poster(), kPath, kInterface, kMember);
    sd_bus_message_append(message.get(), kShape, kPlaces.back().name, 2, "ProductID", 1, "Index",
                          mark_);
    Send(message);
    sd_bus_flush(Poster());
    while (sd_bus_process(Poster(), nullptr) > 0) {
    }
  }

  trxtest::PrivateSessionBus bus_;
  Bus poster_;
  std::int32_t descriptor_ = -1;
  std::int32_t mark_ = 0;
};

void Run(Input input) {
  static Host host;
  std::vector<Call> expected;
  bool mayHaveManyOthers = true;  // once: such a message takes its time to make
  for (std::size_t sent = 0; sent < kMostMessages && !input.IsOver(); ++sent) {
    const std::string name = NameSelectedBy(input.Byte());
    const std::uint8_t form = input.Byte();
    if (form >= 128) {
      host.Send(OtherMessage(host.Poster(), name.c_str(), form, input));
      continue;
    }
    std::size_t others = 0;
    if (form == kWithManyOthers && std::exchange(mayHaveManyOthers, false)) {
      others = OthersOf(input.Byte());
    }
    std::optional<Entries> entries;
    host.Send(Notification(host.Poster(), name.c_str(), others, input, entries));
    if (!entries) continue;
    if (const auto call = ExpectedCall(name, *entries)) expected.push_back(*call);
  }
  host.Await(std::move(expected));
}

}  // namespace
}  // namespace trxfuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  trxfuzz::Run(trxfuzz::Input(data, size));
  return 0;
}
