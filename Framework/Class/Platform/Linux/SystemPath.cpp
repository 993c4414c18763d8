#include "SystemPath.h"

#include <cstdlib>

namespace orv {

// On Linux a folder of the installation takes the place of the root folder. secure_getenv ignores
// the variable in a program that runs with more rights than its user. An empty variable counts as
// unset.
std::string SystemPath(const std::string &path) {
  const char *const root = secure_getenv("TRX_SYSTEM_ROOT");
  return std::string(root != nullptr && *root != '\0' ? root : TRX_BUILT_IN_SYSTEM_ROOT) + path;
}

}  // namespace orv
