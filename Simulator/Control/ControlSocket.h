#pragma once

#include <stdexcept>
#include <string>

#include "UnixSocket.h"

namespace trxsim {

/// A control socket that cannot be made, in words for the user.
class ControlSocketError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The listening end of a control socket. At its end the socket file, and a folder made for it, go
/// away. A file that a dead simulator left behind is taken over; one of a live simulator never.
class ControlSocket {
 public:
  /// At `path`. Throws `ControlSocketError`, also when a live simulator listens there.
  static ControlSocket At(const std::string &path);

  /// At the default place; when a live simulator has that, in a private folder of its own.
  static ControlSocket AtDefaultPlace();

  ~ControlSocket();
  ControlSocket(const ControlSocket &) = delete;
  ControlSocket &operator=(const ControlSocket &) = delete;

  /// Its path.
  const std::string &Path() const { return path_; }

  /// True when it is neither at a place that was asked for nor at the default one.
  bool IsPrivate() const { return isPrivate_; }

  /// The listening socket for a server, a descriptor of its own. This one stays open as well: until
  /// the file is gone, nobody may take it for a dead simulator's.
  Descriptor Listener() const;

 private:
  ControlSocket(std::string path, std::string ownFolder, bool isPrivate);

  std::string path_;
  std::string ownFolder_;  // empty: the folder was there before
  bool isPrivate_;
  Descriptor listener_;
};

}  // namespace trxsim
