#pragma once

#include <filesystem>

namespace trxsim {

/// Makes a file that nobody can open, not even root: ENXIO. Throws `DeskError` on failure.
void MakeRefusingNode(const std::filesystem::path &path);

}  // namespace trxsim
