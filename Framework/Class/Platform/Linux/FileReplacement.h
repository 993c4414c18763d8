// Changes a file as a whole. The file stays complete whatever happens to the writer, and changes
// made by others at the same time are kept. Any thread, any number of processes at once.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace orv {

/// Makes the new contents of a file from the old ones. `old` is nothing when there is no file or
/// this process may not read it. Returns nothing to leave the file as it is.
using ContentsChange =
    std::function<std::optional<std::string>(const std::optional<std::string> &old)>;

/// A file that this process may not read is kept beside the new one under its name with this
/// ending; if that exists, with this ending and "-2", "-3" and so on.
inline constexpr const char *kUnreadableEnding = ".unreadable";

/// Reads a file, calls `change` for the new contents, replaces the file in one step and makes the
/// new one durable. A reader sees the old file or the new one, complete. Missing folders are made.
///
/// If another program has changed or replaced the file since it was read, this starts again:
/// `change` is called with the contents that are there now. They may already include its own
/// change, so applying it twice must give the same result. There is no lock: nobody waits for a
/// writer that is stopped, and a step that a killed writer leaves half done has no effect.
///
/// Returns whether the file was replaced. It is not, and nothing is left beside it, when it is
/// larger than `most` bytes, when reading fails for a reason that may pass, when a folder is in its
/// place, and when writing fails.
///
/// The new file has the owner, group, permissions, access list and extended attributes of the old
/// one, as far as this process may set them. Without an old file, only its owner may use it. A link
/// at `path` stays and its target is replaced. A link that leads to no file is replaced itself. A
/// link that another user made to somebody else's file is not followed, and nothing is written.
bool ChangeFileContents(const std::string &path, std::size_t most, const ContentsChange &change);

}  // namespace orv
