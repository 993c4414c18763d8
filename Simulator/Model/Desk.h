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
#include "WireLog.h"

namespace trxsim {

/// Something that the desk refuses, in words for the user.
class DeskError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One unit as the desk knows it.
struct Unit {
  UsbIdentity identity;
  std::optional<Mixer> mixer;         ///< Nothing for a stranger, which stalls every request.
  Faults faults;                      ///< Kept over unplug and replug.
  std::optional<BusAddress> address;  ///< Nothing while unplugged.
};

/// All mixers and strangers, plugged in or not, and the log of what they were asked. Units have
/// numbers from 1 that stay theirs over unplug and replug. Safe for any number of threads.
class Desk {
 public:
  /// Shows its units through `frontEnd`, which must outlive it.
  Desk(FrontEnd &frontEnd, WireLog::Sink logSink = {});

  /// Plugs a new mixer in and returns its number.
  int plugMixer();

  /// Plugs in a new unit that is not one of ours and returns its number.
  int plugStranger(std::uint16_t vendor, std::uint16_t product);

  /// Takes a plugged unit off the bus.
  void unplug(int number);

  /// Plugs a unit in again; it gets a new device number.
  void replug(int number);

  /// Notes that unit `number` went away by itself; nothing happens when it is not at `address` any
  /// more.
  void lost(int number, const BusAddress &address);

  /// A copy of all units, by number.
  std::map<int, Unit> units() const;

  /// A copy of one unit.
  Unit unit(int number) const;

  /// Changes what a mixer reports.
  void change(int number, const std::function<void(MixerState &)> &edit);

  /// Sets a fault for one request of a unit, or for every request.
  void setFault(int number, std::optional<RequestId> request, RequestFault fault);

  /// Sets the fault of opening a unit.
  void setFault(int number, OpenFault fault);

  /// Takes all faults off a unit.
  void clearFaults(int number);

  /// Carries out one request of a host: the fault, else the unit's own answer, and the log line.
  TransferResult transfer(int number, const ControlRequest &request);

  /// A copy of the wire log.
  std::vector<std::string> log() const;

  /// Empties the wire log.
  void clearLog();

 private:
  Unit &find(int number);
  const Unit &find(int number) const;
  int add(Unit unit);
  void connect(int number, Unit &unit);
  void disconnect(int number, Unit &unit);
  static TransferResult answer(Unit &unit, const ControlRequest &request);

  FrontEnd &frontEnd_;
  mutable std::mutex mutex_;
  std::map<int, Unit> units_;
  WireLog log_;
};

}  // namespace trxsim
