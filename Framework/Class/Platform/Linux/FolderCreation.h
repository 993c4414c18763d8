// Making a user's folders. Any thread.
#pragma once

#include <string>

namespace orv {

/// Makes a folder and those above it, as far as they are missing, for their owner alone. What root
/// makes in somebody else's folder belongs to that folder's owner; what cannot be given away is not
/// made.
void MakeFolder(const std::string &path);

}  // namespace orv
