// What must still hold after something went wrong.
#pragma once

#include <string>
#include <vector>

#include "Deliveries.h"

namespace trxtest {

/// A case about the settings file and the registrations of TRX-SELVA. Works in a forked child too,
/// which has no part in the rig's own connection to the bus.
class Aftermath : public Deliveries {
 protected:
  /// Puts a settings file with this level and an entry of somebody else's.
  void PutLevelThree();
  void PutLevelThree(const std::string &otherText);

  /// The settings with this level and the entry of somebody else's.
  static Settings Level(int index);

  /// The names below the user's Library folder when nothing but one settings file was ever there.
  static const std::vector<std::string> kOnlyTheFile;

  /// Registers for the boost level of TRX-SELVA.
  static void Register();

  /// Expects that who called Register is told, in order and once, of what is set from now on; sets
  /// levels to see that. The library may first have to find the bus again.
  void ExpectRegistrationHolds();
};

}  // namespace trxtest
