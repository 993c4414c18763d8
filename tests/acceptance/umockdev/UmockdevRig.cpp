#include "UmockdevRig.h"

#include "../linux/CaseRunner.h"

namespace trxtest {
namespace {

// Device numbers on a bus run from 2 (1 is the root hub) to this one, then from 2 again.
constexpr int kLastDeviceNumber = 127;

}  // namespace

std::unique_ptr<Rig> MakeRig() { return std::make_unique<UmockdevRig>(PrivateFolder()); }

int UmockdevRig::PlugMixerInFront() {
  const int pace = PlugStranger(Stranger::kUnrelated);
  while (DeviceNumberOf(pace) != kLastDeviceNumber) {
    Unplug(pace);
    Replug(pace);
  }
  return PlugMixer();
}

}  // namespace trxtest
