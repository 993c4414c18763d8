#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ControlTransfer.h"

namespace trxsim {

/// One line of the wire log, without its end of line. At least two blanks separate the fields;
/// README.md describes them.
std::string WireLogLine(int unit, const ControlRequest &request, const TransferResult &result);

/// All requests in their order. Has no times and no counters, so that two runs that do the same
/// give the same lines. One thread at a time.
class WireLog {
 public:
  using Sink = std::function<void(const std::string &line)>;

  /// Each line is also passed to `sink`, if there is one, at once.
  explicit WireLog(Sink sink = {}) : sink_(std::move(sink)) {}

  /// Adds the line of one request.
  void Add(int unit, const ControlRequest &request, const TransferResult &result);

  /// All lines since the start or the last `Clear`.
  const std::vector<std::string> &Lines() const { return lines_; }

  /// Forgets all lines.
  void Clear() { lines_.clear(); }

 private:
  Sink sink_;
  std::vector<std::string> lines_;
};

}  // namespace trxsim
