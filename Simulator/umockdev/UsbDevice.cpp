#include "UsbDevice.h"

#include <cstdint>
#include <cstdio>

namespace trxsim {

namespace {

constexpr const char *kHubPath = "/sys/devices/pci0000:00/0000:00:14.0/usb1";
constexpr int kUsbDeviceMajor = 189;
constexpr int kDevicesPerBus = 128;

/// Class, subclass and protocol with the driver that the kernel binds.
struct InterfaceKind {
  std::uint8_t classCode;
  std::uint8_t subclass;
  std::uint8_t protocol;
  const char *driver;  // null: no driver takes it
};

/// What differs between the kinds of device on the desk.
struct DeviceKind {
  std::uint16_t release;  // bcdDevice
  std::uint16_t version;  // bcdUSB
  std::uint8_t classCode;
  std::uint8_t protocol;
  const char *speed;
  int ports;
  std::vector<InterfaceKind> interfaces;
};

const DeviceKind &kindOf(const UsbDevice &device) {
  static const DeviceKind hub{0x0601, 0x0200, 9, 1, "480", 16, {{9, 0, 0, "hub"}}};
  static const DeviceKind mixer{
      0x0100,
      0x0200,
      0,
      0,
      "480",
      0,
      {{1, 1, 0, "snd-usb-audio"}, {1, 2, 0, "snd-usb-audio"}, {1, 3, 0, "snd-usb-audio"}}};
  static const DeviceKind stranger{0x0100, 0x0200, 0, 0, "480", 0, {{0xFF, 0, 0, nullptr}}};
  if (device.isRootHub()) return hub;
  return device.identity.isMixer ? mixer : stranger;
}

template <typename... Values>
std::string format(const char *pattern, Values... values) {
  char text[256];
  std::snprintf(text, sizeof text, pattern, values...);
  return text;
}

int minorOf(const BusAddress &address) {
  return (address.bus - 1) * kDevicesPerBus + address.device - 1;
}

std::string typeText(const DeviceKind &kind) {
  return format("%d/%d/%d", kind.classCode, 0, kind.protocol);
}

// The kernel writes these three in hexadecimal without leading zeros.
std::string productText(const UsbDevice &device) {
  return format("%x/%x/%x", device.identity.vendor, device.identity.product,
                kindOf(device).release);
}

std::string deviceUevent(const UsbDevice &device) {
  return format("MAJOR=%d\nMINOR=%d\n", kUsbDeviceMajor, minorOf(device.address)) +
         "DEVNAME=" + device.nodePath().substr(5) +
         "\nDEVTYPE=usb_device\nDRIVER=usb\nPRODUCT=" + productText(device) +
         "\nTYPE=" + typeText(kindOf(device)) +
         format("\nBUSNUM=%03d\nDEVNUM=%03d\n", device.address.bus, device.address.device);
}

std::string interfaceAlias(const UsbDevice &device, const InterfaceKind &kind, unsigned number) {
  const DeviceKind &whole = kindOf(device);
  return format("usb:v%04Xp%04Xd%04Xdc%02Xdsc00dp%02Xic%02Xisc%02Xip%02Xin%02X",
                device.identity.vendor, device.identity.product, whole.release, whole.classCode,
                whole.protocol, kind.classCode, kind.subclass, kind.protocol, number);
}

std::string interfaceUevent(const UsbDevice &device, const InterfaceKind &kind, unsigned number) {
  const std::string driver =
      kind.driver != nullptr ? "DRIVER=" + std::string(kind.driver) + '\n' : "";
  return "DEVTYPE=usb_interface\n" + driver + "PRODUCT=" + productText(device) +
         "\nTYPE=" + typeText(kindOf(device)) +
         format("\nINTERFACE=%d/%d/%d\nMODALIAS=", kind.classCode, kind.subclass, kind.protocol) +
         interfaceAlias(device, kind, number) + '\n';
}

void append(std::string &bytes, std::initializer_list<int> values) {
  for (const int value : values) bytes += static_cast<char>(value & 0xFF);
}

int low(int value) { return value & 0xFF; }
int high(int value) { return value >> 8; }

std::string portOf(const UsbDevice &device) {
  return device.isRootHub() ? "0" : device.name.substr(device.name.find('-') + 1);
}

}  // namespace

UsbDevice rootHub() {
  return {"usb1",
          {1, 1},
          {0x1D6B, 0x0002, false, "Software mixers", "Software host controller", "0000:00:14.0"}};
}

std::string UsbDevice::sysPath() const {
  return isRootHub() ? kHubPath : std::string(kHubPath) + '/' + name;
}

std::string UsbDevice::nodePath() const {
  return format("/dev/bus/usb/%03d/%03d", address.bus, address.device);
}

std::string UsbDevice::deviceNumber() const {
  return format("%d:%d", kUsbDeviceMajor, minorOf(address));
}

std::vector<Attribute> UsbDevice::attributes() const {
  const DeviceKind &kind = kindOf(*this);
  std::vector<Attribute> list{
      {"uevent", deviceUevent(*this)},
      {"dev", deviceNumber() + '\n'},
      {"busnum", format("%d\n", address.bus)},
      {"devnum", format("%d\n", address.device)},
      {"devpath", portOf(*this) + '\n'},
      {"idVendor", format("%04x\n", identity.vendor)},
      {"idProduct", format("%04x\n", identity.product)},
      {"bcdDevice", format("%04x\n", kind.release)},
      {"bDeviceClass", format("%02x\n", kind.classCode)},
      {"bDeviceSubClass", "00\n"},
      {"bDeviceProtocol", format("%02x\n", kind.protocol)},
      {"bMaxPacketSize0", "64\n"},
      {"bNumConfigurations", "1\n"},
      {"bConfigurationValue", "1\n"},
      {"bNumInterfaces", format("%2zu\n", kind.interfaces.size())},
      {"bmAttributes", "c0\n"},
      {"bMaxPower", "0mA\n"},
      {"speed", format("%s\n", kind.speed)},
      {"version", format("%2x.%02x\n", high(kind.version), low(kind.version))},
      {"maxchild", format("%d\n", kind.ports)},
      {"authorized", "1\n"},
      {"descriptors", descriptors()},
  };
  const std::vector<Attribute> texts{{"manufacturer", identity.manufacturer},
                                     {"product", identity.productName},
                                     {"serial", identity.serial}};
  for (const auto &[file, text] : texts) {
    if (!text.empty()) list.emplace_back(file, text + '\n');
  }
  return list;
}

std::vector<UsbInterface> UsbDevice::interfaces() const {
  const std::string prefix = isRootHub() ? "1-0" : name;
  std::vector<UsbInterface> list;
  unsigned number = 0;
  for (const InterfaceKind &kind : kindOf(*this).interfaces) {
    list.push_back({format("%s:1.%u", prefix.c_str(), number),
                    {{"uevent", interfaceUevent(*this, kind, number)},
                     {"modalias", interfaceAlias(*this, kind, number) + '\n'},
                     {"bInterfaceNumber", format("%02x\n", number)},
                     {"bAlternateSetting", " 0\n"},
                     {"bNumEndpoints", "00\n"},
                     {"bInterfaceClass", format("%02x\n", kind.classCode)},
                     {"bInterfaceSubClass", format("%02x\n", kind.subclass)},
                     {"bInterfaceProtocol", format("%02x\n", kind.protocol)}}});
    ++number;
  }
  return list;
}

std::string UsbDevice::descriptors() const {
  const DeviceKind &kind = kindOf(*this);
  const int interfaceCount = static_cast<int>(kind.interfaces.size());
  const int total = 9 + 9 * interfaceCount;
  std::string bytes;
  append(bytes, {18, 1, low(kind.version), high(kind.version), kind.classCode, 0, kind.protocol, 64,
                 low(identity.vendor), high(identity.vendor), low(identity.product),
                 high(identity.product), low(kind.release), high(kind.release),
                 identity.manufacturer.empty() ? 0 : 1, identity.productName.empty() ? 0 : 2,
                 identity.serial.empty() ? 0 : 3, 1});
  append(bytes, {9, 2, low(total), high(total), interfaceCount, 1, 0, 0xC0, 0});
  int number = 0;
  for (const InterfaceKind &interface : kind.interfaces) {
    append(bytes,
           {9, 4, number++, 0, 0, interface.classCode, interface.subclass, interface.protocol, 0});
  }
  return bytes;
}

}  // namespace trxsim
