#pragma once

#include <atomic>
#include <condition_variable>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <Control/UnixSocket.h>
#include <Model/FrontEnd.h>
#include <Model/RequestGate.h>

#include "RegistryProtocol.h"

namespace trxtest {

/// Shows the units of a desk to processes with the double of IOKit, in the order of their numbers
/// on the bus. Serves any number of clients, each on its own thread.
class RegistryFrontEnd : public trxsim::FrontEnd {
 public:
  /// Serves at `path`. Throws when it cannot.
  explicit RegistryFrontEnd(const std::string &path);
  ~RegistryFrontEnd() override;
  RegistryFrontEnd(const RegistryFrontEnd &) = delete;
  RegistryFrontEnd &operator=(const RegistryFrontEnd &) = delete;

  trxsim::BusAddress Plug(int number, const trxsim::UsbIdentity &identity,
                          trxsim::OpenFault fault) override;
  void Unplug(int number) override;
  void SetOpenFault(int number, trxsim::OpenFault fault) override;

  /// Passes the hosts' requests to the desk.
  trxsim::RequestGate &Requests() { return requests_; }

 private:
  struct Plugged {
    int number;
    RegistryDevice device;
  };
  using Bus = std::map<int, Plugged>;  // by the number on the bus

  struct Client {
    trxsim::Descriptor socket;
    std::atomic<bool> hasLeft = false;
    std::thread thread;
  };

  void Accept();
  void Serve(Client &client);
  std::vector<RegistryDevice> Devices();
  RegistryAnswer Transfer(const RegistryRequest &request);
  trxsim::Outcome WaitInVain(int device);
  int NextDeviceNumber() const;
  Bus::iterator Find(int number);

  trxsim::Descriptor listener_;
  trxsim::RequestGate requests_;
  std::mutex mutex_;  // guards what follows
  std::condition_variable changed_;
  Bus bus_;
  int lastDeviceNumber_ = 1;
  bool isEnding_ = false;
  std::list<Client> clients_;
  std::thread accepting_;
};

}  // namespace trxtest
