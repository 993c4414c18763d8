// What a suite needs around the library on every platform: mixers to plug in, the requests that
// they receive, settings files, announcements, other processes. Suites use nothing below this
// interface; each platform has one implementation.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Announcement.h"
#include "HostProcess.h"

namespace trxtest {

/// USB devices that resemble units and are not.
enum class Stranger {
  kOtherProductOfTheMaker,
  kOtherMakerWithTheSameProduct,
  kUnrelated,
};

/// The faults of a unit.
enum class UnitFault {
  kRefusesToOpen,
  kHeldByAnotherProcess,  ///< For host processes that gave up `admin`.
  kNotPermitted,          ///< For host processes that gave up `root`.
  kStalls,                ///< Every request is refused.
  kStaysSilent,           ///< Every request ends with the host's time-out of five seconds.
  kVanishes,              ///< The unit is unplugged during the next request.
};

/// Where a unit is on this platform; numbers that the platform does not have are 0.
struct UnitPlace {
  std::uint32_t bus = 0;
  std::uint32_t address = 0;
  std::uint32_t location = 0;

  bool operator==(const UnitPlace &) const = default;
};

/// Why a process may not know where the notification service is.
enum class LostService { kNothingSaid, kNonsenseSaid };

/// Everything around the library. At the start of every case no unit is plugged in, there are no
/// settings files and no announcements, and the notification service is running. Functions fail the
/// case by throwing. One thread at a time.
class Rig {
 public:
  virtual ~Rig() = default;

  /// @name Units. Mixers and strangers are numbered from 1 in the order in which they were first
  /// plugged in, and keep their numbers. @{

  /// Plugs in a new mixer after all others and returns its number.
  virtual int PlugMixer() = 0;
  /// Plugs in a new mixer before all others in the order of the bus. The first place of the bus
  /// must be free: replug the unit that has it.
  virtual int PlugMixerInFront() = 0;
  virtual int PlugStranger(Stranger kind) = 0;
  virtual void Unplug(int unit) = 0;
  /// Plugs in an unplugged unit again, after all others.
  virtual void Replug(int unit) = 0;
  /// Where a plugged unit is.
  virtual UnitPlace PlaceOf(int unit) = 0;

  /// Whether the other units keep their positions until the end of a call in which a unit vanishes.
  virtual bool PlacesHoldInACall() { return true; }
  /// @}

  /// @name What a mixer reports. At the start 4 channels, all bytes 0, firmware 0x0100, certify
  /// level
  /// 1. @{

  virtual void SetChannels(int unit, unsigned count) = 0;
  virtual void SetSelector(int unit, unsigned channel, std::uint8_t position) = 0;
  /// The byte before the selectors in their reply.
  virtual void SetLeadingByte(int unit, std::uint8_t value) = 0;
  virtual void SetSerato(int unit, std::uint8_t first, std::uint8_t second) = 0;
  virtual void SetPort(int unit, std::uint8_t first, std::uint8_t second) = 0;
  virtual void SetFirmware(int unit, std::uint16_t version) = 0;
  virtual void SetCertifyLevel(int unit, std::uint32_t level) = 0;
  /// @}

  /// @name Faults. A unit keeps them when it is unplugged and replugged. @{

  virtual void SetFault(int unit, UnitFault fault) = 0;
  /// Replies to reads are cut to their first `bytes` bytes.
  virtual void SetShortReplies(int unit, unsigned bytes) = 0;
  virtual void ClearFaults(int unit) = 0;
  /// @}

  /// All requests that units received since the start or the last clearing, in order, such as
  /// "unit 1 OUT 40 03 wValue 0300 wIndex 8003 wLength 0 -> 0 bytes" or
  /// "unit 2 IN c0 00 wValue 0000 wIndex 8004 wLength 2 -> 2 bytes 01 00"; after the arrow also
  /// "stalled", "no reply", "unplugged".
  virtual std::vector<std::string> WireLog() = 0;
  virtual void ClearWireLog() = 0;

  /// @name Files @{

  /// The user's Library folder; absent at the start.
  virtual std::string LibraryFolder() = 0;
  /// The settings file of a model, given by its display name.
  virtual std::string SettingsFile(const std::string &modelDisplayName) = 0;
  /// The folder under which the library looks for installed files; present and empty at the start.
  virtual std::string SystemRoot() = 0;
  /// @}

  /// @name Announcements, as seen by an observer that does not use the library @{

  /// Waits at most a minute until `count` announcements have arrived since the last call. Then
  /// returns all that have arrived, whether fewer or more.
  virtual std::vector<Announcement> TakeAnnouncements(std::size_t count) = 0;
  /// Whether announcements with two names stay in order.
  virtual bool KeepsOrderBetweenNames() { return true; }
  /// Announces as another program would. Announcements with one name stay in order.
  virtual void Announce(const Announcement &announcement) = 0;
  /// Sends the same in every form that resembles an announcement and is not one. Returns how
  /// many.
  virtual int AnnounceMisshapen(const Announcement &announcement) = 0;
  /// @}

  /// @name The service that carries announcements @{

  virtual void StopNotificationService() = 0;
  /// Starts it again at the same address.
  virtual void StartNotificationService() = 0;
  /// It keeps its connections and does nothing until thawed.
  virtual void FreezeNotificationService() = 0;
  virtual void ThawNotificationService() = 0;
  /// Hides its address from this process and from those started later.
  virtual void LoseNotificationService(LostService how) = 0;
  /// @}

  /// Runs this thread's event loop: waits at most `limit` for notifications and delivers them.
  virtual void RunEventLoop(std::chrono::milliseconds limit) = 0;

  /// Starts another process with the library and the same mixers.
  virtual std::unique_ptr<HostProcess> StartHost() = 0;
};

/// The rig of this program.
std::unique_ptr<Rig> MakeRig();

}  // namespace trxtest
