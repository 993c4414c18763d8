#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "ControlTransfer.h"
#include "Fault.h"
#include "FrontEnd.h"
#include "Mixer.h"
#include "UnitKind.h"
#include "WireLog.h"

namespace trxsim {

/// The desk cannot do something; `what()` is a message for the user.
class DeskError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One unit of the desk.
struct Unit {
  UsbIdentity identity;
  std::optional<Mixer> mixer;         ///< Empty for another device, which stalls every request.
  Faults faults;                      ///< Kept over unplug and replug.
  std::optional<BusAddress> address;  ///< Empty while unplugged.
};

/// All units, plugged in or not, and the log of their requests. Units are numbered from 1 and keep
/// their number over unplug and replug. Safe for any number of threads.
class Desk {
 public:
  /// Shows its units through `frontEnd`, which must outlive it.
  Desk(FrontEnd &frontEnd, WireLog::Sink logSink = {});

  /// Plugs in a new unit and returns its number.
  int Plug(const UnitKind &kind = kMixerModels.front());

  /// Unplugs a unit.
  void Unplug(int number);

  /// Plugs a unit in again; it gets a new device number.
  void Replug(int number);

  /// Notes that unit `number` was unplugged by the system. Does nothing unless it is at `address`.
  void Lost(int number, const BusAddress &address);

  /// A copy of all units, by number.
  std::map<int, Unit> Units() const;

  /// A copy of one unit.
  Unit UnitOf(int number) const;

  /// Changes what a mixer reports.
  void Change(int number, const std::function<void(MixerState &)> &edit);

  /// Sets a fault for one request of a unit, or for every request.
  void SetFault(int number, std::optional<RequestId> request, RequestFault fault);

  /// Sets the fault of opening a unit.
  void SetFault(int number, OpenFault fault);

  /// Removes all faults of a unit.
  void ClearFaults(int number);

  /// Handles one request of a host: applies a fault, else lets the unit answer, and logs it.
  TransferResult Transfer(int number, const ControlRequest &request);

  /// A copy of the wire log.
  std::vector<std::string> Log() const;

  /// Empties the wire log.
  void ClearLog();

 private:
  Unit &Find(int number);
  const Unit &Find(int number) const;
  void Connect(int number, Unit &unit);
  void Disconnect(int number, Unit &unit);
  static TransferResult Answer(Unit &unit, const ControlRequest &request);

  FrontEnd &frontEnd_;
  mutable std::mutex mutex_;
  std::map<int, Unit> units_;
  WireLog log_;
};

}  // namespace trxsim
