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

// A kernel takes some tenths of a second to get to know a device; a busy one in a virtual machine
// may take many times that.
constexpr std::chrono::seconds kKernelTakesAtMost(30);
constexpr std::chrono::milliseconds kLookAgainAfter(2);

// What a USB/IP server would say of where the device sits on its side; the kernel only repeats it.
unsigned deviceIdOf(int number) { return 1U << 16 | static_cast<unsigned>(number); }

constexpr const char *kNotTakenUp =
    "the kernel did not take the unit up; its log (`dmesg`) may say why";

std::pair<Descriptor, Descriptor> makeCable() {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
    throw DeskError(std::string("cannot make a connection to the kernel: ") + std::strerror(errno));
  }
  return {Descriptor(ends[0]), Descriptor(ends[1])};
}

}  // namespace

UsbipFrontEnd::~UsbipFrontEnd() {
  std::vector<Plugged> units;
  while (!plugged_.empty()) units.push_back(take(plugged_.begin()->first));
  // The kernel takes its time for each, so all are pulled before the first is waited for.
  for (Plugged &unit : units) pull(unit);
  for (Plugged &unit : units) waitUntilGone(unit);
}

BusAddress UsbipFrontEnd::plug(int number, const UsbIdentity &identity, OpenFault fault) {
  forgetEnded();
  connect(number, identity);
  try {
    const BusAddress address = waitForKernel(plugged_.at(number));
    show(number, address, fault);
    return address;
  } catch (...) {
    unplug(number);
    throw;
  }
}

void UsbipFrontEnd::unplug(int number) {
  Plugged unit = take(number);
  pull(unit);
  waitUntilGone(unit);
}

void UsbipFrontEnd::setOpenFault(int number, OpenFault fault) {
  const std::lock_guard lock(mutex_);
  plugged_.at(number).node->set(fault);
}

void UsbipFrontEnd::connect(int number, const UsbIdentity &identity) {
  auto [ours, kernels] = makeCable();
  const std::lock_guard lock(mutex_);
  const int plugging = ++pluggings_;
  auto connection = std::make_unique<DeviceConnection>(
      std::move(ours),
      DeviceSession(identity,
                    [this, number](const ControlRequest &request) {
                      return requests_.transfer(number, request);
                    }),
      [this, number, plugging](const std::string &reason) { onBroken(number, plugging, reason); });
  const VhciPort port = controller_.attach(kernels.get(), deviceIdOf(number));
  plugged_.emplace(number, Plugged{plugging, port, std::move(connection), {}, {}, false});
}

BusAddress UsbipFrontEnd::waitForKernel(const Plugged &unit) const {
  const Clock::time_point end = Clock::now() + kKernelTakesAtMost;
  while (Clock::now() < end && !unit.connection->isFinished()) {
    if (const std::optional<BusAddress> address = controller_.addressAt(unit.port)) return *address;
    std::this_thread::sleep_for(kLookAgainAfter);
  }
  throw DeskError(kNotTakenUp);
}

void UsbipFrontEnd::show(int number, const BusAddress &address, OpenFault fault) {
  const std::lock_guard lock(mutex_);
  Plugged &unit = plugged_.at(number);
  if (unit.isBroken) throw DeskError(kNotTakenUp);
  unit.address = address;
  unit.node = std::make_unique<DeviceNode>(controller_.nodeOf(address));
  if (fault != OpenFault::None) unit.node->set(fault);
}

UsbipFrontEnd::Plugged UsbipFrontEnd::take(int number) {
  const std::lock_guard lock(mutex_);
  Plugged unit = std::move(plugged_.at(number));
  plugged_.erase(number);
  return unit;
}

void UsbipFrontEnd::pull(Plugged &unit) {
  unit.node.reset();
  if (!unit.connection->isFinished()) controller_.detach(unit.port);
  unit.connection->pull();
}

// The thread of the connection is not waited for: it may be the one that is here, or wait for the
// desk, which is locked.
void UsbipFrontEnd::waitUntilGone(Plugged &unit) {
  const Clock::time_point end = Clock::now() + kKernelTakesAtMost;
  while (unit.address && controller_.hasTracesOf(*unit.address, unit.port) && Clock::now() < end) {
    std::this_thread::sleep_for(kLookAgainAfter);
  }
  const std::lock_guard lock(mutex_);
  pulled_.push_back(std::move(unit.connection));
}

void UsbipFrontEnd::onBroken(int number, int plugging, const std::string &reason) {
  std::optional<BusAddress> address;
  {
    const std::lock_guard lock(mutex_);
    const auto found = plugged_.find(number);
    if (found == plugged_.end() || found->second.plugging != plugging) return;
    found->second.isBroken = true;
    address = found->second.address;
  }
  std::fprintf(stderr, "trx-mixer-sim: the kernel dropped unit %d: %s\n", number, reason.c_str());
  if (address) requests_.lost(number, *address);
}

void UsbipFrontEnd::forgetEnded() {
  const std::lock_guard lock(mutex_);
  pulled_.remove_if([](const auto &connection) { return connection->isFinished(); });
}

}  // namespace trxsim
