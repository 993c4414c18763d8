// Rights that a host process can give up for good. Each function returns "done" or "failed".
#pragma once

#include <string>

namespace trxtest {

/// The privilege to open a device that another process holds. An ordinary user never has it.
std::string GiveUpAdmin();

/// Becomes the user nobody, if it was root.
std::string GiveUpRoot();

/// From now on, as on a full disk, no file can be written.
std::string GiveUpSpace();

}  // namespace trxtest
