#pragma once

#include <cstdint>
#include <vector>

#include "FrontEnd.h"

namespace trxsim {

/// Class, subclass and protocol of an interface, the driver that the kernel has for it, and what
/// its class wants to be told in addition.
struct InterfaceKind {
  std::uint8_t classCode;
  std::uint8_t subclass;
  std::uint8_t protocol;
  const char *driver;                       ///< Null: no driver takes it.
  std::vector<std::uint8_t> classSpecific;  ///< Descriptors, as they go over the wire.
};

/// What differs between the kinds of device on the desk.
struct DeviceKind {
  std::uint16_t release;  ///< bcdDevice
  std::uint16_t version;  ///< bcdUSB
  std::uint8_t classCode;
  std::uint8_t protocol;
  const char *speed;
  int ports;
  std::vector<InterfaceKind> interfaces;
};

/// The hub that the units of a simulated bus sit at.
const DeviceKind &RootHubKind();

/// The kind of a unit.
const DeviceKind &KindOf(const UsbIdentity &identity);

/// The device descriptor, as it goes over the wire.
std::vector<std::uint8_t> DeviceDescriptor(const UsbIdentity &identity, const DeviceKind &kind);

/// The only configuration with its interfaces, as it goes over the wire.
std::vector<std::uint8_t> ConfigurationDescriptor(const DeviceKind &kind);

/// The text with this number, as it goes over the wire; number 0 is the list of languages. Nothing
/// when the device has no such text. Texts are ASCII.
std::vector<std::uint8_t> StringDescriptor(const UsbIdentity &identity, unsigned number);

}  // namespace trxsim
