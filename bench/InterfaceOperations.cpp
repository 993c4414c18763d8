// The exported functions, each with its floor and with what one would write instead.
#include <cstdlib>

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

void Set() { Require(ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, 1) == ORV_SUCCESS, "set"); }

void Get() {
  int32_t index = -1;
  Require(ORV_GetCurrentBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, &index) == ORV_SUCCESS && index == 1,
          "get");
}

// The settings as libplist reads them.
class BareList {
 public:
  BareList() {
    const auto contents = BareRead();
    plist_from_memory(contents.data(), static_cast<uint32_t>(contents.size()), &root_);
  }
  BareList(const BareList &) = delete;
  BareList &operator=(const BareList &) = delete;
  ~BareList() { plist_free(root_); }

  uint64_t Level() const {
    uint64_t index = 0;
    plist_get_uint_val(plist_dict_get_item(root_, "MaxLevel"), &index);
    return index;
  }

  void WriteLevel(uint64_t index) {
    plist_dict_set_item(root_, "MaxLevel", plist_new_uint(index));
    char *contents = nullptr;
    uint32_t size = 0;
    plist_to_xml(root_, &contents, &size);
    BareReplace({contents, size});
    std::free(contents);
  }

 private:
  plist_t root_ = nullptr;
};

void GetWithLibplist() { Require(BareList().Level() == 1, "get with libplist"); }

void SendAgainFloor() {
  GetWithLibplist();
  BareSend();
}

void SetFloor() {
  BareSend();
  BareList().WriteLevel(1);
  BarePost();
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
