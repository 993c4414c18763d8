#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "../OpenFaults/HeldTerminal.h"
#include "UsbDevice.h"

namespace trxsim {

/// The USB part of /sys and /dev, laid out in a folder as by the kernel. One thread at a time.
class UsbTree {
 public:
  /// Lays out bus 1 under `root`, with only its root hub.
  explicit UsbTree(std::filesystem::path root);

  /// Makes all files of `device`, but does not list it on the bus.
  void Build(const UsbDevice &device, OpenFault fault);

  /// Lists `device` on the bus. A program that walks the bus sees all of it or nothing.
  void List(const UsbDevice &device);

  /// Takes `device` off the bus, then removes its files.
  void Remove(const UsbDevice &device);

  /// Replaces the node by one that opens as `fault` says. Throws `DeskError` on failure.
  void SetNode(const UsbDevice &device, OpenFault fault);

 private:
  std::filesystem::path Inside(const std::string &path) const;

  std::filesystem::path root_;
  std::map<std::string, HeldTerminal> held_;  // by kernel name
};

}  // namespace trxsim
