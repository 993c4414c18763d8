#pragma once

#include <string>

#include <DeviceSource.h>

namespace trxtest {

/// The devices of a registry that another program keeps (see RegistryFrontEnd.h). Safe for any
/// number of threads; throws when the program is gone.
class RemoteDevices : public DeviceSource {
 public:
  /// Uses the socket at `path`.
  explicit RemoteDevices(std::string path) : path_(std::move(path)) {}

  std::vector<UsbDevice> Devices() override;
  TransferAnswer Transfer(int device, const IOUSBDevRequest &request) override;

 private:
  std::string path_;
};

}  // namespace trxtest
