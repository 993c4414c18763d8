// Changing a file as a whole, whatever happens to the writer, with nothing lost that others write
// at the same time. Any thread, any number of processes at once.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace orv {

/// What is to become of a file's contents. `old` is nothing when there is no file, or none that can
/// be read by this process. The answer is nothing when the file shall stay as it is.
using ContentsChange =
    std::function<std::optional<std::string>(const std::optional<std::string> &old)>;

/// A file that this process may not read is kept beside the new one under its name and this
/// ending; where that is taken, under this ending and "-2", "-3" and so on.
inline constexpr const char *kUnreadableEnding = ".unreadable";

/// Reads a file, lets `change` say what it is to be, puts a new file in its place in one step and
/// makes it durable. A reader sees the old file or the new one, whole. Missing folders are made.
///
/// When another program has changed or replaced the file since it was read, this begins anew:
/// `change` is called again with what is there now, its own change included if somebody has already
/// built on it: made twice, it must come to the same. There is no lock, so nobody waits for a
/// writer that stands still, and no step that a killed writer leaves half done counts.
///
/// Returns whether the file was replaced. It is not, and nothing is left beside it, when it is
/// larger than `most` bytes; when reading it fails in a way that may pass; when a folder is in its
/// place; when writing fails.
///
/// The new file has owner, group, permissions, access list and extended attributes of the old one
/// as far as this process may give them. Where there was no file it is its owner's alone. A link at
/// `path` stays and the file behind it is replaced; one that leads to no file is replaced itself;
/// one that somebody has laid to a file of somebody else is not followed, and nothing is written.
bool ChangeFileContents(const std::string &path, std::size_t most, const ContentsChange &change);

}  // namespace orv
