#pragma once

#include <ostream>

namespace trxtest {

/// How many references the code under test holds, by what they refer to.
struct References {
  int ports = 0;
  int dictionaries = 0;
  int numbers = 0;
  int iterators = 0;
  int devices = 0;
  int plugIns = 0;
  int interfaces = 0;

  bool operator==(const References &) const = default;
};

inline std::ostream &operator<<(std::ostream &out, const References &references) {
  return out << references.ports << " ports, " << references.dictionaries << " dictionaries, "
             << references.numbers << " numbers, " << references.iterators << " iterators, "
             << references.devices << " devices, " << references.plugIns << " plug-ins, "
             << references.interfaces << " interfaces";
}

}  // namespace trxtest
