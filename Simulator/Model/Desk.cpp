#include "Desk.h"

#include <cstdio>
#include <utility>

namespace trxsim {

namespace {

constexpr std::uint16_t kMixerProductId = 0x001F;

UsbIdentity mixerIdentity(int number) {
  char serial[16];
  std::snprintf(serial, sizeof serial, "SIM%05d", number);
  return {MAKER_USB_VENDOR_ID, kMixerProductId, true, "Orvik Audio", "TRX-SELVA", serial};
}

UsbIdentity strangerIdentity(std::uint16_t vendor, std::uint16_t product) {
  return {vendor, product, false, "", "Stranger", ""};
}

std::string unitText(int number) { return "unit " + std::to_string(number); }

}  // namespace

Desk::Desk(FrontEnd &frontEnd, WireLog::Sink logSink)
    : frontEnd_(frontEnd), log_(std::move(logSink)) {}

int Desk::plugMixer() {
  const std::lock_guard lock(mutex_);
  return add({mixerIdentity(static_cast<int>(units_.size()) + 1), Mixer(), {}, {}});
}

int Desk::plugStranger(std::uint16_t vendor, std::uint16_t product) {
  const std::lock_guard lock(mutex_);
  return add({strangerIdentity(vendor, product), {}, {}, {}});
}

void Desk::unplug(int number) {
  const std::lock_guard lock(mutex_);
  Unit &unit = find(number);
  if (!unit.address) throw DeskError(unitText(number) + " is not plugged in; `replug` does that");
  disconnect(number, unit);
}

void Desk::replug(int number) {
  const std::lock_guard lock(mutex_);
  Unit &unit = find(number);
  if (unit.address) throw DeskError(unitText(number) + " is plugged in; `unplug` it first");
  connect(number, unit);
}

void Desk::lost(int number, const BusAddress &address) {
  const std::lock_guard lock(mutex_);
  Unit &unit = find(number);
  if (unit.address == address) disconnect(number, unit);
}

std::map<int, Unit> Desk::units() const {
  const std::lock_guard lock(mutex_);
  return units_;
}

Unit Desk::unit(int number) const {
  const std::lock_guard lock(mutex_);
  return find(number);
}

void Desk::change(int number, const std::function<void(MixerState &)> &edit) {
  const std::lock_guard lock(mutex_);
  Unit &unit = find(number);
  if (!unit.mixer) throw DeskError(unitText(number) + " is a stranger and has no settings");
  edit(unit.mixer->state());
}

void Desk::setFault(int number, std::optional<RequestId> request, RequestFault fault) {
  const std::lock_guard lock(mutex_);
  find(number).faults.set(request, fault);
}

void Desk::setFault(int number, OpenFault fault) {
  const std::lock_guard lock(mutex_);
  Unit &unit = find(number);
  if (unit.address) frontEnd_.setOpenFault(number, fault);
  unit.faults.set(fault);
}

void Desk::clearFaults(int number) {
  const std::lock_guard lock(mutex_);
  Unit &unit = find(number);
  if (unit.address) frontEnd_.setOpenFault(number, OpenFault::None);
  unit.faults.clear();
}

TransferResult Desk::transfer(int number, const ControlRequest &request) {
  const std::lock_guard lock(mutex_);
  // A unit that a front end could not plug in after all may have been seen by a host already.
  const auto found = units_.find(number);
  if (found == units_.end() || !found->second.address) return {Outcome::Gone, {}};
  Unit &unit = found->second;
  TransferResult result = answer(unit, request);
  log_.add(number, request, result);
  if (result.outcome == Outcome::Unplugged) disconnect(number, unit);
  return result;
}

std::vector<std::string> Desk::log() const {
  const std::lock_guard lock(mutex_);
  return log_.lines();
}

void Desk::clearLog() {
  const std::lock_guard lock(mutex_);
  log_.clear();
}

Unit &Desk::find(int number) { return const_cast<Unit &>(std::as_const(*this).find(number)); }

const Unit &Desk::find(int number) const {
  const auto found = units_.find(number);
  if (found == units_.end()) {
    throw DeskError("there is no " + unitText(number) + "; `units` lists them");
  }
  return found->second;
}

int Desk::add(Unit unit) {
  const int number = static_cast<int>(units_.size()) + 1;
  connect(number, unit);
  units_.emplace(number, std::move(unit));
  return number;
}

void Desk::connect(int number, Unit &unit) {
  unit.address = frontEnd_.plug(number, unit.identity, unit.faults.open());
}

void Desk::disconnect(int number, Unit &unit) {
  frontEnd_.unplug(number);
  unit.address.reset();
}

TransferResult Desk::answer(Unit &unit, const ControlRequest &request) {
  const std::optional<RequestFault> fault = unit.faults.faultOf(requestFor(request));
  if (fault) {
    switch (fault->kind) {
      case RequestFaultKind::Stall:
        return {Outcome::Stalled, {}};
      case RequestFaultKind::NoReply:
        return {Outcome::NoReply, {}};
      case RequestFaultKind::Vanish:
        return {Outcome::Unplugged, {}};
      case RequestFaultKind::Short:
        break;
    }
  }
  TransferResult result = unit.mixer ? unit.mixer->answer(request) : TransferResult{};
  if (fault && result.data.size() > fault->bytes) result.data.resize(fault->bytes);
  return result;
}

}  // namespace trxsim
