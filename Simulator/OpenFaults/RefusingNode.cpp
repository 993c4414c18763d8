#include "RefusingNode.h"

#include <cerrno>
#include <cstring>
#include <string>

#include <sys/stat.h>

#include "../Model/Desk.h"

namespace trxsim {

// Opening a socket file fails with ENXIO for everybody who has the permission to write to it.
void MakeRefusingNode(const std::filesystem::path &path) {
  constexpr mode_t kForEverybody = 0666;
  if (mknod(path.c_str(), S_IFSOCK, 0) != 0 || chmod(path.c_str(), kForEverybody) != 0) {
    throw DeskError(std::string("cannot make a socket file for `refuse`: ") + std::strerror(errno));
  }
}

}  // namespace trxsim
