#pragma once

#include <filesystem>
#include <optional>
#include <utility>

#include "../Model/Fault.h"
#include "../OpenFaults/HeldTerminal.h"

namespace trxsim {

/// The kernel's device node of a plugged unit and the faults of opening it. The destructor leaves
/// the node as the system made it. One thread at a time.
class DeviceNode {
 public:
  explicit DeviceNode(std::filesystem::path path) : path_(std::move(path)) {}
  ~DeviceNode();
  DeviceNode(const DeviceNode &) = delete;
  DeviceNode &operator=(const DeviceNode &) = delete;

  /// Makes opening the node fail, or work again. Throws `DeskError` on failure.
  void Set(OpenFault fault);

 private:
  void Restore();
  void Deny();
  void Refuse();
  void Hold();
  void Cover(const std::filesystem::path &file);

  std::filesystem::path path_;
  std::optional<std::filesystem::perms> usual_;  // of the system, while others are set
  bool isCovered_ = false;
  std::optional<HeldTerminal> held_;
};

}  // namespace trxsim
