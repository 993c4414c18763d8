#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace trxtest {

/// One announced change: its name, and its dictionary in the order in which it was sent. A signal
/// that is not a well-formed announcement has a name that says what it is.
struct Announcement {
  std::string name;
  std::vector<std::pair<std::string, std::int32_t>> entries;

  bool operator==(const Announcement &) const = default;
};

/// How an announcement is printed when an expectation fails.
inline void PrintTo(const Announcement &announcement, std::ostream *out) {
  *out << '"' << announcement.name << '"';
  for (const auto &[key, value] : announcement.entries) *out << ' ' << key << '=' << value;
}

}  // namespace trxtest
