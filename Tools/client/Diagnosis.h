#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "AutoApply.h"
#include "Mixers.h"
#include "Requests.h"
#include "Settings.h"

namespace client {

/// What a check looked at, in the order of the checks.
enum class CheckedPart {
  kUsb,
  kMaker,
  kMixer,
  kNode,
  kAccess,
  kAnswer,
  kSessionBus,
  kSettingsFolder,
  kSettingsFiles,
  kInstallation,
  kAutoApply,
};

/// What a check found. Only kGood is no problem.
enum class Finding {
  kGood,
  kUsbHidden,  ///< path: the folder that cannot be read; reason.
  kNoUsbDevice,
  kOnlyOtherProducts,  ///< names: products of the maker that are no mixers.
  kNoMixer,
  kNodeMissing,        ///< mixers: the one; path: its node.
  kNoRule,             ///< mixers: the one that may not be opened, for want of the udev rule.
  kRuleWithoutEffect,  ///< mixers: the one; names: the folders with the udev rule.
  kHeld,               ///< mixers: the one that another program holds.
  kNotOpened,          ///< mixers: the one; reason.
  kNoAnswer,           ///< mixers: the one; outcome.
  kNoSessionBus,
  kSessionBusSilent,
  kNoHome,
  kFolderNotWritable,  ///< path: the settings folder; obstacle: what is not writable; reason.
  kNoFolder,           ///< path: the settings folder; obstacle: what stands in its place; reason.
  kFileIsNone,         ///< path: the settings file.
  kFileTooLarge,       ///< path
  kFileTooDeep,        ///< path
  kFileUnreadable,     ///< path; reason, where the system gives one.
  kFileIsNoList,       ///< path
  kNoChoice,           ///< path; settings: those whose stored number is no choice.
  kFileKept,           ///< path: the settings file; names: files kept beside it, as unreadable.
  kNoLibraryVersion,
  kNoPackageVersion,
  kAutoApplyBroken,  ///< autoApply: what keeps it from working.
};

/// One thing that was looked at.
struct Check {
  CheckedPart part;
  Finding finding = Finding::kGood;
  /// The mixers that it is about.
  std::vector<Mixer> mixers = {};
  std::string path = {};
  std::string obstacle = {};
  /// The system's reason, an errno; 0 for none.
  int reason = 0;
  Outcome outcome = Outcome::kDone;
  std::vector<Setting> settings = {};
  /// Set also in a good check, where the system has nothing that could start the sending.
  AutoApplyObstacle autoApply = AutoApplyObstacle::kNone;
  /// Names that belong to the finding: other products, folders with the rule, kept files,
  /// versions.
  std::vector<std::string> names = {};
  /// What was counted: USB devices, settings files in use.
  std::size_t count = 0;
  /// Settings files without effect on any setting; for the settings folder 1 when it is there; for
  /// sending at plug-in 1 when it is turned off.
  std::size_t otherCount = 0;

  bool IsGood() const { return finding == Finding::kGood; }
};

/// Looks at everything from the USB bus to the installation, changing nothing; only a file is
/// written to the settings folder and removed. What makes no sense after a problem, such as opening
/// a mixer that is not there, is left out.
///
/// @param models  whose settings files are looked at.
std::vector<Check> Diagnose(const std::vector<const Model *> &models);

/// Looks at what storing settings needs: their folder.
Check CheckFolder();

/// Asks the connected mixers something: a check for each that does not answer, or one that is good.
std::vector<Check> CheckAnswers();

}  // namespace client
