// What one would write without the library: a request with libusb, from start to end, for a program
// that keeps no state between calls.
#include <libusb.h>

#include "Operation.h"

namespace trxbench {
namespace {

constexpr int kVendor = MAKER_USB_VENDOR_ID;
constexpr int kProduct = 0x001F;

bool IsMixer(libusb_device *device) {
  libusb_device_descriptor descriptor = {};
  return libusb_get_device_descriptor(device, &descriptor) == 0 && descriptor.idVendor == kVendor &&
         descriptor.idProduct == kProduct;
}

void SendFromCold() {
  libusb_context *context = nullptr;
  Require(libusb_init(&context) == 0, "start libusb");
  libusb_device **devices = nullptr;
  const ssize_t count = libusb_get_device_list(context, &devices);
  int sent = 0;
  for (ssize_t i = 0; i < count; ++i) {
    libusb_device_handle *unit = nullptr;
    if (!IsMixer(devices[i]) || libusb_open(devices[i], &unit) != 0) continue;
    libusb_control_transfer(unit, 0x40, 3, 0x0200, 0x8003, nullptr, 0, 5000);
    libusb_close(unit);
    ++sent;
  }
  libusb_free_device_list(devices, 1);
  libusb_exit(context);
  Require(sent == 1, "send with libusb");
}

}  // namespace

const std::vector<Operation> &Operations() {
  static const std::vector<Operation> operations = {{"libusb", SendFromCold}};
  return operations;
}

}  // namespace trxbench
