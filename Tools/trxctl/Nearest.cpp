#include "Nearest.h"

#include <algorithm>
#include <numeric>

#include "Text.h"

namespace trxctl {
namespace {

/// How many letters have to be added, removed or replaced to turn one text into the other.
std::size_t Distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::optional<std::string> Nearest(std::string_view given,
                                   const std::vector<std::string> &candidates) {
  const std::string wanted = Lower(given);
  std::optional<std::string> best;
  std::size_t best_distance = 0;
  for (const std::string &candidate : candidates) {
    const std::size_t distance = Distance(wanted, Lower(candidate));
    // More than a third of the letters wrong is another word, not a slip of the finger.
    const bool near = distance * 3 <= std::max(wanted.size(), candidate.size()) + 2;
    if (near && (!best || distance < best_distance)) {
      best = candidate;
      best_distance = distance;
    }
  }
  return best;
}

}  // namespace trxctl
