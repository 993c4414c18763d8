#pragma once

#include <filesystem>

#include "../Model/Fault.h"

namespace trxsim {

/// What happens when a host opens the device node of a plugged unit. One thread at a time.
class DeviceNode {
 public:
  /// Leaves the node as the system made it.
  explicit DeviceNode(std::filesystem::path path);

  /// Makes opening the node fail, or work again. Throws `DeskError` when that cannot be.
  void set(OpenFault fault);

 private:
  std::filesystem::path path_;
  std::filesystem::perms usual_;
};

}  // namespace trxsim
