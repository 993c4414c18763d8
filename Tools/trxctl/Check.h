#pragma once

#include <string>
#include <vector>

#include "ExitCode.h"

namespace trxctl {

/// One thing that `diagnose` looked at.
struct Check {
  /// Its name in JSON and at the beginning of its line.
  std::string name;
  /// kDone when all is well; else the exit code for what is not.
  ExitCode code;
  /// One line: what was found.
  std::string finding;
  /// One line: what to do; empty when all is well.
  std::string hint;

  bool ok() const { return code == ExitCode::kDone; }
};

/// A check that found all well.
inline Check Well(std::string name, std::string finding) {
  return {std::move(name), ExitCode::kDone, std::move(finding), ""};
}

}  // namespace trxctl
