#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trxctl {

/// The candidate that the user most likely meant, if one is near enough to be worth suggesting.
std::optional<std::string> Nearest(std::string_view given,
                                   const std::vector<std::string> &candidates);

}  // namespace trxctl
