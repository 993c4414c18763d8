#include "PlatformWords.h"

namespace trxctl {

const PlatformWords kPlatformWords{
    .not_stored = "the folder orvikaudio in ~/.config (or in $XDG_CONFIG_HOME) must be writable",
    .without_home = "set HOME or XDG_CONFIG_HOME to a folder of this user",
    .without_version_files =
        "install the library again, or let TRX_SYSTEM_ROOT name the folder where they are",
    .no_driver = " (Linux needs none)",
};

}  // namespace trxctl
