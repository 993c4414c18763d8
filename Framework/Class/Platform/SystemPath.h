// Where fixed paths of the system lead to.
#pragma once

#include <string>

namespace orv {

/// The path at which a file of the installation is really found, for the absolute path under which
/// it is known. Any thread.
std::string SystemPath(const std::string &path);

}  // namespace orv
