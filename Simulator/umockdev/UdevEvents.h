#pragma once

#include <filesystem>
#include <string>

#include "UsbDevice.h"

namespace trxsim {

/// Sends udev's events to programs that listen for devices, as udev's daemon does once it has set
/// up a device. One thread at a time.
class UdevEvents {
 public:
  /// Reaches the programs whose testbed lies under `root`.
  explicit UdevEvents(std::filesystem::path root);

  /// Sends "add" or "remove" for `device` to all programs that still listen.
  void Send(const std::string &action, const UsbDevice &device);

 private:
  std::filesystem::path root_;
  unsigned long count_ = 0;
};

}  // namespace trxsim
