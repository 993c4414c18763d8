#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <Control/ControlClient.h>

#include "../Rig.h"
#include "BusObserver.h"
#include "PrivateBus.h"

namespace trxtest {

/// What the rigs of Linux share: the mixers of a trx-mixer-sim under which the process runs (see
/// CaseRunner.h), and a session bus of its own. A rig adds what differs between the front ends of
/// the simulator.
class SimulatorRig : public Rig {
 public:
  /// `folder` is the private folder of the case.
  explicit SimulatorRig(const std::string &folder);

  int PlugMixer() override;
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

  std::string LibraryFolder() override;
  std::string SettingsFile(const std::string &modelDisplayName) override;
  std::string SystemRoot() override;

  std::vector<Announcement> TakeAnnouncements(std::size_t count) override;
  void Announce(const Announcement &announcement) override;
  int AnnounceMisshapen(const Announcement &announcement) override;

  void StopNotificationService() override;
  void StartNotificationService() override;
  void FreezeNotificationService() override;
  void ThawNotificationService() override;
  void LoseNotificationService(LostService how) override;

  void RunEventLoop(std::chrono::milliseconds limit) override;

  std::unique_ptr<HostProcess> StartHost() override;

 protected:
  /// Where a plugged unit is found, such as "001/002": bus and device number.
  std::string AddressOf(int unit);
  int DeviceNumberOf(int unit);

 private:
  template <typename... Words>
  std::vector<std::string> Tell(const Words &...words);

  std::string folder_;
  trxsim::ControlClient simulator_;
  PrivateBus bus_;
  std::optional<BusObserver> observer_;
};

}  // namespace trxtest
