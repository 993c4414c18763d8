#pragma once

#include <string>
#include <vector>

#include <Control/ControlClient.h>

#include "../Rig.h"

namespace trxtest {

/// What all rigs with software mixers share: plugging units in and out, setting them and reading
/// the wire log, through the simulator's control socket.
class SimulatedUnits : public Rig {
 public:
  /// Uses the simulator that listens at `control`.
  explicit SimulatedUnits(const std::string &control) : simulator_(control) {}

  int PlugMixer() override;
  /// Uses up the device numbers of the bus, so that the new mixer gets the lowest.
  int PlugMixerInFront() override;
  int PlugStranger(Stranger kind) override;
  void Unplug(int unit) override;
  void Replug(int unit) override;

  void SetChannels(int unit, unsigned count) override;
  void SetSelector(int unit, unsigned channel, std::uint8_t position) override;
  void SetLeadingByte(int unit, std::uint8_t value) override;
  void SetSerato(int unit, std::uint8_t first, std::uint8_t second) override;
  void SetPort(int unit, std::uint8_t first, std::uint8_t second) override;
  void SetFirmware(int unit, std::uint16_t version) override;
  void SetCertifyLevel(int unit, std::uint32_t level) override;

  void SetFault(int unit, UnitFault fault) override;
  void SetShortReplies(int unit, unsigned bytes) override;
  void ClearFaults(int unit) override;

  std::vector<std::string> WireLog() override;
  void ClearWireLog() override;

 protected:
  /// Where a plugged unit is found, such as "001/002": bus and device number.
  std::string AddressOf(int unit);
  int BusNumberOf(int unit);
  int DeviceNumberOf(int unit);

 private:
  template <typename... Words>
  std::vector<std::string> Tell(const Words &...words);

  trxsim::ControlClient simulator_;
};

}  // namespace trxtest
