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

#include "MixerList.h"
#include "Text.h"
#include "UsbBus.h"

namespace trxctl {
namespace {

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
  return sd_device_get_sysattr_value(device, name, &value) < 0 ? "" : Printable(value);
}

unsigned NumberAttribute(sd_device *device, const char *name) {
  const std::string text = Attribute(device, name);
  unsigned number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// 0 when the device node may be opened as the library opens it, else the reason.
int Refusal(sd_device *device) {
  const char *node = nullptr;
  const int named = sd_device_get_devname(device, &node);
  if (named < 0) return -named;
  const int descriptor = open(node, O_RDWR | O_CLOEXEC);
  if (descriptor < 0) return errno;
  close(descriptor);
  return 0;
}

Mixer Read(sd_device *device) {
  std::string product = Attribute(device, "product");
  if (product.empty()) product = "mixer";
  return {std::move(product), NumberAttribute(device, "busnum"), NumberAttribute(device, "devnum"),
          Attribute(device, "serial"), Refusal(device)};
}

}  // namespace

std::vector<Mixer> ConnectedMixers() {
  std::vector<Mixer> mixers;
  const Enumerator enumerator = MixerEnumerator();
  if (!enumerator) return mixers;
  for (sd_device *device = sd_device_enumerator_get_device_first(enumerator.get());
       device != nullptr; device = sd_device_enumerator_get_device_next(enumerator.get())) {
    mixers.push_back(Read(device));
  }
  std::sort(mixers.begin(), mixers.end(), [](const Mixer &left, const Mixer &right) {
    return std::tie(left.bus, left.address) < std::tie(right.bus, right.address);
  });
  return mixers;
}

UsbBus SeenOnUsb() {
  UsbBus bus;
  const Enumerator enumerator = UsbEnumerator();
  if (!enumerator) return bus;
  for (sd_device *device = sd_device_enumerator_get_device_first(enumerator.get());
       device != nullptr; device = sd_device_enumerator_get_device_next(enumerator.get())) {
    // The interfaces of a device stand among the devices; they have no ids.
    const std::string vendor = Attribute(device, "idVendor");
    const std::string product = Attribute(device, "idProduct");
    if (vendor.empty()) continue;
    ++bus.devices;
    if (vendor != HexId(kVendorId) || product == HexId(kProductId)) continue;
    std::string other = Attribute(device, "product");
    if (other.empty()) other = "device";
    other.append(" (").append(vendor).append(":").append(product).append(")");
    bus.others_of_maker.push_back(std::move(other));
  }
  return bus;
}

std::string AccessHint(const std::vector<Mixer> &mixers) {
  const auto refused = std::find_if(mixers.begin(), mixers.end(),
                                    [](const Mixer &mixer) { return !mixer.accessible(); });
  const int reason = refused == mixers.end() ? 0 : refused->refusal;
  if (reason == EACCES || reason == EPERM) {
    return "the udev rule that comes with the library lets the user at the desk open mixers; "
           "once it is installed, plug the mixer in again";
  }
  if (reason == EBUSY) return "end the program that holds the mixer, then try again";
  return "plug the mixer out and in again, then try again";
}

}  // namespace trxctl
