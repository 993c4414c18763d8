// Opens a user's folders, and makes them. Any thread.
#pragma once

#include <string>

#include <sys/stat.h>

#include "File.h"

namespace orv {

/// Whether a link may be followed: its target belongs to the same user, or this user or root made
/// it. Through any other link, another user could make this process change a file.
bool MayFollow(const struct stat &link, const struct stat &target);

/// Opens the folder at an absolute path. It and the missing ones above it are made, for their owner
/// only. What root makes in another user's folder belongs to that user; if that cannot be done, it
/// is not made. Root can write everywhere, so it follows only links that may be followed.
File OpenFolder(const std::string &path);

}  // namespace orv
