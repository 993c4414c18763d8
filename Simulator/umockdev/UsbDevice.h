#pragma once

#include <string>
#include <utility>
#include <vector>

#include "../Model/FrontEnd.h"

namespace trxsim {

/// A file of a sysfs folder: its name and its contents.
using Attribute = std::pair<std::string, std::string>;

/// One interface of a device: its kernel name, such as "1-2:1.0", and its files.
struct UsbInterface {
  std::string name;
  std::vector<Attribute> attributes;
};

/// One device on the bus, with all that the kernel shows of it.
struct UsbDevice {
  std::string name;  ///< Kernel name: "1-2" is bus 1, port 2; "usb1" is the root hub.
  BusAddress address;
  UsbIdentity identity;

  /// True for the root hub.
  bool IsRootHub() const { return name.starts_with("usb"); }

  /// Its folder, such as "/sys/devices/pci0000:00/0000:00:14.0/usb1/1-2".
  std::string SysPath() const;

  /// Its device node, such as "/dev/bus/usb/001/003".
  std::string NodePath() const;

  /// Major and minor number, such as "189:2".
  std::string DeviceNumber() const;

  /// The files of its folder.
  std::vector<Attribute> Attributes() const;

  /// Its interfaces, in order.
  std::vector<UsbInterface> Interfaces() const;

  /// Its descriptors as it sends them; its node and its file "descriptors" contain them.
  std::string Descriptors() const;
};

/// The root hub of bus 1.
UsbDevice RootHub();

}  // namespace trxsim
