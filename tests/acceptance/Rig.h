// What a suite needs of the world around the library, whatever platform it runs on: a desk with
// mixers, the wire, the settings files, the announcements, other processes. Suites know nothing
// below this line; each platform has one implementation.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Announcement.h"
#include "HostProcess.h"

namespace trxtest {

/// USB devices that are no units, however close they come.
enum class Stranger {
  kOtherProductOfTheMaker,
  kOtherMakerWithTheSameProduct,
  kUnrelated,
};

/// What can be wrong with a unit.
enum class UnitFault {
  kRefusesToOpen,
  kHeldByAnotherProcess,  ///< Binds host processes that gave up `admin`.
  kNotPermitted,          ///< Binds host processes that gave up `root`.
  kStalls,                ///< Every request is refused.
  kStaysSilent,           ///< Every request runs into the host's time-out of five seconds.
  kVanishes,              ///< The unit is unplugged in the middle of the next request.
};

/// Where a unit is, as the platform calls it; 0 what it does not have.
struct UnitPlace {
  std::uint32_t bus = 0;
  std::uint32_t address = 0;
  std::uint32_t location = 0;

  bool operator==(const UnitPlace &) const = default;
};

/// How a process may fail to know where the notification service is.
enum class LostService { kNothingSaid, kNonsenseSaid };

/// The world around the library, empty at the start of every case: nothing plugged in, no settings
/// files, nothing announced, the notification service running. Functions fail the case by throwing.
/// One thread at a time.
class Rig {
 public:
  virtual ~Rig() = default;

  /// @name Units. They have numbers from 1, mixers and strangers alike, in the order of their first
  /// plugging in, and keep them. @{

  /// Plugs a new mixer in, behind all that are plugged in, and returns its number.
  virtual int PlugMixer() = 0;
  /// Plugs a new mixer in before all others in the order of the bus. The first place of the bus
  /// must be free: replug the unit that has it.
  virtual int PlugMixerInFront() = 0;
  virtual int PlugStranger(Stranger kind) = 0;
  virtual void Unplug(int unit) = 0;
  /// Plugs an unplugged unit in again, behind all others.
  virtual void Replug(int unit) = 0;
  /// Where a plugged unit is.
  virtual UnitPlace PlaceOf(int unit) = 0;

  /// Whether a unit that vanishes in a call leaves the others their places until the call ends.
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

  /// @name Faults. They stay over unplugging and replugging. @{

  virtual void SetFault(int unit, UnitFault fault) = 0;
  /// Replies to reads bring no more than their first `bytes` bytes.
  virtual void SetShortReplies(int unit, unsigned bytes) = 0;
  virtual void ClearFaults(int unit) = 0;
  /// @}

  /// All requests that reached units since the start or the last clearing, in their order, such as
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

  /// @name Announcements, as an observer sees them that has nothing of the library @{

  /// Waits until `count` announcements have arrived since the last call, but at most a minute;
  /// then hands out all that have arrived, whether fewer or more.
  virtual std::vector<Announcement> TakeAnnouncements(std::size_t count) = 0;
  /// Announces as another program would. What is announced here stays in order.
  virtual void Announce(const Announcement &announcement) = 0;
  /// Announces the same in every shape that resembles an announcement and is none. Returns how
  /// many.
  virtual int AnnounceMisshapen(const Announcement &announcement) = 0;
  /// @}

  /// @name The service that carries announcements @{

  virtual void StopNotificationService() = 0;
  /// Starts it at the place where it was.
  virtual void StartNotificationService() = 0;
  /// It stays there but does nothing until thawed.
  virtual void FreezeNotificationService() = 0;
  virtual void ThawNotificationService() = 0;
  /// Takes from this process, and from those started later, the knowledge where it is.
  virtual void LoseNotificationService(LostService how) = 0;
  /// @}

  /// Lets this thread's event loop deliver what has arrived, waiting at most `limit` for something.
  virtual void RunEventLoop(std::chrono::milliseconds limit) = 0;

  /// Starts another process with the library, on the same desk.
  virtual std::unique_ptr<HostProcess> StartHost() = 0;
};

/// The rig that this program was built with.
std::unique_ptr<Rig> MakeRig();

}  // namespace trxtest
