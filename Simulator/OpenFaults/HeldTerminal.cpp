#include "HeldTerminal.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/ioctl.h>

#include "../Model/Desk.h"

namespace trxsim {

namespace {

[[noreturn]] void Fail() {
  throw DeskError(std::string("cannot make a terminal for `hold`: ") + std::strerror(errno));
}

}  // namespace

HeldTerminal::HeldTerminal() : primary_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
  char name[64];
  if (!primary_ || grantpt(primary_.Get()) != 0 || unlockpt(primary_.Get()) != 0 ||
      ptsname_r(primary_.Get(), name, sizeof name) != 0) {
    Fail();
  }
  path_ = name;
  secondary_ = Descriptor(open(name, O_RDWR | O_NOCTTY | O_CLOEXEC));
  if (!secondary_ || ioctl(secondary_.Get(), TIOCEXCL) != 0) Fail();
}

}  // namespace trxsim
