#include "RequestGate.h"

#include "Desk.h"

namespace trxsim {

void RequestGate::open(Desk &desk) {
  const std::lock_guard lock(mutex_);
  desk_ = &desk;
}

void RequestGate::close() {
  const std::lock_guard lock(mutex_);
  desk_ = nullptr;
}

TransferResult RequestGate::transfer(int number, const ControlRequest &request) {
  const std::lock_guard lock(mutex_);
  return desk_ != nullptr ? desk_->transfer(number, request) : TransferResult{Outcome::Gone, {}};
}

void RequestGate::lost(int number, const BusAddress &address) {
  const std::lock_guard lock(mutex_);
  if (desk_ != nullptr) desk_->lost(number, address);
}

}  // namespace trxsim
