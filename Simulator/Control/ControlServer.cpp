#include "ControlServer.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace trxsim {

namespace {

// Far above any command: a client that sends more does not speak this protocol.
constexpr std::size_t kLongestLine = 4096;

// So that a client in error cannot use up the simulator's descriptors; further clients wait.
constexpr std::size_t kMostConnections = 100;

bool MustWait() { return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR; }

}  // namespace

ControlServer::ControlServer(Descriptor listener, CommandInterpreter &interpreter)
    : listener_(std::move(listener)), interpreter_(interpreter) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
  stopRead_ = Descriptor(ends[0]);
  stopWrite_ = Descriptor(ends[1]);
  thread_ = std::thread(&ControlServer::Serve, this);
}

ControlServer::~ControlServer() {
  stopWrite_ = Descriptor();
  thread_.join();
}

void ControlServer::Serve() {
  for (;;) {
    const int listener = connections_.size() < kMostConnections ? listener_.Get() : -1;
    std::vector<pollfd> polled{{stopRead_.Get(), POLLIN, 0}, {listener, POLLIN, 0}};
    for (const Connection &connection : connections_) {
      // No command is read from a client that does not read its replies.
      const short events = connection.output.empty() ? POLLIN : POLLOUT;
      polled.push_back({connection.socket.Get(), events, 0});
    }
    if (poll(polled.data(), polled.size(), -1) < 0) continue;
    if (polled[0].revents != 0) return;
    std::size_t place = 2;
    for (Connection &connection : connections_) {
      const short happened = polled[place++].revents;
      if ((happened & POLLOUT) != 0) {
        Send(connection);
        AnswerLines(connection);
      } else if (happened != 0) {
        Receive(connection);
      }
    }
    connections_.remove_if([](const Connection &one) { return one.closing && one.output.empty(); });
    if (polled[1].revents != 0) Accept();
  }
}

void ControlServer::Accept() {
  Descriptor socket(accept4(listener_.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
  if (socket) connections_.push_back({std::move(socket), {}, {}, false});
}

void ControlServer::Receive(Connection &connection) {
  char buffer[4096];
  const ssize_t count = recv(connection.socket.Get(), buffer, sizeof buffer, 0);
  if (count < 0 && MustWait()) return;
  if (count <= 0) {
    connection.closing = true;
    connection.output.clear();
    return;
  }
  connection.input.append(buffer, static_cast<std::size_t>(count));
  AnswerLines(connection);
}

void ControlServer::AnswerLines(Connection &connection) {
  while (connection.output.empty() && !connection.closing) {
    const std::size_t end = connection.input.find('\n');
    if (std::min(end, connection.input.size()) > kLongestLine) {
      connection.closing = true;
      connection.output = "error the line is too long; a command has at most " +
                          std::to_string(kLongestLine) + " characters\n";
    } else if (end == std::string::npos) {
      return;
    } else {
      connection.output = interpreter_.Execute(connection.input.substr(0, end)).WireText();
      connection.input.erase(0, end + 1);
    }
    Send(connection);
  }
}

void ControlServer::Send(Connection &connection) {
  const ssize_t count = ::send(connection.socket.Get(), connection.output.data(),
                               connection.output.size(), MSG_NOSIGNAL);
  if (count >= 0) {
    connection.output.erase(0, static_cast<std::size_t>(count));
  } else if (!MustWait()) {
    connection.closing = true;
    connection.output.clear();
  }
}

}  // namespace trxsim
