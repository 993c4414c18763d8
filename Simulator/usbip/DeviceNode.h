#pragma once

#include <filesystem>
#include <optional>
#include <utility>

#include "../Model/Fault.h"
#include "../OpenFaults/HeldTerminal.h"

namespace trxsim {

/// The kernel's device node of a plugged unit, and what happens when a host opens it. At its end
/// the node is again as the system made it. One thread at a time.
class DeviceNode {
 public:
  explicit DeviceNode(std::filesystem::path path) : path_(std::move(path)) {}
  ~DeviceNode();
  DeviceNode(const DeviceNode &) = delete;
  DeviceNode &operator=(const DeviceNode &) = delete;

  /// Makes opening the node fail, or work again. Throws `DeskError` when that cannot be.
  void Set(OpenFault fault);

 private:
  void Restore();
  void Deny();
  void Refuse();
  void Hold();
  void Cover(const std::filesystem::path &file);

  std::filesystem::path path_;
  std::optional<std::filesystem::perms> usual_;  // nothing while they are in force
  bool isCovered_ = false;
  std::optional<HeldTerminal> held_;
};

}  // namespace trxsim
