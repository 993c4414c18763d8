#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <systemd/sd-bus.h>

#include "../Announcement.h"

namespace trxtest {

/// Sees every signal on a bus, and posts signals of any form. Does not use the library. Functions
/// throw when the bus fails. One thread at a time.
class BusObserver {
 public:
  /// Connects and observes from now on.
  explicit BusObserver(const std::string &address);

  /// As `Rig::TakeAnnouncements`. The result has every announcement that was sent by a function
  /// that has returned.
  std::vector<Announcement> Take(std::size_t count);

  /// As `Rig::Announce`.
  void Post(const Announcement &announcement);

  /// As `Rig::AnnounceMisshapen`.
  int PostMisshapen(const Announcement &announcement);

 private:
  struct Close {
    void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
  };

  static int Arrived(sd_bus_message *message, void *self, sd_bus_error *error);
  void PassThroughBus();
  void ProcessAll();
  void Send(sd_bus_message *message);

  std::unique_ptr<sd_bus, Close> bus_;
  std::vector<Announcement> arrived_;
};

}  // namespace trxtest
