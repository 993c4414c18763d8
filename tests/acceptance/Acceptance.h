// What all suites share.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../support/Constants.h"
#include "Rig.h"
#include "Texts.h"

namespace trxtest {

/// The ProductIds to try a function with: all that could name a model, and some beyond.
inline constexpr ProductId kAllProducts[] = {0, 1, 2,  3,  4,  5,  6,          7,
                                             8, 9, 10, 11, 12, 13, 0x80000000, 0xFFFFFFFF};

/// Entries of a settings file: the key, and its value as written in the file, such as
/// "<integer>3</integer>".
using Settings = std::map<std::string, std::string>;

/// A case with its own rig.
class Acceptance : public testing::Test {
 protected:
  std::unique_ptr<Rig> rig_ = MakeRig();

  /// The entries of a model's settings file, given by its display name; nothing when it is missing
  /// or is no XML property list with a dictionary at its root.
  std::optional<Settings> SettingsOf(const std::string &modelDisplayName);

  /// Puts a file in the place of a model's settings file.
  void PutSettingsFile(const std::string &modelDisplayName, const std::string &contents);

  /// Puts a settings file with these entries, each "<key>K</key>" followed by its value.
  void PutSettings(const std::string &modelDisplayName, const std::string &entries);

  /// All files and empty folders below the user's Library folder, relative to it, except those
  /// that were there at the start. A folder ends with a slash; the empty Library folder itself is
  /// "./".
  std::vector<std::string> LibraryListing();

  /// Expects that no request reached a unit, no file was made and nothing was announced. Only for
  /// cases in which none of that happened before.
  void ExpectNothingHappened();

  /// Plugs in a working stranger after all other units. A platform may ask every device to open a
  /// unit: a last device that fails would make all openings fail.
  void PlugSomethingHealthyBehind() { rig_->PlugStranger(Stranger::kUnrelated); }

  /// Runs the event loop until `isDone`, at most a minute. Returns whether it is done.
  bool RunEventLoopUntil(const std::function<bool()> &isDone);

 private:
  std::vector<std::string> ListLibrary();

  std::vector<std::string> libraryAtStart_ = ListLibrary();
};

/// Waits until `isDone`, at most a minute. Returns whether it is done.
bool WaitUntil(const std::function<bool()> &isDone);

/// The boost change that a setter announces.
Announcement BoostChange(const std::string &modelDisplayName, std::int32_t product,
                         std::int32_t index);

}  // namespace trxtest
