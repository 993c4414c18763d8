// The callback calls in this process.
#pragma once

#include <compare>
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

  auto operator<=>(const Call &) const = default;
};

/// How a call is printed when an expectation fails.
inline void PrintTo(const Call &call, std::ostream *out) {
  *out << call.tag << '(';
  if (call.channel != -1) *out << call.channel << ", ";
  *out << call.index << ')';
}

/// A case that registers callbacks in its own process. It uses the model TRX-MORROW to find out
/// when everything has arrived.
class Deliveries : public Acceptance {
 protected:
  /// @name Callbacks for registering, with the address of a text as their context. Each records its
  /// letter and that text. @{
  static void IndexA(std::int32_t index, void *context);
  static void IndexB(std::int32_t index, void *context);
  static void ChannelIndexA(std::int32_t channel, std::int32_t index, void *context);
  static void ChannelIndexB(std::int32_t channel, std::int32_t index, void *context);
  /// @}

  /// All calls so far.
  static std::vector<Call> &Calls();

  /// Runs the event loop until everything that this process and the rig have announced is
  /// delivered, and until callbacks have run `count` times. Returns the calls since the last time.
  /// Makes announcements for TRX-MORROW.
  std::vector<Call> DeliverAll(std::size_t count = 0);

  /// Delivers everything. Whether it makes exactly these calls: in this order where the platform
  /// keeps the order between two names.
  testing::AssertionResult Delivered(const std::vector<Call> &expected);

 private:
  bool hasMark_ = false;
};

}  // namespace trxtest
