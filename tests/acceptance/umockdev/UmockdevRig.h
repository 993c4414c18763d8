#pragma once

#include "../linux/SimulatorRig.h"

namespace trxtest {

/// The rig over umockdev's simulated sysfs and usbfs.
class UmockdevRig : public SimulatorRig {
 public:
  using SimulatorRig::SimulatorRig;

  int PlugMixerInFront() override;
};

}  // namespace trxtest
