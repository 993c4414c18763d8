#include "Announcement.h"

#include <bit>
#include <cstdint>
#include <string_view>

#include "Operation.h"

namespace trxbench {
namespace {

static_assert(std::endian::native == std::endian::little);

// A message in the bus's encoding: numbers little-endian, each value at a multiple of its size.
class Marshalled {
 public:
  void Align(std::size_t size) { bytes_.resize((bytes_.size() + size - 1) / size * size); }
  void Byte(std::uint8_t value) { bytes_ += static_cast<char>(value); }

  void Number(std::uint32_t value) {
    Align(sizeof value);
    bytes_.append(reinterpret_cast<const char *>(&value), sizeof value);
  }

  void Text(std::string_view value) {
    Number(static_cast<std::uint32_t>(value.size()));
    bytes_.append(value) += '\0';
  }

  void Signature(std::string_view value) {
    Byte(static_cast<std::uint8_t>(value.size()));
    bytes_.append(value) += '\0';
  }

  void Field(std::uint8_t code, std::string_view type, std::string_view value) {
    Align(8);
    Byte(code);
    Signature(type);
    type == "g" ? Signature(value) : Text(value);
  }

  const std::string &Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

Marshalled Body() {
  Marshalled entries;
  entries.Text("ProductID");
  entries.Number(11);
  entries.Align(8);
  entries.Text("Index");
  entries.Number(1);
  Marshalled body;
  body.Text("TRX-SELVA BoostLevel Change");
  body.Number(static_cast<std::uint32_t>(entries.Bytes().size()));
  body.Align(8);
  for (const char byte : entries.Bytes()) body.Byte(static_cast<std::uint8_t>(byte));
  return body;
}

Marshalled Fields() {
  Marshalled fields;
  fields.Field(1, "o", "/com/orvikaudio/Setup");
  fields.Field(2, "s", "com.orvikaudio.Setup");
  fields.Field(3, "s", "Changed");
  fields.Field(8, "g", "sa{si}");
  return fields;
}

}  // namespace

sd_bus *OpenBus() {
  sd_bus *bus = nullptr;
  const char *name = nullptr;
  Require(sd_bus_open_user(&bus) >= 0, "connect to the session bus");
  Require(sd_bus_get_unique_name(bus, &name) >= 0, "get a name on the session bus");
  return bus;
}

int BusSocket() { return sd_bus_get_fd(OpenBus()); }

std::string MarshalledAnnouncement() {
  const std::string body = Body().Bytes();
  const std::string fields = Fields().Bytes();
  Marshalled message;
  for (const char byte : {'l', '\4', '\1', '\1'}) message.Byte(static_cast<std::uint8_t>(byte));
  message.Number(static_cast<std::uint32_t>(body.size()));
  message.Number(0x10000000);  // no serial number that the connection has used
  message.Number(static_cast<std::uint32_t>(fields.size()));
  std::string bytes = message.Bytes() + fields;
  bytes.resize((bytes.size() + 7) / 8 * 8);
  return bytes + body;
}

}  // namespace trxbench
