#include "PlatformWords.h"

namespace trxctl {

const PlatformWords kPlatformWords{
    .not_stored = "the folder Preferences in ~/Library must be writable",
    .without_home = "log in as a user with a home folder",
    .without_version_files =
        "install the framework again; only on macOS 10.11 to 10.15 the library finds its files "
        "where they can be installed, in /Library",
    .no_driver = "",
};

}  // namespace trxctl
