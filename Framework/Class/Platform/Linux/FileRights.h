// Who may do what with a file that takes another's place. Any thread.
#pragma once

#include <sys/stat.h>

namespace orv {

/// Gives a new file owner, group, permissions, access list and extended attributes of an old one,
/// as far as this process may. Nobody may do more with it than with the old one: what the old
/// file's group or those on its access list were allowed is dropped where it would go to others.
void TakeRights(int newFile, int oldFile, const struct stat &old);

/// Gives a new file or folder, which is its maker's alone, to the owner of the folder that it is
/// in: a user must be able to use what root makes in the user's folders. Does nothing for anybody
/// but root. Returns false when it cannot be given.
bool GiveToOwnerOfFolder(int made, int folder);

}  // namespace orv
