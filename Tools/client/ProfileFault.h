#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Settings.h"

namespace client {

/// What is the matter with a profile, its name or its file.
enum class ProfileProblem {
  // Its name.
  kNameEmpty,         ///< Nothing, or blanks only.
  kNameTooLong,       ///< Longer than kLongestProfileName.
  kNameNotPrintable,  ///< Control characters, or bytes that are no UTF-8.

  // Its place.
  kNoHome,         ///< The user has no folder for settings.
  kNoSuchProfile,  ///< There is no profile of that name.
  kNameTaken,      ///< There is one of the new name already.
  kFileTaken,      ///< There is a file already where it was to be exported to.
  kMisplaced,      ///< The file in the folder of the profiles is not named for the profile in it.
  kUnreadable,     ///< The system does not let it be read.
  kUnwritable,     ///< The system does not let it be written.

  // What it was to be made from.
  kStoredIsNoChoice,  ///< A stored number that is no choice.

  // The text of its file.
  kTooLarge,        ///< Larger than kLargestProfileFile.
  kNoUtf8,          ///< Bytes that are no UTF-8.
  kNoJson,          ///< No JSON, or not one value only.
  kTooDeep,         ///< Lists and objects in one another beyond all need.
  kMemberTwice,     ///< A member stands twice in one object.
  kNoMember,        ///< A member is missing.
  kNotObject,       ///< Something else stands where an object belongs.
  kNotList,         ///< A member is no list.
  kNotText,         ///< A member is no text.
  kNotNumber,       ///< A member is no whole number.
  kOtherFormat,     ///< It is of another format, most likely a newer one.
  kUnknownModel,    ///< No model that has settings is called so.
  kNoSettings,      ///< It holds no setting at all.
  kUnknownSetting,  ///< The model has no such setting.
  kNotTaken,        ///< The model takes no choice from the list.
  kUnknownChannel,  ///< The setting has no such channel.
  kNoChannels,      ///< A channel is named, and the setting has none.
  kUnknownText,     ///< No choice has this text.
  kDisagree,        ///< The choice of this number has another text.
  kSettingTwice,    ///< A setting stands twice.
};

/// Thrown when something cannot be done with a profile; nothing was done then.
struct ProfileFault {
  ProfileProblem problem;
  /// The name, member, text or path that it is about.
  std::string what = {};
  /// The number that it is about.
  std::int64_t number = 0;
  const Model *model = nullptr;
  std::optional<Setting> setting = {};
  /// The system's reason for kUnreadable and kUnwritable.
  int reason = 0;
};

}  // namespace client
