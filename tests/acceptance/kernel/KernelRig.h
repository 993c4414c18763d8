#pragma once

#include <set>
#include <vector>

#include "../linux/SimulatorRig.h"

namespace trxtest {

/// The rig over the USB stack of the running kernel. It needs a (virtual) machine for itself and
/// root's rights.
class KernelRig : public SimulatorRig {
 public:
  explicit KernelRig(const std::string &folder);

  int PlugMixer() override;
  int PlugMixerInFront() override;
  int PlugStranger(Stranger kind) override;
  void Unplug(int unit) override;
  void Replug(int unit) override;
  void ClearFaults(int unit) override;

 private:
  void NoteArrival(int unit);
  void LetEverybodyIn(int unit);
  std::vector<int> PluggedInTheOrderOfTheBus();

  std::set<int> plugged_;
};

}  // namespace trxtest
