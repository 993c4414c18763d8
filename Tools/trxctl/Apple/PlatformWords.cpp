#include "PlatformWords.h"

namespace trxctl {

const PlatformWords kPlatformWords{
    .withoutHome = "log in as a user with a home folder",
    .withoutVersionFiles =
        "install the framework again; only on macOS 10.11 to 10.15 the library finds its files "
        "where they can be installed, in /Library",
    .withoutServiceManager =
        "the launch agent com.orvikaudio.trx-reapply is not installed, and it is what starts the "
        "sending",
    .noDriver = "",
};

}  // namespace trxctl
