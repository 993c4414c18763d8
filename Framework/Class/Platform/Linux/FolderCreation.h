// Makes a user's folders. Any thread.
#pragma once

#include <string>

namespace orv {

/// Makes a folder and the missing ones above it, for their owner only. What root makes in another
/// user's folder belongs to that user; if that cannot be done, it is not made.
void MakeFolder(const std::string &path);

}  // namespace orv
