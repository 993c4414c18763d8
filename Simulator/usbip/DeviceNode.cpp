#include "DeviceNode.h"

#include <utility>

#include "../Model/Desk.h"

namespace trxsim {

namespace fs = std::filesystem;

DeviceNode::DeviceNode(fs::path path)
    : path_(std::move(path)), usual_(fs::status(path_).permissions()) {}

void DeviceNode::set(OpenFault fault) {
  if (fault == OpenFault::Refuse || fault == OpenFault::Hold) {
    throw DeskError(
        "a running kernel opens every device that is there; of the faults of opening, "
        "only `deny` can be had with --usbip");
  }
  fs::permissions(path_, fault == OpenFault::Deny ? fs::perms::none : usual_);
}

}  // namespace trxsim
