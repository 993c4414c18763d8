#include "UsbDevice.h"

#include <cstdint>
#include <cstdio>

#include "../Model/Descriptors.h"

namespace trxsim {

namespace {

constexpr const char *kHubPath = "/sys/devices/pci0000:00/0000:00:14.0/usb1";
constexpr int kUsbDeviceMajor = 189;
constexpr int kDevicesPerBus = 128;

const DeviceKind &KindOf(const UsbDevice &device) {
  return device.IsRootHub() ? RootHubKind() : KindOf(device.identity);
}

template <typename... Values>
std::string Format(const char *pattern, Values... values) {
  char text[256];
  std::snprintf(text, sizeof text, pattern, values...);
  return text;
}

int MinorOf(const BusAddress &address) {
  return (address.bus - 1) * kDevicesPerBus + address.device - 1;
}

std::string TypeText(const DeviceKind &kind) {
  return Format("%d/%d/%d", kind.classCode, 0, kind.protocol);
}

// The kernel writes these three in hexadecimal without leading zeros.
std::string ProductText(const UsbDevice &device) {
  return Format("%x/%x/%x", device.identity.vendor, device.identity.product,
                KindOf(device).release);
}

std::string DeviceUevent(const UsbDevice &device) {
  return Format("MAJOR=%d\nMINOR=%d\n", kUsbDeviceMajor, MinorOf(device.address)) +
         "DEVNAME=" + device.NodePath().substr(5) +
         "\nDEVTYPE=usb_device\nDRIVER=usb\nPRODUCT=" + ProductText(device) +
         "\nTYPE=" + TypeText(KindOf(device)) +
         Format("\nBUSNUM=%03d\nDEVNUM=%03d\n", device.address.bus, device.address.device);
}

std::string InterfaceAlias(const UsbDevice &device, const InterfaceKind &kind, unsigned number) {
  const DeviceKind &whole = KindOf(device);
  return Format("usb:v%04Xp%04Xd%04Xdc%02Xdsc00dp%02Xic%02Xisc%02Xip%02Xin%02X",
                device.identity.vendor, device.identity.product, whole.release, whole.classCode,
                whole.protocol, kind.classCode, kind.subclass, kind.protocol, number);
}

std::string InterfaceUevent(const UsbDevice &device, const InterfaceKind &kind, unsigned number) {
  const std::string driver =
      kind.driver != nullptr ? "DRIVER=" + std::string(kind.driver) + '\n' : "";
  return "DEVTYPE=usb_interface\n" + driver + "PRODUCT=" + ProductText(device) +
         "\nTYPE=" + TypeText(KindOf(device)) +
         Format("\nINTERFACE=%d/%d/%d\nMODALIAS=", kind.classCode, kind.subclass, kind.protocol) +
         InterfaceAlias(device, kind, number) + '\n';
}

int Low(int value) { return value & 0xFF; }
int High(int value) { return value >> 8; }

std::string PortOf(const UsbDevice &device) {
  return device.IsRootHub() ? "0" : device.name.substr(device.name.find('-') + 1);
}

}  // namespace

UsbDevice RootHub() {
  return {"usb1",
          {1, 1},
          {0x1D6B, 0x0002, false, "Software mixers", "Software host controller", "0000:00:14.0"}};
}

std::string UsbDevice::SysPath() const {
  return IsRootHub() ? kHubPath : std::string(kHubPath) + '/' + name;
}

std::string UsbDevice::NodePath() const {
  return Format("/dev/bus/usb/%03d/%03d", address.bus, address.device);
}

std::string UsbDevice::DeviceNumber() const {
  return Format("%d:%d", kUsbDeviceMajor, MinorOf(address));
}

std::vector<Attribute> UsbDevice::Attributes() const {
  const DeviceKind &kind = KindOf(*this);
  std::vector<Attribute> list{
      {"uevent", DeviceUevent(*this)},
      {"dev", DeviceNumber() + '\n'},
      {"busnum", Format("%d\n", address.bus)},
      {"devnum", Format("%d\n", address.device)},
      {"devpath", PortOf(*this) + '\n'},
      {"idVendor", Format("%04x\n", identity.vendor)},
      {"idProduct", Format("%04x\n", identity.product)},
      {"bcdDevice", Format("%04x\n", kind.release)},
      {"bDeviceClass", Format("%02x\n", kind.classCode)},
      {"bDeviceSubClass", "00\n"},
      {"bDeviceProtocol", Format("%02x\n", kind.protocol)},
      {"bMaxPacketSize0", "64\n"},
      {"bNumConfigurations", "1\n"},
      {"bConfigurationValue", "1\n"},
      {"bNumInterfaces", Format("%2zu\n", kind.interfaces.size())},
      {"bmAttributes", "c0\n"},
      {"bMaxPower", "0mA\n"},
      {"speed", Format("%s\n", kind.speed)},
      {"version", Format("%2x.%02x\n", High(kind.version), Low(kind.version))},
      {"maxchild", Format("%d\n", kind.ports)},
      {"authorized", "1\n"},
      {"descriptors", Descriptors()},
  };
  const std::vector<Attribute> texts{{"manufacturer", identity.manufacturer},
                                     {"product", identity.productName},
                                     {"serial", identity.serial}};
  for (const auto &[file, text] : texts) {
    if (!text.empty()) list.emplace_back(file, text + '\n');
  }
  return list;
}

std::vector<UsbInterface> UsbDevice::Interfaces() const {
  const std::string prefix = IsRootHub() ? "1-0" : name;
  std::vector<UsbInterface> list;
  unsigned number = 0;
  for (const InterfaceKind &kind : KindOf(*this).interfaces) {
    list.push_back({Format("%s:1.%u", prefix.c_str(), number),
                    {{"uevent", InterfaceUevent(*this, kind, number)},
                     {"modalias", InterfaceAlias(*this, kind, number) + '\n'},
                     {"bInterfaceNumber", Format("%02x\n", number)},
                     {"bAlternateSetting", " 0\n"},
                     {"bNumEndpoints", "00\n"},
                     {"bInterfaceClass", Format("%02x\n", kind.classCode)},
                     {"bInterfaceSubClass", Format("%02x\n", kind.subclass)},
                     {"bInterfaceProtocol", Format("%02x\n", kind.protocol)}}});
    ++number;
  }
  return list;
}

std::string UsbDevice::Descriptors() const {
  const std::vector<std::uint8_t> device = DeviceDescriptor(identity, KindOf(*this));
  const std::vector<std::uint8_t> configuration = ConfigurationDescriptor(KindOf(*this));
  return std::string(device.begin(), device.end()) +
         std::string(configuration.begin(), configuration.end());
}

}  // namespace trxsim
