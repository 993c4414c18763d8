#include "ScriptedDevices.h"

#include <algorithm>

namespace trxtest {

int ScriptedDevices::Plug(UInt16 vendor, UInt16 product) {
  const std::lock_guard lock(mutex_);
  devices_.push_back({.number = ++plugged_, .vendor = vendor, .product = product});
  return plugged_;
}

int ScriptedDevices::PlugMixer() { return Plug(0x4F52, 0x001F); }
int ScriptedDevices::PlugOtherProductOfTheMaker() { return Plug(0x4F52, 0x0020); }
int ScriptedDevices::PlugOtherMakerWithTheSameProduct() { return Plug(0x1234, 0x001F); }
int ScriptedDevices::PlugUnrelated() { return Plug(0x8087, 0x0024); }

void ScriptedDevices::Unplug(int number) {
  const std::lock_guard lock(mutex_);
  std::erase_if(devices_, [&](const UsbDevice &device) { return device.number == number; });
}

void ScriptedDevices::SetFaults(int number, const DeviceFaults &faults) {
  const std::lock_guard lock(mutex_);
  for (UsbDevice &device : devices_) {
    if (device.number == number) device.faults = faults;
  }
}

void ScriptedDevices::SetScript(Script script) {
  const std::lock_guard lock(mutex_);
  script_ = std::move(script);
}

std::vector<UsbDevice> ScriptedDevices::Devices() {
  const std::lock_guard lock(mutex_);
  return devices_;
}

TransferAnswer ScriptedDevices::Transfer(int device, const IOUSBDevRequest &request) {
  Script script;
  {
    const std::lock_guard lock(mutex_);
    const bool plugged = std::any_of(devices_.begin(), devices_.end(),
                                     [&](const UsbDevice &each) { return each.number == device; });
    if (!plugged) return {.status = kIOReturnNoDevice};
    script = script_;
  }
  return script ? script(device, request) : TransferAnswer();
}

}  // namespace trxtest
