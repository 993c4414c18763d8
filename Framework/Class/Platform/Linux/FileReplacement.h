// Replacing a file in one step, whatever happens to the writer. Any thread, any number of processes
// at once.
#pragma once

#include <string>
#include <string_view>

namespace orv {

/// Puts a file with this content in the place of the one at `path`, or where there was none, and
/// makes it durable. A reader sees the old file or the new one, whole. When it fails the old file
/// stays and nothing else; returns whether it was replaced. The new file has owner, group and
/// permissions of the old one as far as this process may give them; a group that cannot be kept
/// leaves no permissions to another. Where there was none it is its owner's alone. A link at `path`
/// stays unless it leads nowhere, and the file behind it is replaced.
bool ReplaceFile(const std::string &path, std::string_view contents);

}  // namespace orv
