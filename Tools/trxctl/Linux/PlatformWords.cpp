#include "PlatformWords.h"

namespace trxctl {

const PlatformWords kPlatformWords{
    .withoutHome = "set HOME or XDG_CONFIG_HOME to a folder of this user",
    .withoutVersionFiles =
        "install the library again, or let TRX_SYSTEM_ROOT name the folder where they are",
    .withoutServiceManager =
        "there is no systemd user manager in this session, and it is what starts the sending",
    .noDriver = " (Linux needs none)",
};

}  // namespace trxctl
