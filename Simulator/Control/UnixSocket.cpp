#include "UnixSocket.h"

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace trxsim {

namespace {

std::optional<sockaddr_un> AddressOf(const std::string &path) {
  sockaddr_un address{};
  if (path.empty() || path.size() >= sizeof address.sun_path) {
    errno = ENAMETOOLONG;
    return std::nullopt;
  }
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return address;
}

const sockaddr *Generic(const sockaddr_un &address) {
  return reinterpret_cast<const sockaddr *>(&address);
}

}  // namespace

Descriptor::~Descriptor() {
  if (number_ >= 0) close(number_);
}

Descriptor ConnectUnixSocket(const std::string &path) {
  const std::optional<sockaddr_un> address = AddressOf(path);
  if (!address) return Descriptor();
  Descriptor socketEnd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!socketEnd) return Descriptor();
  if (connect(socketEnd.Get(), Generic(*address), sizeof *address) != 0) return Descriptor();
  return socketEnd;
}

std::optional<uid_t> PeerOf(const Descriptor &connected) {
  ucred peer{};
  socklen_t length = sizeof peer;
  if (getsockopt(connected.Get(), SOL_SOCKET, SO_PEERCRED, &peer, &length) != 0) {
    return std::nullopt;
  }
  return peer.uid;
}

Descriptor ListenUnixSocket(const std::string &path) {
  const std::optional<sockaddr_un> address = AddressOf(path);
  if (!address) return Descriptor();
  Descriptor listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (!listener) return Descriptor();
  if (bind(listener.Get(), Generic(*address), sizeof *address) != 0) return Descriptor();
  if (listen(listener.Get(), SOMAXCONN) != 0) return Descriptor();
  return listener;
}

}  // namespace trxsim
