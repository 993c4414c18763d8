#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Settings.h"

namespace client {

/// One setting and the choice that a profile has for it.
struct ProfileChoice {
  Setting setting;
  int32_t index;
};

/// Settings of one model under a name.
struct Profile {
  std::string name;
  const Model *model = nullptr;
  std::vector<ProfileChoice> choices = {};
};

/// The largest file that is read, in bytes.
inline constexpr std::size_t kLargestProfileFile = std::size_t{1} << 20U;

/// The text of a profile's file; docs/profiles.md describes it.
std::string TextOfProfile(const Profile &profile);

/// The profile that a text holds, in which everything is known to this version: throws ProfileFault
/// otherwise. Members that it has no use for are passed over.
Profile ProfileInText(const std::string &text);

/// The text, which must hold a profile, with another name in it and everything else kept.
std::string TextWithName(const std::string &text, const std::string &name);

}  // namespace client
