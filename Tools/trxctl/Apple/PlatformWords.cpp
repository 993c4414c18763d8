#include "PlatformWords.h"

namespace trxctl {

const PlatformWords kPlatformWords{
    .withoutHome = "log in as a user with a home folder",
    .withoutVersionFiles =
        "install the framework again; only on macOS 10.11 to 10.15 the library finds its files "
        "where they can be installed, in /Library",
    .noDriver = "",
};

}  // namespace trxctl
