#pragma once

#include <string>

#include "../Control/UnixSocket.h"

namespace trxsim {

/// A terminal in exclusive mode. While it exists, the kernel answers every open of its path with
/// EBUSY, except for a process with CAP_SYS_ADMIN. No other device can be made busy for everybody
/// by an ordinary user.
class HeldTerminal {
 public:
  /// Throws `DeskError` when the system has no free terminal.
  HeldTerminal();

  /// Its path, such as "/dev/pts/4".
  const std::string &Path() const { return path_; }

 private:
  Descriptor primary_;
  Descriptor secondary_;
  std::string path_;
};

}  // namespace trxsim
