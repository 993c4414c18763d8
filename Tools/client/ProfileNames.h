#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace client {

/// The longest name of a profile, in bytes. Its file name may be three times as long and some, and
/// no file system of today takes more than 255 bytes.
inline constexpr std::size_t kLongestProfileName = 80;

/// Whether the bytes are UTF-8 throughout.
bool IsUtf8(std::string_view bytes);

/// Throws ProfileFault unless a profile can be called so.
void CheckProfileName(const std::string &name);

/// The file name of a profile, without its folder. Two names never have the same, also where case
/// or the form of accents does not count in file names.
std::string ProfileFileName(const std::string &name);

/// The name of the profile that a file is named for; nothing for a file that no profile has.
std::optional<std::string> ProfileNamedBy(const std::string &fileName);

}  // namespace client
