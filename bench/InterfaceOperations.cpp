// The exported functions, each with its floor and with what one would write instead.
#include <plist/plist.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Floor.h"
#include "Operation.h"

namespace trxbench {
namespace {

void Walk() { Require(ORV_IsUSBConnection(ORV_PRODUCT_TRX_SELVA) == ORV_CONNECTED, "walk"); }

void SendAgain() {
  Require(ORV_SetCurrentBoostLevelIndex(ORV_PRODUCT_TRX_SELVA) == ORV_SUCCESS, "send again");
}

void SendAgainFloor() {
  BareRead();
  BareSend();
}

void Set() { Require(ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, 1) == ORV_SUCCESS, "set"); }

void SetFloor() {
  BareSend();
  BareRead();
  BareReplace();
  BarePost();
}

void Get() {
  int32_t index = -1;
  Require(ORV_GetCurrentBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, &index) == ORV_SUCCESS && index == 1,
          "get");
}

void GetWithLibplist() {
  const auto contents = BareRead();
  plist_t root = nullptr;
  plist_from_memory(contents.data(), static_cast<uint32_t>(contents.size()), &root);
  uint64_t index = 0;
  plist_get_uint_val(plist_dict_get_item(root, "MaxLevel"), &index);
  plist_free(root);
  Require(index == 1, "get with libplist");
}

}  // namespace

const std::vector<Operation> &Operations() {
  static const std::vector<Operation> operations = {
      {"walk", Walk},
      {"walk-floor", BareWalk},
      {"send-again", SendAgain},
      {"send-again-floor", SendAgainFloor},
      {"set", Set, Leaves::kAnnouncement},
      {"set-floor", SetFloor, Leaves::kAnnouncement},
      {"get", Get},
      {"get-floor", [] { BareRead(); }},
      {"get-libplist", GetWithLibplist},
  };
  return operations;
}

}  // namespace trxbench
