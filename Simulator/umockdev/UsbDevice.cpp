#include "UsbDevice.h"

#include <cstdint>
#include <cstdio>

#include "../Model/Descriptors.h"

namespace trxsim {

namespace {

constexpr const char *kHubPath = "/sys/devices/pci0000:00/0000:00:14.0/usb1";
constexpr int kUsbDeviceMajor = 189;
constexpr int kDevicesPerBus = 128;

const DeviceKind &kindOf(const UsbDevice &device) {
  return device.isRootHub() ? rootHubKind() : kindOf(device.identity);
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
  const std::vector<std::uint8_t> device = deviceDescriptor(identity, kindOf(*this));
  const std::vector<std::uint8_t> configuration = configurationDescriptor(kindOf(*this));
  return std::string(device.begin(), device.end()) +
         std::string(configuration.begin(), configuration.end());
}

}  // namespace trxsim
