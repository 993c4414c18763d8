// Maps fixed paths to installed files.
#pragma once

#include <string>

namespace orv {

/// The real path of an installed file, for the absolute path by which it is known. Any thread.
std::string SystemPath(const std::string &path);

}  // namespace orv
