#pragma once

#include <filesystem>

namespace trxsim {

/// Makes a file that nobody can open, whatever the privileges: ENXIO. Throws `DeskError` when the
/// system has no means for it.
void MakeRefusingNode(const std::filesystem::path &path);

}  // namespace trxsim
