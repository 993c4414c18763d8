#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trxsim {

/// Environment variables as NAME=VALUE.
using Environment = std::vector<std::string>;

/// The environment of this process with `additions` put in. A variable that is a list (LD_PRELOAD,
/// ASAN_OPTIONS) keeps what it had and gets the addition at its end; others are replaced.
Environment EnvironmentWith(const Environment &additions);

/// Pointers to the strings of `environment`, with a null at the end, as exec wants them.
std::vector<char *> ExecVector(std::vector<std::string> &strings);

}  // namespace trxsim
