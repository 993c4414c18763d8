#pragma once

#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "../Model/FrontEnd.h"
#include "../Model/RequestGate.h"
#include "DeviceConnection.h"
#include "DeviceNode.h"
#include "VhciController.h"

namespace trxsim {

/// Plugs units into the running kernel: every program on the machine sees them as USB devices. Each
/// unit has a thread that handles its requests.
class UsbipFrontEnd : public FrontEnd {
 public:
  /// Throws `DeskError` when this user or this kernel cannot attach devices.
  UsbipFrontEnd() = default;
  ~UsbipFrontEnd() override;
  UsbipFrontEnd(const UsbipFrontEnd &) = delete;
  UsbipFrontEnd &operator=(const UsbipFrontEnd &) = delete;

  /// Passes the requests of hosts on.
  RequestGate &Requests() { return requests_; }

  BusAddress Plug(int number, const UsbIdentity &identity, OpenFault fault) override;
  void Unplug(int number) override;
  void SetOpenFault(int number, OpenFault fault) override;

 private:
  struct Plugged {
    int plugging = 0;  // counts all pluggings
    VhciPort port;
    std::unique_ptr<DeviceConnection> connection;
    std::optional<BusAddress> address;  // empty until the kernel shows the unit to hosts
    std::unique_ptr<DeviceNode> node;   // the same
    bool isBroken = false;
  };

  void Connect(int number, const UsbIdentity &identity);
  BusAddress WaitForKernel(const Plugged &unit) const;
  void Show(int number, const BusAddress &address, OpenFault fault);
  Plugged Take(int number);
  void Pull(Plugged &unit);
  void WaitUntilGone(Plugged &unit);
  void OnBroken(int number, int plugging, const std::string &reason);
  void ForgetEnded();

  RequestGate requests_;
  VhciController controller_;
  int pluggings_ = 0;
  std::mutex mutex_;  // guards the next two
  std::map<int, Plugged> plugged_;
  std::list<std::unique_ptr<DeviceConnection>> pulled_;  // until their threads have ended
};

}  // namespace trxsim
