// Where the platform keeps a user's files. Any thread.
#pragma once

#include <optional>
#include <string>

namespace orv {

/// The user's Library folder, an absolute path without a slash at its end, looked up afresh;
/// nothing when the user has none.
std::optional<std::string> LibraryFolder();

}  // namespace orv
