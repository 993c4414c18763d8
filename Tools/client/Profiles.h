#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Delivery.h"
#include "ProfileFault.h"
#include "ProfileFormat.h"
#include "WholeFile.h"

namespace client {

// Profiles are settings of a model that the user has given a name to, one file each, in the folder
// "Profiles" beside the one of the stored settings. All functions look at the files anew, and throw
// ProfileFault when something cannot be done.

/// The folder of the profiles; nothing when the user has no home. It need not exist.
std::optional<std::string> ProfilesFolder();

/// A file among the profiles.
struct StoredProfile {
  /// The name of the profile; of the file, when it is not named for one.
  std::string name;
  /// Nothing when it cannot be loaded.
  std::optional<Profile> profile = {};
  /// Why it cannot be loaded.
  std::optional<ProfileFault> fault = {};
};

/// All profiles, by name, including those that cannot be loaded.
std::vector<StoredProfile> StoredProfiles();

/// The names of all profiles that can be loaded.
std::vector<std::string> ProfileNames();

/// A profile of what is stored now: every setting that the model takes from a list, also where it
/// is the default, so that loading it leaves nothing to what was stored before.
Profile ProfileOfStored(const Model &model, const std::string &name);

/// Keeps a profile. kNameTaken when there is one of its name that is to be kept.
void SaveProfile(const Profile &profile, OldFile oldFile);

/// The profile of this name, checked as a whole.
Profile LoadProfile(const std::string &name);

/// Removes the profile of this name, whatever is in its file.
void DeleteProfile(const std::string &name);

/// Gives a profile another name. A process that is killed in between leaves it under both.
void RenameProfile(const std::string &name, const std::string &newName, OldFile oldFile);

/// Writes a profile into a file of the user's, byte for byte as it is kept.
Profile ExportProfile(const std::string &name, const std::string &file, OldFile oldFile);

/// Keeps the profile in a file of the user's, under its own name or another one.
Profile ImportProfile(const std::string &file, const std::optional<std::string> &newName,
                      OldFile oldFile);

/// The choices of a profile that differ from what is stored now.
std::vector<ProfileChoice> DifferingFromStored(const Profile &profile);

/// What came of sending a choice of a profile.
struct ProfileSendResult {
  ProfileChoice choice;
  SendResult result;
};

/// Sends, stores and announces the choices of a profile one after the other.
std::vector<ProfileSendResult> SetProfile(const Profile &profile);

}  // namespace client
