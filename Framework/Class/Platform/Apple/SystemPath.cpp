#include "SystemPath.h"

namespace orv {

// Installed files are at their known paths.
std::string SystemPath(const std::string &path) { return path; }

}  // namespace orv
