#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "../Model/FrontEnd.h"

namespace trxsim {

/// A port of the kernel's virtual host controllers that takes devices of high speed.
struct VhciPort {
  int number = 0;      ///< As the kernel counts it, over all controllers and speeds.
  int controller = 0;  ///< Which of the controllers it belongs to.
  int hubPort = 0;     ///< Which port of that controller's hub it is, from 1.
  bool isFree = false;
};

/// The high-speed ports of one controller, in their order, from the text of its status file. Other
/// lines are ignored.
std::vector<VhciPort> ParseVhciStatus(std::string_view text, int controller);

/// The kernel's virtual host controllers (vhci-hcd), through sysfs. One thread at a time.
class VhciController {
 public:
  /// Looks for everything below `root`, which is "/" for the running kernel. Throws `DeskError`,
  /// with what to do about it, when this user may not attach devices or the kernel cannot.
  explicit VhciController(std::filesystem::path root = "/");

  /// All high-speed ports, in the order of the buses.
  std::vector<VhciPort> Ports() const;

  /// Attaches a device to the first free port; `socket` is the kernel's end of its connection.
  /// Throws `DeskError` when there is no free port.
  VhciPort Attach(int socket, unsigned deviceId) const;

  /// Detaches the device at a port, if there is one.
  void Detach(const VhciPort &port) const;

  /// The address of the device at a port; empty until the kernel shows it to hosts.
  std::optional<BusAddress> AddressAt(const VhciPort &port) const;

  /// Whether anything is left of the device that was at `address`. The kernel removes a device in
  /// steps, and hosts may still find one that can no longer be opened.
  bool HasTracesOf(const BusAddress &address, const VhciPort &port) const;

  /// The device node that belongs to an address.
  std::filesystem::path NodeOf(const BusAddress &address) const;

 private:
  std::optional<std::filesystem::path> StatusFile(int controller) const;
  std::string BusName(int controller) const;
  std::filesystem::path FolderOf(const VhciPort &port) const;

  std::filesystem::path root_;
};

}  // namespace trxsim
