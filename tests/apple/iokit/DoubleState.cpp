#include "DoubleState.h"

#include <array>
#include <bit>
#include <cstdio>
#include <utility>

namespace trxtest {

DoubleState &State() {
  static DoubleState state;
  return state;
}

std::string DoubleState::Name(const std::string &kind) {
  return kind + " " + std::to_string(++named[kind]);
}

Value *DoubleState::Find(const void *value, const std::string &user) {
  const auto found = values.find(value);
  if (found != values.end()) return found->second.get();
  Misuse(user + " of what is no value or alive no more");
  return nullptr;
}

void DoubleState::Release(Value *value) {
  if (--value->references > 0) return;
  for (const auto &[key, demanded] : value->demands) Release(demanded);
  values.erase(value);
}

std::string Result(IOReturn status) {
  if (status == kIOReturnSuccess) return {};
  std::array<char, sizeof " = E00002C5"> text;
  std::snprintf(text.data(), text.size(), " = %08X", static_cast<unsigned>(status));
  return text.data();
}

std::string Text(const CFUUIDBytes &bytes) {
  std::string text;
  std::array<char, 3> digits;
  for (const UInt8 byte : std::bit_cast<std::array<UInt8, sizeof bytes>>(bytes)) {
    if (const auto length = text.size();
        length == 8 || length == 13 || length == 18 || length == 23) {
      text += '-';
    }
    std::snprintf(digits.data(), digits.size(), "%02X", unsigned{byte});
    text += digits.data();
  }
  return text;
}

// --- What tests see ----------------------------------------------------------------------------

void IOKitDouble::Show(DeviceSource *source) {
  const std::lock_guard lock(State().mutex);
  State().source = source;
}

void IOKitDouble::SetFaults(const RegistryFaults &faults) {
  const std::lock_guard lock(State().mutex);
  State().faults = faults;
}

std::vector<std::string> IOKitDouble::TakeCalls() {
  const std::lock_guard lock(State().mutex);
  return std::exchange(State().calls, {});
}

std::vector<std::string> IOKitDouble::TakeMisuses() {
  const std::lock_guard lock(State().mutex);
  return std::exchange(State().misuses, {});
}

References IOKitDouble::Alive() {
  const std::lock_guard lock(State().mutex);
  References alive = {.ports = State().portReferences};
  for (const auto &[address, value] : State().values) {
    (value->isDictionary ? alive.dictionaries : alive.numbers) += value->references;
  }
  for (const auto &[name, object] : State().objects) {
    ++(std::holds_alternative<Iterator>(object.content) ? alive.iterators : alive.devices);
  }
  for (const auto &[address, plugIn] : State().plugIns) {
    alive.plugIns += static_cast<int>(plugIn->references);
  }
  for (const auto &[address, interface] : State().interfaces) {
    alive.interfaces += static_cast<int>(interface->references);
  }
  return alive;
}

void IOKitDouble::Reset() {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  state.source = nullptr;
  state.faults = {};
  state.calls.clear();
  state.misuses.clear();
  state.portReferences = 0;
  state.values.clear();
  state.objects.clear();
  state.plugIns.clear();
  state.interfaces.clear();
  state.named.clear();
}

}  // namespace trxtest
