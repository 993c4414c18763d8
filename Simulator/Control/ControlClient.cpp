#include "ControlClient.h"

#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>

#include <sys/socket.h>
#include <unistd.h>

#include "ControlAddress.h"

namespace trxsim {

namespace {

constexpr std::string_view kDone = "ok";
constexpr std::string_view kRefused = "error ";

}  // namespace

ControlClient::ControlClient(const std::string &path)
    : path_(path), socket_(ConnectUnixSocket(path)) {
  if (!socket_) {
    throw SimulatorUnreachable("no simulator answers at " + path + ": " + std::strerror(errno));
  }
  const std::optional<uid_t> peer = PeerOf(socket_);
  if (!peer || (*peer != geteuid() && *peer != 0)) {
    throw SimulatorNotTrusted("the simulator at " + path + " belongs to another user");
  }
}

std::vector<std::string> ControlClient::Ask(const std::string &command) {
  if (command.find('\n') != std::string::npos) {
    throw CommandRefused("a command is one line");
  }
  Send(command + '\n');
  std::vector<std::string> lines;
  for (;;) {
    std::string line = ReceiveLine();
    if (line == kDone) return lines;
    if (line.starts_with(kRefused)) throw CommandRefused(line.substr(kRefused.size()));
    lines.push_back(std::move(line));
  }
}

void ControlClient::Send(const std::string &line) {
  std::size_t sent = 0;
  while (sent < line.size()) {
    const ssize_t count =
        ::send(socket_.Get(), line.data() + sent, line.size() - sent, MSG_NOSIGNAL);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) throw SimulatorUnreachable("the simulator at " + path_ + " has ended");
    sent += static_cast<std::size_t>(count);
  }
}

std::string ControlClient::ReceiveLine() {
  for (;;) {
    const std::size_t end = received_.find('\n');
    if (end != std::string::npos) {
      std::string line = received_.substr(0, end);
      received_.erase(0, end + 1);
      return line;
    }
    char buffer[4096];
    const ssize_t count = recv(socket_.Get(), buffer, sizeof buffer, 0);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) throw SimulatorUnreachable("the simulator at " + path_ + " has ended");
    received_.append(buffer, static_cast<std::size_t>(count));
  }
}

}  // namespace trxsim
