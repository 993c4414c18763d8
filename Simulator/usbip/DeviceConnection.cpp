#include "DeviceConnection.h"

#include <array>
#include <cerrno>
#include <utility>

#include <sys/socket.h>

namespace trxsim {

DeviceConnection::DeviceConnection(Descriptor socket, DeviceSession session, Broken broken)
    : socket_(std::move(socket)), session_(std::move(session)), broken_(std::move(broken)) {
  thread_ = std::thread(&DeviceConnection::serve, this);
}

DeviceConnection::~DeviceConnection() {
  pull();
  thread_.join();
}

void DeviceConnection::pull() {
  isPulled_ = true;
  shutdown(socket_.get(), SHUT_RDWR);
}

void DeviceConnection::serve() {
  const std::string reason = serveToTheEnd();
  // The kernel is to see the end of a connection that is not served any more.
  shutdown(socket_.get(), SHUT_RDWR);
  if (!isPulled_ && !reason.empty()) broken_(reason);
  isFinished_ = true;
}

// Why the kernel's half ended it; empty when this half did.
std::string DeviceConnection::serveToTheEnd() {
  std::array<std::uint8_t, 4096> buffer;
  while (!session_.isOver()) {
    const ssize_t count = recv(socket_.get(), buffer.data(), buffer.size(), 0);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) {
      return session_.isInMidFrame() ? "it hung up in the middle of a frame"
                                     : "it detached the unit";
    }
    const std::span received(buffer.data(), static_cast<std::size_t>(count));
    if (!send(session_.receive(received))) return "it takes no more replies";
  }
  return session_.error().empty() ? "" : "it sent a malformed frame: " + session_.error();
}

bool DeviceConnection::send(const std::vector<std::uint8_t> &bytes) const {
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    const ssize_t count =
        ::send(socket_.get(), bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    sent += static_cast<std::size_t>(count);
  }
  return true;
}

}  // namespace trxsim
