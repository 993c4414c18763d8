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

/// The high-speed ports of one controller, in their order, from what its status file says. Lines
/// that say something else are passed over.
std::vector<VhciPort> ParseVhciStatus(std::string_view text, int controller);

/// The kernel's virtual host controllers (vhci-hcd), by way of sysfs. One thread at a time.
class VhciController {
 public:
  /// Looks for everything below `root`, which is "/" for the running kernel. Throws `DeskError`,
  /// with what to do about it, when this user may not attach devices or the kernel cannot.
  explicit VhciController(std::filesystem::path root = "/");

  /// All high-speed ports, in the order of the buses.
  std::vector<VhciPort> Ports() const;

  /// Gives the kernel's end of a connection to the first free port, which becomes its device's.
  /// Throws `DeskError` when there is none.
  VhciPort Attach(int socket, unsigned deviceId) const;

  /// Takes the device off a port; does nothing when none is there.
  void Detach(const VhciPort &port) const;

  /// Where the device at a port is found; nothing while the kernel does not show it to hosts.
  std::optional<BusAddress> AddressAt(const VhciPort &port) const;

  /// Whether anything is left of the device that was at `address`: the kernel takes one away piece
  /// by piece, and hosts may still find it when it cannot be opened any more.
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
