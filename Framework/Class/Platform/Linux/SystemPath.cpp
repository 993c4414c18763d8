#include "SystemPath.h"

#include <cstdlib>

namespace orv {

// Nothing of ours lies at the root of a Linux system: a folder of the installation stands for it.
// secure_getenv ignores the variable in a program that runs with more rights than its user. An
// empty variable is as good as none.
std::string SystemPath(const std::string &path) {
  const char *const root = secure_getenv("TRX_SYSTEM_ROOT");
  return std::string(root != nullptr && *root != '\0' ? root : TRX_BUILT_IN_SYSTEM_ROOT) + path;
}

}  // namespace orv
