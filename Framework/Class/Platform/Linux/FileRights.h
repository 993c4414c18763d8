// The access rights of a file that replaces another one. Any thread.
#pragma once

#include <sys/stat.h>

namespace orv {

/// A file and its status.
struct FileWithStatus {
  int descriptor;
  const struct stat &status;
};

/// Gives a new file, which only its owner may use, the owner, group, permissions, access list and
/// extended attributes of an old one, as far as this process may. Nobody gets more rights than with
/// the old file: rights of its group or access list are dropped where they would apply to other
/// users. Returns false when the new file had all of them and was left as it is.
bool TakeRights(const FileWithStatus &newFile, const FileWithStatus &oldFile);

/// Gives a new private file or folder to the owner of the folder that it is in: users must be able
/// to use what root makes in their folders. Does nothing when the process is not root's. Returns
/// false when the owner cannot be set.
bool GiveToOwnerOfFolder(int made, int folder);

}  // namespace orv
