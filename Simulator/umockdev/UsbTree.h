#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "../OpenFaults/HeldTerminal.h"
#include "UsbDevice.h"

namespace trxsim {

/// The USB part of /sys and /dev in a folder, laid out as the kernel does. One thread at a time.
class UsbTree {
 public:
  /// Lays out bus 1 under `root`, with nothing but its root hub.
  explicit UsbTree(std::filesystem::path root);

  /// Makes all files of `device` but does not list it on the bus yet.
  void Build(const UsbDevice &device, OpenFault fault);

  /// Lists `device` on the bus: whoever walks the bus sees it whole or not at all.
  void List(const UsbDevice &device);

  /// Takes `device` off the bus, then removes its files.
  void Remove(const UsbDevice &device);

  /// Puts a node in place of the present one that opens as `fault` says. Throws `DeskError` when
  /// the system has no means for it.
  void SetNode(const UsbDevice &device, OpenFault fault);

 private:
  std::filesystem::path Inside(const std::string &path) const;

  std::filesystem::path root_;
  std::map<std::string, HeldTerminal> held_;  // by kernel name
};

}  // namespace trxsim
