#include "RegistryFrontEnd.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <system_error>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace trxtest {
namespace {

// How long the platform waits for a synchronous request without a time-out.
constexpr std::chrono::seconds kPatienceOfHosts{5};

constexpr int kLastDeviceNumber = 127;

trxsim::Descriptor ListenAt(const std::string &path) {
  trxsim::Descriptor listener(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
  sockaddr_un address = {AF_UNIX, {}};
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  if (bind(listener.Get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
      listen(listener.Get(), SOMAXCONN) != 0) {
    throw std::system_error(errno, std::generic_category(), path);
  }
  return listener;
}

}  // namespace

RegistryFrontEnd::RegistryFrontEnd(const std::string &path)
    : listener_(ListenAt(path)), accepting_([this] { Accept(); }) {}

RegistryFrontEnd::~RegistryFrontEnd() {
  shutdown(listener_.Get(), SHUT_RDWR);
  accepting_.join();
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
    for (const Client &client : clients_) shutdown(client.socket.Get(), SHUT_RDWR);
  }
  changed_.notify_all();
  for (Client &client : clients_) client.thread.join();
}

trxsim::BusAddress RegistryFrontEnd::Plug(int number, const trxsim::UsbIdentity &identity,
                                          trxsim::OpenFault fault) {
  const std::lock_guard lock(mutex_);
  lastDeviceNumber_ = NextDeviceNumber();
  bus_[lastDeviceNumber_] = {number, {lastDeviceNumber_, identity.vendor, identity.product, fault}};
  return {1, lastDeviceNumber_};
}

void RegistryFrontEnd::Unplug(int number) {
  const std::lock_guard lock(mutex_);
  bus_.erase(Find(number));
  changed_.notify_all();
}

void RegistryFrontEnd::SetOpenFault(int number, trxsim::OpenFault fault) {
  const std::lock_guard lock(mutex_);
  Find(number)->second.device.fault = fault;
}

void RegistryFrontEnd::Accept() {
  for (;;) {
    const int client = accept4(listener_.Get(), nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0) return;
    const std::lock_guard lock(mutex_);
    clients_.remove_if([](Client &old) {
      const bool left = old.hasLeft;
      if (left) old.thread.join();
      return left;
    });
    Client &added = clients_.emplace_back();
    added.socket = trxsim::Descriptor(client);
    added.thread = std::thread([this, &added] { Serve(added); });
  }
}

void RegistryFrontEnd::Serve(Client &client) {
  const int socket = client.socket.Get();
  RegistryRequest request;
  while (recv(socket, &request, sizeof request, 0) == sizeof request) {
    if (request.isTransfer) {
      const RegistryAnswer answer = Transfer(request);
      send(socket, &answer, sizeof answer, MSG_NOSIGNAL);
    } else {
      const std::vector<RegistryDevice> devices = Devices();
      send(socket, devices.data(), devices.size() * sizeof devices[0], MSG_NOSIGNAL);
    }
  }
  client.hasLeft = true;
}

std::vector<RegistryDevice> RegistryFrontEnd::Devices() {
  const std::lock_guard lock(mutex_);
  std::vector<RegistryDevice> devices;
  for (const auto &[device, plugged] : bus_) devices.push_back(plugged.device);
  return devices;
}

RegistryAnswer RegistryFrontEnd::Transfer(const RegistryRequest &request) {
  int number = 0;
  {
    const std::lock_guard lock(mutex_);
    const auto found = bus_.find(request.device);
    if (found == bus_.end()) return {};
    number = found->second.number;
  }
  const trxsim::TransferResult result = requests_.Transfer(number, request.setup);
  RegistryAnswer answer;
  answer.outcome =
      result.outcome == trxsim::Outcome::kNoReply ? WaitInVain(request.device) : result.outcome;
  answer.size =
      static_cast<std::uint16_t>(std::min(result.data.size(), RegistryAnswer::kMostBytes));
  std::copy_n(result.data.begin(), answer.size, answer.bytes.begin());
  return answer;
}

trxsim::Outcome RegistryFrontEnd::WaitInVain(int device) {
  std::unique_lock lock(mutex_);
  const bool isGone = changed_.wait_for(lock, kPatienceOfHosts,
                                        [&] { return isEnding_ || !bus_.contains(device); });
  return isGone ? trxsim::Outcome::kUnplugged : trxsim::Outcome::kNoReply;
}

int RegistryFrontEnd::NextDeviceNumber() const {
  int number = lastDeviceNumber_;
  // 1 is the root hub.
  do {
    number = number == kLastDeviceNumber ? 2 : number + 1;
  } while (bus_.contains(number));
  return number;
}

RegistryFrontEnd::Bus::iterator RegistryFrontEnd::Find(int number) {
  return std::find_if(bus_.begin(), bus_.end(),
                      [&](const auto &place) { return place.second.number == number; });
}

}  // namespace trxtest
