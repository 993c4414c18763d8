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
  Stall,    ///< The request is refused.
  Short,    ///< A read brings only the first bytes of its reply.
  NoReply,  ///< The request takes the host's whole time-out and fails.
  Vanish,   ///< The unit is unplugged in the middle of the request.
};

/// One request fault with its argument.
struct RequestFault {
  RequestFaultKind kind = RequestFaultKind::Stall;
  std::uint16_t bytes = 0;  ///< `Short` only: the bytes that still come.
};

/// What goes wrong when a host opens the unit.
enum class OpenFault {
  None,
  Refuse,  ///< Nobody can open it.
  Deny,    ///< Its permission bits are all off, as without a udev rule; root may still open it.
  Hold,    ///< The kernel answers EBUSY, except to a process with CAP_SYS_ADMIN.
};

/// The faults of one unit.
class Faults {
 public:
  /// Sets a fault for one request, or for every request. The fault of one request goes before that
  /// of every request.
  void set(std::optional<RequestId> request, RequestFault fault);

  /// Sets the fault of opening.
  void set(OpenFault fault) { open_ = fault; }

  /// Everything works again.
  void clear();

  /// The fault that a request meets, or nothing. `request` is empty for one outside the table.
  std::optional<RequestFault> faultOf(std::optional<RequestId> request) const;

  /// The fault of opening.
  OpenFault open() const { return open_; }

  /// All faults in words of the control commands, such as "refuse, short 2 selectors", or "none".
  std::string text() const;

 private:
  OpenFault open_ = OpenFault::None;
  std::optional<RequestFault> every_;
  std::map<RequestId, RequestFault> single_;
};

/// The kind of request fault with this name, or nothing.
std::optional<RequestFaultKind> requestFaultNamed(std::string_view word);

/// The kind of open fault with this name, or nothing.
std::optional<OpenFault> openFaultNamed(std::string_view word);

}  // namespace trxsim
