// Only announcing, and only reading an announcement with many entries. No exported function does
// just that, so this program is linked with the library's objects.
#include <cstdint>
#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Announcement.h"
#include "Floor.h"
#include "Operation.h"
#include "SessionBus.h"
#include "Setting.h"

namespace trxbench {
namespace {

void Announce() { orv::Announce(orv::boostLevel.change, ORV_PRODUCT_TRX_SELVA, 1); }

void AnnounceWithSdBus() {
  static sd_bus *const bus = OpenBus();
  Require(
      sd_bus_emit_signal(bus, "/com/orvikaudio/Setup", "com.orvikaudio.Setup", "Changed", "sa{si}",
                         "TRX-SELVA BoostLevel Change", 2, "ProductID", 11, "Index", 1) >= 0,
      "announce with sd-bus");
}

// A received announcement with this many entries that the library ignores, and the usual ones.
sd_bus_message *NewAnnouncementWith(int ignored) {
  sd_bus_message *message = nullptr;
  int result = sd_bus_message_new_signal(OpenBus(), &message, orv::kBusPath, orv::kBusInterface,
                                         orv::kBusMember);
  if (result >= 0) result = sd_bus_message_append(message, "s", "TRX-SELVA BoostLevel Change");
  if (result >= 0) result = sd_bus_message_open_container(message, 'a', "{si}");
  for (int i = 0; i < ignored && result >= 0; ++i) {
    result = sd_bus_message_append(message, "{si}", ("entry " + std::to_string(i)).c_str(), i);
  }
  if (result >= 0) result = sd_bus_message_append(message, "{si}", "ProductID", 11);
  if (result >= 0) result = sd_bus_message_append(message, "{si}", "Index", 1);
  if (result >= 0) result = sd_bus_message_close_container(message);
  if (result >= 0) result = sd_bus_message_seal(message, 1, 0);
  Require(result >= 0, "make an announcement");
  return message;
}

template <int ignored>
void ReadAnnouncement() {
  static sd_bus_message *const message = NewAnnouncementWith(ignored);
  sd_bus_message_rewind(message, 1);
  Require(orv::ReadNotification(message).has_value(), "read an announcement");
}

void ReadWithSdBus() {
  static sd_bus_message *const message = NewAnnouncementWith(0);
  sd_bus_message_rewind(message, 1);
  const char *text = nullptr;
  std::int32_t value = 0;
  int entries = 0;
  int result = sd_bus_message_read(message, "s", &text);
  if (result >= 0) result = sd_bus_message_enter_container(message, 'a', "{si}");
  while (result >= 0 && sd_bus_message_read(message, "{si}", &text, &value) > 0) ++entries;
  if (result >= 0) result = sd_bus_message_exit_container(message);
  Require(result >= 0 && entries == 2, "read an announcement with sd-bus");
}

}  // namespace

const std::vector<Operation> &Operations() {
  static const std::vector<Operation> operations = {
      {"announce", Announce, Leaves::kAnnouncement},
      {"announce-floor", BarePost, Leaves::kAnnouncement},
      {"announce-sd-bus", AnnounceWithSdBus, Leaves::kAnnouncement},
      {"announce-read", ReadAnnouncement<0>},
      {"announce-read-sd-bus", ReadWithSdBus},
      {"announce-read-400", ReadAnnouncement<400>},
      {"announce-read-800", ReadAnnouncement<800>},
      {"announce-read-1600", ReadAnnouncement<1600>},
  };
  return operations;
}

}  // namespace trxbench
