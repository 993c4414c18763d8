#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "../simulated/SimulatedUnits.h"
#include "NotificationDaemon.h"
#include "RemoteDevices.h"

namespace trxtest {

/// The rig over GNUstep and the double of IOKit: the mixers of the trx-mixer-registry that started
/// the process, a private user, and a daemon for that user's notifications.
class AppleRig : public SimulatedUnits {
 public:
  AppleRig();
  ~AppleRig() override;

  bool PlacesHoldInACall() override { return false; }
  UnitPlace PlaceOf(int unit) override;

  std::string LibraryFolder() override;
  std::string SettingsFile(const std::string &modelDisplayName) override;
  std::string SystemRoot() override;

  bool KeepsOrderBetweenNames() override { return false; }
  std::vector<Announcement> TakeAnnouncements(std::size_t count) override;
  void Announce(const Announcement &announcement) override;
  int AnnounceMisshapen(const Announcement &announcement) override;

  /// @name The platform's service always exists for a user, so these throw. @{
  void StopNotificationService() override;
  void StartNotificationService() override;
  void LoseNotificationService(LostService how) override;
  /// @}

  /// While it is frozen, posts of this process wait, but at most five seconds.
  void FreezeNotificationService() override;
  void ThawNotificationService() override;

  void RunEventLoop(std::chrono::milliseconds limit) override;

  std::unique_ptr<HostProcess> StartHost() override;

 private:
  RemoteDevices devices_;
  NotificationDaemon daemon_;
  HostProcess observer_;
};

}  // namespace trxtest
