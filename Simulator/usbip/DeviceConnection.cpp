#include "DeviceConnection.h"

#include <array>
#include <cerrno>
#include <utility>

#include <sys/socket.h>

namespace trxsim {

DeviceConnection::DeviceConnection(Descriptor socket, DeviceSession session, Broken broken)
    : socket_(std::move(socket)), session_(std::move(session)), broken_(std::move(broken)) {
  thread_ = std::thread(&DeviceConnection::Serve, this);
}

DeviceConnection::~DeviceConnection() {
  Pull();
  thread_.join();
}

void DeviceConnection::Pull() {
  isPulled_ = true;
  shutdown(socket_.Get(), SHUT_RDWR);
}

void DeviceConnection::Serve() {
  const std::string reason = ServeToTheEnd();
  // So that the kernel sees the end of the connection.
  shutdown(socket_.Get(), SHUT_RDWR);
  if (!isPulled_ && !reason.empty()) broken_(reason);
  isFinished_ = true;
}

// What the kernel did that ended the connection; empty when this side ended it.
std::string DeviceConnection::ServeToTheEnd() {
  std::array<std::uint8_t, 4096> buffer;
  while (!session_.IsOver()) {
    const ssize_t count = recv(socket_.Get(), buffer.data(), buffer.size(), 0);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) {
      return session_.IsInMidFrame() ? "it hung up in the middle of a frame"
                                     : "it detached the unit";
    }
    const std::span received(buffer.data(), static_cast<std::size_t>(count));
    if (!Send(session_.Receive(received))) return "it takes no more replies";
  }
  return session_.Error().empty() ? "" : "it sent a malformed frame: " + session_.Error();
}

bool DeviceConnection::Send(const std::vector<std::uint8_t> &bytes) const {
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    const ssize_t count =
        ::send(socket_.Get(), bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    sent += static_cast<std::size_t>(count);
  }
  return true;
}

}  // namespace trxsim
