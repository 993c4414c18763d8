// Lines of the wire log, made from the parts that differ.
#pragma once

#include <string>

namespace trxtest {

/// A setting sent to a unit; `value` and `index` are four hexadecimal digits as in the log.
inline std::string Sent(int unit, const std::string &value, const std::string &index,
                        const std::string &outcome = "0 bytes") {
  return "unit " + std::to_string(unit) + " OUT 40 03 wValue " + value + " wIndex " + index +
         " wLength 0 -> " + outcome;
}

/// A read of `length` bytes from a unit, and its answer, such as "2 bytes 01 00" or "stalled".
inline std::string Asked(int unit, const std::string &index, int length,
                         const std::string &outcome) {
  return "unit " + std::to_string(unit) + " IN c0 00 wValue 0000 wIndex " + index + " wLength " +
         std::to_string(length) + " -> " + outcome;
}

}  // namespace trxtest
