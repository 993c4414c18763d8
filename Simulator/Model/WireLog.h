#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ControlTransfer.h"

namespace trxsim {

/// One line of the wire log, without its end of line. Fields are parted by two or more blanks and
/// stand in columns; README.md describes them.
std::string WireLogLine(int unit, const ControlRequest &request, const TransferResult &result);

/// Everything that crossed the wire, in its order. Holds neither times nor counters, so that two
/// runs that do the same give the same lines. Not safe for several threads at once.
class WireLog {
 public:
  using Sink = std::function<void(const std::string &line)>;

  /// Each line goes to `sink` too, if there is one, as soon as it is written.
  explicit WireLog(Sink sink = {}) : sink_(std::move(sink)) {}

  /// Adds the line of one request.
  void Add(int unit, const ControlRequest &request, const TransferResult &result);

  /// All lines since the start or the last `Clear`.
  const std::vector<std::string> &Lines() const { return lines_; }

  /// Forgets all lines; what went to the sink stays there.
  void Clear() { lines_.clear(); }

 private:
  Sink sink_;
  std::vector<std::string> lines_;
};

}  // namespace trxsim
