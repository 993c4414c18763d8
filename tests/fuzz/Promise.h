// The check that every fuzz target uses.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

#include <unistd.h>

namespace trxfuzz {

/// Where broken promises are reported. A target that captures standard error changes it.
inline int reportDescriptor = STDERR_FILENO;

/// Ends the run unless the promise holds; the fuzzer then saves the input as a file.
inline void Promise(bool holds, std::string_view promise, std::string_view but = "") {
  if (holds) return;
  std::string report = "BROKEN PROMISE: " + std::string(promise) + '\n';
  if (!but.empty()) report += "but: " + std::string(but) + '\n';
  [[maybe_unused]] const ssize_t written = write(reportDescriptor, report.data(), report.size());
  std::abort();
}

}  // namespace trxfuzz
