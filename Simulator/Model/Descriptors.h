#pragma once

#include <cstdint>
#include <vector>

#include "FrontEnd.h"

namespace trxsim {

/// An interface: class, subclass, protocol, the kernel's driver for it, and the descriptors that
/// its class needs.
struct InterfaceKind {
  std::uint8_t classCode;
  std::uint8_t subclass;
  std::uint8_t protocol;
  const char *driver;                       ///< Null when there is no driver.
  std::vector<std::uint8_t> classSpecific;  ///< Descriptors as they are sent.
};

/// What differs between the kinds of USB device.
struct DeviceKind {
  std::uint16_t release;  ///< bcdDevice
  std::uint16_t version;  ///< bcdUSB
  std::uint8_t classCode;
  std::uint8_t protocol;
  const char *speed;
  int ports;
  std::vector<InterfaceKind> interfaces;
};

/// The root hub of a simulated bus.
const DeviceKind &RootHubKind();

/// The kind of a unit.
const DeviceKind &KindOf(const UsbIdentity &identity);

/// The device descriptor as it is sent.
std::vector<std::uint8_t> DeviceDescriptor(const UsbIdentity &identity, const DeviceKind &kind);

/// The only configuration with its interfaces, as it is sent.
std::vector<std::uint8_t> ConfigurationDescriptor(const DeviceKind &kind);

/// The string descriptor with this number as it is sent; number 0 is the list of languages. Empty
/// when the device has no such text. Texts are ASCII.
std::vector<std::uint8_t> StringDescriptor(const UsbIdentity &identity, unsigned number);

}  // namespace trxsim
