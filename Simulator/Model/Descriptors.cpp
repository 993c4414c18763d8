#include "Descriptors.h"

#include <algorithm>
#include <array>
#include <string>

namespace trxsim {

namespace {

enum DescriptorType : std::uint8_t { kDevice = 1, kConfiguration, kString, kInterface };

constexpr std::uint8_t kClassSpecific = 0x24;
constexpr std::uint8_t kHeader = 1;

enum TextNumber : std::uint8_t { kNoText, kManufacturer, kProduct, kSerial };

constexpr std::uint8_t kSelfPowered = 0xC0;
constexpr std::uint16_t kEnglish = 0x0409;

std::uint8_t Low(std::size_t value) { return static_cast<std::uint8_t>(value & 0xFF); }
std::uint8_t High(std::size_t value) { return static_cast<std::uint8_t>(value >> 8); }

const std::string &TextOf(const UsbIdentity &identity, unsigned number) {
  static const std::string none;
  const std::array<const std::string *, 4> texts{&none, &identity.manufacturer,
                                                 &identity.productName, &identity.serial};
  return number < texts.size() ? *texts[number] : none;
}

std::uint8_t NumberOf(const UsbIdentity &identity, TextNumber text) {
  return TextOf(identity, text).empty() ? std::uint8_t{kNoText} : std::uint8_t{text};
}

// Says that interfaces 1 and 2 belong to the control interface. Without it the kernel's driver
// takes none of them.
std::vector<std::uint8_t> AudioHeader() {
  return {10, kClassSpecific, kHeader, 0x00, 0x01, 10, 0, 2, 1, 2};
}

std::vector<std::uint8_t> MidiHeader() { return {7, kClassSpecific, kHeader, 0x00, 0x01, 7, 0}; }

}  // namespace

const DeviceKind &RootHubKind() {
  static const DeviceKind hub{0x0601, 0x0200, 9, 1, "480", 16, {{9, 0, 0, "hub", {}}}};
  return hub;
}

const DeviceKind &KindOf(const UsbIdentity &identity) {
  static const DeviceKind mixer{0x0100,
                                0x0200,
                                0,
                                0,
                                "480",
                                0,
                                {{1, 1, 0, "snd-usb-audio", AudioHeader()},
                                 {1, 2, 0, "snd-usb-audio", {}},
                                 {1, 3, 0, "snd-usb-audio", MidiHeader()}}};
  static const DeviceKind other{0x0100, 0x0200, 0, 0, "480", 0, {{0xFF, 0, 0, nullptr, {}}}};
  return identity.isMixer ? mixer : other;
}

std::vector<std::uint8_t> DeviceDescriptor(const UsbIdentity &identity, const DeviceKind &kind) {
  constexpr std::uint8_t kLength = 18;
  constexpr std::uint8_t kPacketSize = 64;
  return {kLength,
          kDevice,
          Low(kind.version),
          High(kind.version),
          kind.classCode,
          0,
          kind.protocol,
          kPacketSize,
          Low(identity.vendor),
          High(identity.vendor),
          Low(identity.product),
          High(identity.product),
          Low(kind.release),
          High(kind.release),
          NumberOf(identity, kManufacturer),
          NumberOf(identity, kProduct),
          NumberOf(identity, kSerial),
          1};
}

std::vector<std::uint8_t> ConfigurationDescriptor(const DeviceKind &kind) {
  constexpr std::uint8_t kLength = 9;
  const auto append = [](std::vector<std::uint8_t> &bytes, const auto &more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
  };
  std::vector<std::uint8_t> bytes(kLength);
  std::uint8_t number = 0;
  for (const InterfaceKind &interface : kind.interfaces) {
    append(bytes, std::array<std::uint8_t, kLength>{kLength, kInterface, number++, 0, 0,
                                                    interface.classCode, interface.subclass,
                                                    interface.protocol, 0});
    append(bytes, interface.classSpecific);
  }
  const std::array<std::uint8_t, kLength> header{
      kLength, kConfiguration, Low(bytes.size()), High(bytes.size()), number, 1, 0, kSelfPowered,
      0};
  std::copy(header.begin(), header.end(), bytes.begin());
  return bytes;
}

std::vector<std::uint8_t> StringDescriptor(const UsbIdentity &identity, unsigned number) {
  if (number == 0) return {4, kString, Low(kEnglish), High(kEnglish)};
  const std::string &text = TextOf(identity, number);
  if (text.empty()) return {};
  std::vector<std::uint8_t> bytes{Low(2 + 2 * text.size()), kString};
  for (const char character : text) {
    bytes.push_back(static_cast<std::uint8_t>(character));
    bytes.push_back(0);
  }
  return bytes;
}

}  // namespace trxsim
