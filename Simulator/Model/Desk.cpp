#include "Desk.h"

#include <cstdio>
#include <utility>

namespace trxsim {

namespace {

constexpr std::uint16_t kMixerProductId = 0x001F;

constexpr const char *kMaker = "Orvik Audio";

Unit NewUnit(const MixerModel &model, int number) {
  char serial[16];
  std::snprintf(serial, sizeof serial, "SIM%05d", number);
  Mixer mixer;
  mixer.State().selectors.resize(model.selectors);
  return {{MAKER_USB_VENDOR_ID, kMixerProductId, true, kMaker, model.name, serial}, mixer, {}, {}};
}

Unit NewUnit(const UsbIds &ids, int) {
  const char *manufacturer = ids.vendor == MAKER_USB_VENDOR_ID ? kMaker : "";
  return {{ids.vendor, ids.product, false, manufacturer, "Other device", ""}, {}, {}, {}};
}

std::string UnitText(int number) { return "unit " + std::to_string(number); }

}  // namespace

Desk::Desk(FrontEnd &frontEnd, WireLog::Sink logSink)
    : frontEnd_(frontEnd), log_(std::move(logSink)) {}

int Desk::Plug(const UnitKind &kind) {
  const std::lock_guard lock(mutex_);
  const int number = static_cast<int>(units_.size()) + 1;
  Unit unit = std::visit([number](const auto &one) { return NewUnit(one, number); }, kind);
  Connect(number, unit);
  units_.emplace(number, std::move(unit));
  return number;
}

void Desk::Unplug(int number) {
  const std::lock_guard lock(mutex_);
  Unit &unit = Find(number);
  if (!unit.address) throw DeskError(UnitText(number) + " is not plugged in; `replug` plugs it in");
  Disconnect(number, unit);
}

void Desk::Replug(int number) {
  const std::lock_guard lock(mutex_);
  Unit &unit = Find(number);
  if (unit.address) throw DeskError(UnitText(number) + " is already plugged in");
  Connect(number, unit);
}

void Desk::Lost(int number, const BusAddress &address) {
  const std::lock_guard lock(mutex_);
  Unit &unit = Find(number);
  if (unit.address == address) Disconnect(number, unit);
}

std::map<int, Unit> Desk::Units() const {
  const std::lock_guard lock(mutex_);
  return units_;
}

Unit Desk::UnitOf(int number) const {
  const std::lock_guard lock(mutex_);
  return Find(number);
}

void Desk::Change(int number, const std::function<void(MixerState &)> &edit) {
  const std::lock_guard lock(mutex_);
  Unit &unit = Find(number);
  if (!unit.mixer) throw DeskError(UnitText(number) + " is no mixer and has no settings");
  edit(unit.mixer->State());
}

void Desk::SetFault(int number, std::optional<RequestId> request, RequestFault fault) {
  const std::lock_guard lock(mutex_);
  Find(number).faults.Set(request, fault);
}

void Desk::SetFault(int number, OpenFault fault) {
  const std::lock_guard lock(mutex_);
  Unit &unit = Find(number);
  if (unit.address) frontEnd_.SetOpenFault(number, fault);
  unit.faults.Set(fault);
}

void Desk::ClearFaults(int number) {
  const std::lock_guard lock(mutex_);
  Unit &unit = Find(number);
  if (unit.address) frontEnd_.SetOpenFault(number, OpenFault::kNone);
  unit.faults.Clear();
}

TransferResult Desk::Transfer(int number, const ControlRequest &request) {
  const std::lock_guard lock(mutex_);
  // A host may already have seen a unit that the front end then failed to plug in.
  const auto found = units_.find(number);
  if (found == units_.end() || !found->second.address) return {Outcome::kGone, {}};
  Unit &unit = found->second;
  TransferResult result = Answer(unit, request);
  log_.Add(number, request, result);
  if (result.outcome == Outcome::kUnplugged) Disconnect(number, unit);
  return result;
}

std::vector<std::string> Desk::Log() const {
  const std::lock_guard lock(mutex_);
  return log_.Lines();
}

void Desk::ClearLog() {
  const std::lock_guard lock(mutex_);
  log_.Clear();
}

Unit &Desk::Find(int number) { return const_cast<Unit &>(std::as_const(*this).Find(number)); }

const Unit &Desk::Find(int number) const {
  const auto found = units_.find(number);
  if (found == units_.end()) {
    throw DeskError("there is no " + UnitText(number) + "; `units` lists them");
  }
  return found->second;
}

void Desk::Connect(int number, Unit &unit) {
  unit.address = frontEnd_.Plug(number, unit.identity, unit.faults.Open());
}

void Desk::Disconnect(int number, Unit &unit) {
  frontEnd_.Unplug(number);
  unit.address.reset();
}

TransferResult Desk::Answer(Unit &unit, const ControlRequest &request) {
  const std::optional<RequestFault> fault = unit.faults.FaultOf(RequestFor(request));
  if (fault) {
    switch (fault->kind) {
      case RequestFaultKind::kStall:
        return {Outcome::kStalled, {}};
      case RequestFaultKind::kNoReply:
        return {Outcome::kNoReply, {}};
      case RequestFaultKind::kVanish:
        return {Outcome::kUnplugged, {}};
      case RequestFaultKind::kShort:
        break;
    }
  }
  TransferResult result = unit.mixer ? unit.mixer->Answer(request) : TransferResult{};
  if (fault && result.data.size() > fault->bytes) result.data.resize(fault->bytes);
  return result;
}

}  // namespace trxsim
