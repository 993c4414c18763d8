// What every fuzz target checks with.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

#include <unistd.h>

namespace trxfuzz {

/// Where broken promises are told. A target that takes standard error for itself changes it.
inline int reportDescriptor = STDERR_FILENO;

/// Ends the run, which keeps its input as a file, unless the promise holds.
inline void Promise(bool holds, std::string_view promise, std::string_view but = "") {
  if (holds) return;
  std::string report = "BROKEN PROMISE: " + std::string(promise) + '\n';
  if (!but.empty()) report += "but: " + std::string(but) + '\n';
  [[maybe_unused]] const ssize_t written = write(reportDescriptor, report.data(), report.size());
  std::abort();
}

}  // namespace trxfuzz
