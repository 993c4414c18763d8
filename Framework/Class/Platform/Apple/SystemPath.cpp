#include "SystemPath.h"

namespace orv {

// What is installed lies where it is known to lie.
std::string SystemPath(const std::string &path) { return path; }

}  // namespace orv
