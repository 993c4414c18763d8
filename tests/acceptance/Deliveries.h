// What the callbacks of this process are told.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "Acceptance.h"

namespace trxtest {

/// One run of a callback.
struct Call {
  std::string tag;            ///< Which callback with which context.
  std::int32_t channel = -1;  ///< -1: the kind has no channel.
  std::int32_t index = -1;

  bool operator==(const Call &) const = default;
};

/// The way a call stands in the message of a failed expectation.
inline void PrintTo(const Call &call, std::ostream *out) {
  *out << call.tag << '(';
  if (call.channel != -1) *out << call.channel << ", ";
  *out << call.index << ')';
}

/// A case that registers callbacks in its own process. The model TRX-MORROW is kept for telling
/// when everything has arrived.
class Deliveries : public Acceptance {
 protected:
  /// @name Callbacks for registering, with the address of a text as their context. Each notes its
  /// letter and that text. @{
  static void IndexA(std::int32_t index, void *context);
  static void IndexB(std::int32_t index, void *context);
  static void ChannelIndexA(std::int32_t channel, std::int32_t index, void *context);
  static void ChannelIndexB(std::int32_t channel, std::int32_t index, void *context);
  /// @}

  /// All calls so far.
  static std::vector<Call> &Calls() { return calls_; }

  /// Runs the event loop until everything is delivered that this process and the rig had announced,
  /// and returns the calls since the last time. Announces for TRX-MORROW itself.
  std::vector<Call> DeliverAll();

 private:
  static std::vector<Call> calls_;
  bool hasMark_ = false;
};

}  // namespace trxtest
