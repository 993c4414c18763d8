#include "KernelSide.h"

#include <cstdio>
#include <stdexcept>
#include <thread>

#include <sys/socket.h>

#include "HexBytes.h"

namespace {

// An answer that takes longer than this never comes.
constexpr timeval kPatience{20, 0};

std::uint32_t numberAt(const std::vector<std::uint8_t> &bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t byte = 0; byte < 4; ++byte) number = number << 8 | bytes.at(place + byte);
  return number;
}

std::string word(unsigned number) {
  char text[16];
  std::snprintf(text, sizeof text, "%08x", number);
  return text;
}

}  // namespace

KernelSide::KernelSide(trxsim::DeviceSession session) {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
    throw std::runtime_error("socketpair");
  }
  socket_ = trxsim::Descriptor(ends[0]);
  setsockopt(ends[0], SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
  connection_ = std::make_unique<trxsim::DeviceConnection>(
      trxsim::Descriptor(ends[1]), std::move(session),
      [this](const std::string &reason) { broken_ = reason; });
}

KernelSide::~KernelSide() = default;

void KernelSide::send(const std::string &hex) {
  const std::vector<std::uint8_t> bytes = bytesOf(hex);
  // The unit may hang up on us, which is what some tests provoke.
  ::send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

std::string KernelSide::request(const std::string &setup) {
  submit(++sequence_, setup);
  const std::vector<std::uint8_t> answer = bytesOf(reply());
  if (answer.size() < 48) return "hung up";
  if (numberAt(answer, 0) != 3 || numberAt(answer, 4) != sequence_) return hexOf(answer);
  const auto status = static_cast<std::int32_t>(numberAt(answer, 20));
  const std::span data = std::span(answer).subspan(48);
  return std::to_string(status) + (data.empty() ? "" : " " + hexOf(data));
}

void KernelSide::submit(unsigned sequence, const std::string &setup) {
  const std::vector<std::uint8_t> packet = bytesOf(setup);
  const unsigned length = packet.at(6) | static_cast<unsigned>(packet.at(7)) << 8;
  const bool isRead = (packet.at(0) & 0x80) != 0 && length > 0;
  if (isRead) reads_.insert(sequence);
  send("00000001" + word(sequence) + "00010001" + word(isRead ? 1 : 0) + "00000000 00000000" +
       word(length) + "00000000 00000000 00000000" + setup);
}

std::string KernelSide::reply() {
  std::vector<std::uint8_t> bytes = receive(48);
  if (bytes.size() == 48 && numberAt(bytes, 0) == 3 && reads_.contains(numberAt(bytes, 4))) {
    const std::vector<std::uint8_t> data = receive(numberAt(bytes, 24));
    bytes.insert(bytes.end(), data.begin(), data.end());
  }
  return hexOf(bytes);
}

void KernelSide::hangUp() { shutdown(socket_.get(), SHUT_WR); }

std::string KernelSide::endOfConnection() {
  char byte = 0;
  while (recv(socket_.get(), &byte, 1, 0) > 0) {
  }
  while (!connection_->isFinished()) std::this_thread::yield();
  connection_.reset();
  return broken_;
}

std::vector<std::uint8_t> KernelSide::receive(std::size_t length) {
  std::vector<std::uint8_t> bytes(length);
  if (length == 0) return bytes;
  const ssize_t count = recv(socket_.get(), bytes.data(), length, MSG_WAITALL);
  if (count < 0) throw std::runtime_error("the unit does not answer");
  bytes.resize(static_cast<std::size_t>(count));
  return bytes;
}
