#include "KernelSide.h"

#include <cstdio>
#include <stdexcept>
#include <thread>

#include <sys/socket.h>

#include "HexBytes.h"

namespace {

// An answer that takes longer than this never comes.
constexpr timeval kPatience{20, 0};

std::uint32_t NumberAt(const std::vector<std::uint8_t> &bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t byte = 0; byte < 4; ++byte) number = number << 8 | bytes.at(place + byte);
  return number;
}

std::string Word(unsigned number) {
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

void KernelSide::Send(const std::string &hex) {
  const std::vector<std::uint8_t> bytes = BytesOf(hex);
  // The unit may hang up on us, which is what some tests provoke.
  ::send(socket_.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

std::string KernelSide::Request(const std::string &setup) {
  Submit(++sequence_, setup);
  const std::vector<std::uint8_t> answer = BytesOf(Reply());
  if (answer.size() < 48) return "hung up";
  if (NumberAt(answer, 0) != 3 || NumberAt(answer, 4) != sequence_) return HexOf(answer);
  const auto status = static_cast<std::int32_t>(NumberAt(answer, 20));
  const std::span data = std::span(answer).subspan(48);
  return std::to_string(status) + (data.empty() ? "" : " " + HexOf(data));
}

void KernelSide::Submit(unsigned sequence, const std::string &setup) {
  const std::vector<std::uint8_t> packet = BytesOf(setup);
  const unsigned length = packet.at(6) | static_cast<unsigned>(packet.at(7)) << 8;
  const bool isRead = (packet.at(0) & 0x80) != 0 && length > 0;
  if (isRead) reads_.insert(sequence);
  Send("00000001" + Word(sequence) + "00010001" + Word(isRead ? 1 : 0) + "00000000 00000000" +
       Word(length) + "00000000 00000000 00000000" + setup);
}

std::string KernelSide::Reply() {
  std::vector<std::uint8_t> bytes = Receive(48);
  if (bytes.size() == 48 && NumberAt(bytes, 0) == 3 && reads_.contains(NumberAt(bytes, 4))) {
    const std::vector<std::uint8_t> data = Receive(NumberAt(bytes, 24));
    bytes.insert(bytes.end(), data.begin(), data.end());
  }
  return HexOf(bytes);
}

void KernelSide::HangUp() { shutdown(socket_.Get(), SHUT_WR); }

std::string KernelSide::EndOfConnection() {
  char byte = 0;
  while (recv(socket_.Get(), &byte, 1, 0) > 0) {
  }
  while (!connection_->IsFinished()) std::this_thread::yield();
  connection_.reset();
  return broken_;
}

std::vector<std::uint8_t> KernelSide::Receive(std::size_t length) {
  std::vector<std::uint8_t> bytes(length);
  if (length == 0) return bytes;
  const ssize_t count = recv(socket_.Get(), bytes.data(), length, MSG_WAITALL);
  if (count < 0) throw std::runtime_error("the unit does not answer");
  bytes.resize(static_cast<std::size_t>(count));
  return bytes;
}
