#pragma once

#include <string>

#include "../Control/UnixSocket.h"

namespace trxsim {

/// A terminal in exclusive mode. As long as it exists, the kernel answers every open of its path
/// with EBUSY, except to a process with CAP_SYS_ADMIN: the only device that an ordinary user can
/// make busy for everybody.
class HeldTerminal {
 public:
  /// Throws `DeskError` when the system has no terminals to give.
  HeldTerminal();

  /// Its path, such as "/dev/pts/4".
  const std::string &Path() const { return path_; }

 private:
  Descriptor primary_;
  Descriptor secondary_;
  std::string path_;
};

}  // namespace trxsim
