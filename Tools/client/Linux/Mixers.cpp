#include "Mixers.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <memory>
#include <string_view>
#include <tuple>

#include <fcntl.h>
#include <systemd/sd-device.h>
#include <unistd.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace client {
namespace {

constexpr char kDevices[] = "/sys/bus/usb/devices";

constexpr unsigned kVendorId = MAKER_USB_VENDOR_ID;
constexpr unsigned kProductId = 0x001F;

struct EnumeratorUnref {
  void operator()(sd_device_enumerator *enumerator) const {
    sd_device_enumerator_unref(enumerator);
  }
};
using Enumerator = std::unique_ptr<sd_device_enumerator, EnumeratorUnref>;

/// A USB id as sysfs writes it.
std::string HexId(unsigned id) {
  std::array<char, 9> text{};
  std::snprintf(text.data(), text.size(), "%04x", id);
  return text.data();
}

/// An enumerator for USB devices; null when the system has none to give.
Enumerator UsbEnumerator() {
  sd_device_enumerator *raw = nullptr;
  if (sd_device_enumerator_new(&raw) < 0) return nullptr;
  Enumerator enumerator(raw);
  // A mixer is there as soon as the kernel shows it, whether or not udev has looked at it.
  const bool ready = sd_device_enumerator_allow_uninitialized(raw) >= 0 &&
                     sd_device_enumerator_add_match_subsystem(raw, "usb", true) >= 0;
  return ready ? std::move(enumerator) : nullptr;
}

/// An enumerator for the mixers; null when the system has none to give.
Enumerator MixerEnumerator() {
  Enumerator enumerator = UsbEnumerator();
  const bool ready = enumerator &&
                     sd_device_enumerator_add_match_sysattr(enumerator.get(), "idVendor",
                                                            HexId(kVendorId).c_str(), true) >= 0 &&
                     sd_device_enumerator_add_match_sysattr(enumerator.get(), "idProduct",
                                                            HexId(kProductId).c_str(), true) >= 0;
  return ready ? std::move(enumerator) : nullptr;
}

std::string Attribute(sd_device *device, const char *name) {
  const char *value = nullptr;
  return sd_device_get_sysattr_value(device, name, &value) < 0 ? "" : value;
}

unsigned NumberAttribute(sd_device *device, const char *name) {
  const std::string text = Attribute(device, name);
  unsigned number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::string NodeOf(unsigned bus, unsigned address) {
  std::array<char, 64> path{};
  std::snprintf(path.data(), path.size(), "/dev/bus/usb/%03u/%03u", bus, address);
  return path.data();
}

std::string NameOf(sd_device *device, const char *standIn) {
  std::string product = Attribute(device, "product");
  return product.empty() ? standIn : product;
}

Mixer Read(sd_device *device) {
  const unsigned bus = NumberAttribute(device, "busnum");
  const unsigned address = NumberAttribute(device, "devnum");
  return {NameOf(device, "mixer"), bus, address, Attribute(device, "serial"), NodeOf(bus, address)};
}

/// Calls a function for each device of the enumerator, if there is one.
template <typename Function>
void ForEach(const Enumerator &enumerator, const Function &function) {
  if (!enumerator) return;
  for (sd_device *device = sd_device_enumerator_get_device_first(enumerator.get());
       device != nullptr; device = sd_device_enumerator_get_device_next(enumerator.get())) {
    function(device);
  }
}

}  // namespace

std::vector<Mixer> ConnectedMixers() {
  std::vector<Mixer> mixers;
  ForEach(MixerEnumerator(), [&](sd_device *device) { mixers.push_back(Read(device)); });
  std::sort(mixers.begin(), mixers.end(), [](const Mixer &left, const Mixer &right) {
    return std::tie(left.bus, left.address) < std::tie(right.bus, right.address);
  });
  return mixers;
}

bool IsMixerConnected() { return ORV_IsUSBConnection(ORV_PRODUCT_TRX_SELVA) == ORV_CONNECTED; }

int RefusalToOpen(const Mixer &mixer) {
  // As the library opens it.
  const int descriptor = open(mixer.node.c_str(), O_RDWR | O_CLOEXEC);
  if (descriptor < 0) return errno;
  close(descriptor);
  return 0;
}

UsbBus SeenOnUsb() {
  UsbBus bus;
  bus.visible = access(kDevices, R_OK | X_OK) == 0;
  bus.reason = bus.visible ? 0 : errno;
  ForEach(UsbEnumerator(), [&](sd_device *device) {
    // The interfaces of a device stand among the devices; they have no ids.
    const std::string vendor = Attribute(device, "idVendor");
    const std::string product = Attribute(device, "idProduct");
    if (vendor.empty()) return;
    ++bus.devices;
    if (vendor != HexId(kVendorId) || product == HexId(kProductId)) return;
    bus.othersOfMaker.push_back(NameOf(device, "device") + " (" + vendor + ':' + product + ')');
  });
  return bus;
}

}  // namespace client
