// What must still hold after a failure.
#pragma once

#include <string>
#include <vector>

#include "Deliveries.h"

namespace trxtest {

/// A case about the settings file and the registrations of TRX-SELVA. Also works in a forked child,
/// which does not use the rig's connection to the bus.
class Aftermath : public Deliveries {
 protected:
  /// Makes a settings file with this level and an entry of another program.
  void PutLevelThree();
  void PutLevelThree(const std::string &otherText);

  /// The settings with this level and the entry of another program.
  static Settings Level(int index);

  /// The names below the user's Library folder when it has only one settings file.
  static const std::vector<std::string> kOnlyTheFile;

  /// Registers for the boost level of TRX-SELVA.
  static void Register();

  /// Sets levels and expects that the registered callback is called for each, in order and once.
  /// The library may first have to find the bus again.
  void ExpectRegistrationHolds();
};

}  // namespace trxtest
