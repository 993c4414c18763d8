#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "../simulated/SimulatedUnits.h"
#include "BusObserver.h"
#include "PrivateBus.h"

namespace trxtest {

/// What the rigs on Linux share: the mixers of the trx-mixer-sim that started the process (see
/// CaseRunner.h), and a private session bus. A rig adds what differs between the front ends of the
/// simulator.
class SimulatorRig : public SimulatedUnits {
 public:
  /// `folder` is the private folder of the case.
  explicit SimulatorRig(const std::string &folder);

  UnitPlace PlaceOf(int unit) override;

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

 private:
  std::string folder_;
  PrivateBus bus_;
  std::optional<BusObserver> observer_;
};

}  // namespace trxtest
