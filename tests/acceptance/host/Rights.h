// What a host process can give up for good. Each answers "done" or "failed".
#pragma once

#include <string>

namespace trxtest {

/// The privilege that opens a device which another process holds. An ordinary user does not have it
/// in the first place.
std::string GiveUpAdmin();

/// Goes on as the user nobody, if it was root.
std::string GiveUpRoot();

/// Goes on as on a full disk: no file can be written.
std::string GiveUpSpace();

}  // namespace trxtest
