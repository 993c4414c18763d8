#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trxsim {

/// Environment variables as NAME=VALUE.
using Environment = std::vector<std::string>;

/// The environment of this process with `additions`. An addition to a list (LD_PRELOAD,
/// ASAN_OPTIONS) is appended to it; other variables are replaced.
Environment EnvironmentWith(const Environment &additions);

/// Pointers to `strings` and a null at the end, as exec expects them.
std::vector<char *> ExecVector(std::vector<std::string> &strings);

}  // namespace trxsim
