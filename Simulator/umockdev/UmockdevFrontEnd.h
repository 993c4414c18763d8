#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>

#include <umockdev.h>

#include "../Model/ControlTransfer.h"
#include "../Model/FrontEnd.h"
#include "../Model/RequestGate.h"
#include "UdevEvents.h"
#include "UsbTree.h"

namespace trxsim {

/// Shows units to processes that run with libumockdev-preload. They see a USB tree of their own
/// under /sys and /dev, in which USBDEVFS_CONTROL reaches the desk, on the thread of the testbed.
class UmockdevFrontEnd : public FrontEnd {
 public:
  /// Makes an empty bus in a new testbed.
  UmockdevFrontEnd();
  ~UmockdevFrontEnd() override;
  UmockdevFrontEnd(const UmockdevFrontEnd &) = delete;
  UmockdevFrontEnd &operator=(const UmockdevFrontEnd &) = delete;

  /// Passes the requests of hosts on.
  RequestGate &Requests() { return requests_; }

  /// The folder that holds the tree.
  std::string RootFolder() const;

  BusAddress Plug(int number, const UsbIdentity &identity, OpenFault fault) override;
  void Unplug(int number) override;
  void SetOpenFault(int number, OpenFault fault) override;

 private:
  struct ObjectRelease {
    void operator()(gpointer object) const { g_object_unref(object); }
  };
  struct Pending;

  static gboolean OnIoctl(UMockdevIoctlBase *, UMockdevIoctlClient *client, gpointer self);
  static gboolean OnTimeOut(gpointer pending);

  bool Handle(UMockdevIoctlClient &client);
  void Control(UMockdevIoctlClient &client, int number);
  void WaitInVain(UMockdevIoctlClient &client, int number, unsigned milliseconds);
  void EndPending(int number);
  void Attach(const std::string &node);
  int NextDeviceNumber();

  // Before the testbed, whose thread uses it.
  RequestGate requests_;
  std::mutex mutex_;                       // guards the next three
  std::map<int, UsbDevice> plugged_;       // by unit
  std::map<std::string, int> unitOfNode_;  // plugged units only
  std::set<Pending *> pending_;            // requests without a reply

  std::unique_ptr<UMockdevTestbed, ObjectRelease> testbed_;
  std::unique_ptr<UMockdevIoctlBase, ObjectRelease> handler_;
  UsbTree tree_;
  UdevEvents events_;
  std::set<std::string> attached_;  // nodes that the handler listens for
  int lastDeviceNumber_ = 1;        // that of the root hub
};

}  // namespace trxsim
