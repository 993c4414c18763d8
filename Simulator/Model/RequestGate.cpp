#include "RequestGate.h"

#include "Desk.h"

namespace trxsim {

void RequestGate::Open(Desk &desk) {
  const std::lock_guard lock(mutex_);
  desk_ = &desk;
}

void RequestGate::Close() {
  const std::lock_guard lock(mutex_);
  desk_ = nullptr;
}

TransferResult RequestGate::Transfer(int number, const ControlRequest &request) {
  const std::lock_guard lock(mutex_);
  return desk_ != nullptr ? desk_->Transfer(number, request) : TransferResult{Outcome::kGone, {}};
}

void RequestGate::Lost(int number, const BusAddress &address) {
  const std::lock_guard lock(mutex_);
  if (desk_ != nullptr) desk_->Lost(number, address);
}

}  // namespace trxsim
