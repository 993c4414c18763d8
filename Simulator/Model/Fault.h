#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "RequestTable.h"

namespace trxsim {

/// How requests fail.
enum class RequestFaultKind {
  kStall,    ///< The request is refused.
  kShort,    ///< A read returns only the first bytes of its reply.
  kNoReply,  ///< The request fails after the host's time-out.
  kVanish,   ///< The unit is unplugged during the request.
};

/// One request fault with its argument.
struct RequestFault {
  RequestFaultKind kind = RequestFaultKind::kStall;
  std::uint16_t bytes = 0;  ///< `kShort` only: how many bytes arrive.
};

/// How opening a unit fails.
enum class OpenFault {
  kNone,
  kRefuse,  ///< Nobody can open it.
  kDeny,    ///< Only root can open it, as without a udev rule.
  kHold,    ///< The kernel answers EBUSY, except to a process with CAP_SYS_ADMIN.
};

/// The faults of one unit.
class Faults {
 public:
  /// Sets a fault for one request, or for all. A fault of one request overrides one of all.
  void Set(std::optional<RequestId> request, RequestFault fault);

  /// Sets the fault of opening.
  void Set(OpenFault fault) { open_ = fault; }

  /// Removes all faults.
  void Clear();

  /// The fault that applies to a request, if any. `request` is empty for one outside the table.
  std::optional<RequestFault> FaultOf(std::optional<RequestId> request) const;

  /// The fault of opening.
  OpenFault Open() const { return open_; }

  /// All faults in words of the control commands, such as "refuse, short 2 selectors", or "none".
  std::string Text() const;

 private:
  OpenFault open_ = OpenFault::kNone;
  std::optional<RequestFault> every_;
  std::map<RequestId, RequestFault> single_;
};

/// The kind of request fault with this name, or nothing.
std::optional<RequestFaultKind> RequestFaultNamed(std::string_view word);

/// The kind of open fault with this name, or nothing.
std::optional<OpenFault> OpenFaultNamed(std::string_view word);

}  // namespace trxsim
