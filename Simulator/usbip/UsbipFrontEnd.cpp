#include "UsbipFrontEnd.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>
#include <utility>
#include <vector>

#include <sys/socket.h>

#include "../Model/Desk.h"

namespace trxsim {

namespace {

using Clock = std::chrono::steady_clock;

// A kernel takes some tenths of a second to identify a device; in a busy virtual machine it may
// take many times as long.
constexpr std::chrono::seconds kKernelTakesAtMost(30);
constexpr std::chrono::milliseconds kLookAgainAfter(2);

// A USB/IP server would give the device's place on its side; the kernel only repeats it.
unsigned DeviceIdOf(int number) { return 1U << 16 | static_cast<unsigned>(number); }

constexpr const char *kNotTakenUp =
    "the kernel did not accept the unit; its log (`dmesg`) may say why";

std::pair<Descriptor, Descriptor> MakeCable() {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
    throw DeskError(std::string("cannot make a connection to the kernel: ") + std::strerror(errno));
  }
  return {Descriptor(ends[0]), Descriptor(ends[1])};
}

}  // namespace

UsbipFrontEnd::~UsbipFrontEnd() {
  std::vector<Plugged> units;
  while (!plugged_.empty()) units.push_back(Take(plugged_.begin()->first));
  // The kernel takes some time for each, so all are pulled before the first wait.
  for (Plugged &unit : units) Pull(unit);
  for (Plugged &unit : units) WaitUntilGone(unit);
}

BusAddress UsbipFrontEnd::Plug(int number, const UsbIdentity &identity, OpenFault fault) {
  ForgetEnded();
  Connect(number, identity);
  try {
    const BusAddress address = WaitForKernel(plugged_.at(number));
    Show(number, address, fault);
    return address;
  } catch (...) {
    Unplug(number);
    throw;
  }
}

void UsbipFrontEnd::Unplug(int number) {
  Plugged unit = Take(number);
  Pull(unit);
  WaitUntilGone(unit);
}

void UsbipFrontEnd::SetOpenFault(int number, OpenFault fault) {
  const std::lock_guard lock(mutex_);
  plugged_.at(number).node->Set(fault);
}

void UsbipFrontEnd::Connect(int number, const UsbIdentity &identity) {
  auto [ours, kernels] = MakeCable();
  const std::lock_guard lock(mutex_);
  const int plugging = ++pluggings_;
  auto connection = std::make_unique<DeviceConnection>(
      std::move(ours),
      DeviceSession(identity,
                    [this, number](const ControlRequest &request) {
                      return requests_.Transfer(number, request);
                    }),
      [this, number, plugging](const std::string &reason) { OnBroken(number, plugging, reason); });
  const VhciPort port = controller_.Attach(kernels.Get(), DeviceIdOf(number));
  plugged_.emplace(number, Plugged{plugging, port, std::move(connection), {}, {}, false});
}

BusAddress UsbipFrontEnd::WaitForKernel(const Plugged &unit) const {
  const Clock::time_point end = Clock::now() + kKernelTakesAtMost;
  while (Clock::now() < end && !unit.connection->IsFinished()) {
    if (const std::optional<BusAddress> address = controller_.AddressAt(unit.port)) return *address;
    std::this_thread::sleep_for(kLookAgainAfter);
  }
  throw DeskError(kNotTakenUp);
}

void UsbipFrontEnd::Show(int number, const BusAddress &address, OpenFault fault) {
  const std::lock_guard lock(mutex_);
  Plugged &unit = plugged_.at(number);
  if (unit.isBroken) throw DeskError(kNotTakenUp);
  unit.address = address;
  unit.node = std::make_unique<DeviceNode>(controller_.NodeOf(address));
  if (fault != OpenFault::kNone) unit.node->Set(fault);
}

UsbipFrontEnd::Plugged UsbipFrontEnd::Take(int number) {
  const std::lock_guard lock(mutex_);
  Plugged unit = std::move(plugged_.at(number));
  plugged_.erase(number);
  return unit;
}

void UsbipFrontEnd::Pull(Plugged &unit) {
  unit.node.reset();
  if (!unit.connection->IsFinished()) controller_.Detach(unit.port);
  unit.connection->Pull();
}

// Does not wait for the connection's thread: that may be this thread, or one that waits for the
// desk, which is locked.
void UsbipFrontEnd::WaitUntilGone(Plugged &unit) {
  const Clock::time_point end = Clock::now() + kKernelTakesAtMost;
  while (unit.address && controller_.HasTracesOf(*unit.address, unit.port) && Clock::now() < end) {
    std::this_thread::sleep_for(kLookAgainAfter);
  }
  const std::lock_guard lock(mutex_);
  pulled_.push_back(std::move(unit.connection));
}

void UsbipFrontEnd::OnBroken(int number, int plugging, const std::string &reason) {
  std::optional<BusAddress> address;
  {
    const std::lock_guard lock(mutex_);
    const auto found = plugged_.find(number);
    if (found == plugged_.end() || found->second.plugging != plugging) return;
    found->second.isBroken = true;
    address = found->second.address;
  }
  std::fprintf(stderr, "trx-mixer-sim: the kernel dropped unit %d: %s\n", number, reason.c_str());
  if (address) requests_.Lost(number, *address);
}

void UsbipFrontEnd::ForgetEnded() {
  const std::lock_guard lock(mutex_);
  pulled_.remove_if([](const auto &connection) { return connection->IsFinished(); });
}

}  // namespace trxsim
