#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace client {

/// What was read from a file.
struct FileContents {
  /// 0, or the system's reason why it cannot be read.
  int reason = 0;
  std::string bytes = {};
};

/// Reads a file, or no more than the first bytes of it.
FileContents ReadWholeFile(const std::string &path, std::size_t mostBytes);

/// What WriteWholeFile does about a file that is there already.
enum class OldFile { kIsKept, kIsReplaced };

/// Writes a file in one step and durably: whatever happens to the writer, there is the old file or
/// the new one, whole. A hidden file may be left beside it by a writer that was killed. A link is
/// followed to the file that is replaced; what is no file is not replaced.
///
/// @return 0, or the system's reason why not; EEXIST for a file that is to be kept.
int WriteWholeFile(const std::string &path, std::string_view bytes, OldFile oldFile);

/// Removes a file durably. Returns 0, or the system's reason why not.
int RemoveFile(const std::string &path);

/// Makes a folder, and those above it, for this user alone. Returns 0, or the system's reason why
/// not.
int MakePrivateFolder(const std::string &path);

}  // namespace client
