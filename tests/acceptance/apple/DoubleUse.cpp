#include "DoubleUse.h"

#include <sstream>

#include <IOKitDouble.h>

namespace trxtest {

std::vector<std::string> TakeWrongUses() {
  std::vector<std::string> wrong = IOKitDouble::TakeMisuses();
  const References alive = IOKitDouble::Alive();
  const References mayStay = {
      .ports = alive.ports, .numbers = alive.numbers, .interfaces = alive.interfaces};
  if (alive != mayStay) {
    std::ostringstream line;
    line << "left alive: " << alive;
    wrong.push_back(line.str());
  }
  return wrong;
}

}  // namespace trxtest
