// Devices that a test plugs in and scripts by itself.
#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include "DeviceSource.h"

namespace trxtest {

/// Devices of this process, numbered from 1 in the order of the registry. They answer every
/// transfer with success and no byte unless the test sets another answer. Safe for any number of
/// threads.
class ScriptedDevices : public DeviceSource {
 public:
  using Script = std::function<TransferAnswer(int device, const IOUSBDevRequest &request)>;

  /// Plugs a device in behind all others; returns its number.
  int Plug(UInt16 vendor, UInt16 product);
  int PlugMixer();
  int PlugOtherProductOfTheMaker();
  int PlugOtherMakerWithTheSameProduct();
  int PlugUnrelated();

  void Unplug(int number);
  void SetFaults(int number, const DeviceFaults &faults);
  void SetScript(Script script);

  std::vector<UsbDevice> Devices() override;
  TransferAnswer Transfer(int device, const IOUSBDevRequest &request) override;

 private:
  std::mutex mutex_;
  std::vector<UsbDevice> devices_;
  int plugged_ = 0;
  Script script_;
};

}  // namespace trxtest
