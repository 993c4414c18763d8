#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "RequestTable.h"

namespace trxsim {

/// What goes wrong with requests.
enum class RequestFaultKind {
  kStall,    ///< The request is refused.
  kShort,    ///< A read brings only the first bytes of its reply.
  kNoReply,  ///< The request takes the host's whole time-out and fails.
  kVanish,   ///< The unit is unplugged in the middle of the request.
};

/// One request fault with its argument.
struct RequestFault {
  RequestFaultKind kind = RequestFaultKind::kStall;
  std::uint16_t bytes = 0;  ///< `Short` only: the bytes that still come.
};

/// What goes wrong when a host opens the unit.
enum class OpenFault {
  kNone,
  kRefuse,  ///< Nobody can open it.
  kDeny,    ///< Its permission bits are all off, as without a udev rule; root may still open it.
  kHold,    ///< The kernel answers EBUSY, except to a process with CAP_SYS_ADMIN.
};

/// The faults of one unit.
class Faults {
 public:
  /// Sets a fault for one request, or for every request. The fault of one request goes before that
  /// of every request.
  void Set(std::optional<RequestId> request, RequestFault fault);

  /// Sets the fault of opening.
  void Set(OpenFault fault) { open_ = fault; }

  /// Everything works again.
  void Clear();

  /// The fault that a request meets, or nothing. `request` is empty for one outside the table.
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
