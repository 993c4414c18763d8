#pragma once

#include <stdexcept>
#include <string>

#include "UnixSocket.h"

namespace trxsim {

/// A control socket that cannot be made; `what()` is a message for the user.
class ControlSocketError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The listening end of a control socket. The destructor removes the socket file and a folder that
/// was made for it. A socket file of a simulator that has ended is replaced, one of a running
/// simulator never.
class ControlSocket {
 public:
  /// At `path`. Throws `ControlSocketError`, also when a simulator listens there.
  static ControlSocket At(const std::string &path);

  /// At the default place; when a simulator listens there, in a new private folder.
  static ControlSocket AtDefaultPlace();

  ~ControlSocket();
  ControlSocket(const ControlSocket &) = delete;
  ControlSocket &operator=(const ControlSocket &) = delete;

  /// Its path.
  const std::string &Path() const { return path_; }

  /// True when it is neither at a given path nor at the default place.
  bool IsPrivate() const { return isPrivate_; }

  /// A new descriptor of the listening socket, for a server. The first one stays open until the
  /// file is removed, so that no other simulator takes the file for a dead one.
  Descriptor Listener() const;

 private:
  ControlSocket(std::string path, std::string ownFolder, bool isPrivate);

  std::string path_;
  std::string ownFolder_;  // empty: the folder was not made here
  bool isPrivate_;
  Descriptor listener_;
};

}  // namespace trxsim
