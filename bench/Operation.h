// What is measured: a name, and an operation that can be repeated any number of times.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace trxbench {

/// Whether an operation leaves a message for the session bus to deliver.
enum class Leaves { kNothing, kAnnouncement };

struct Operation {
  const char *name;
  void (*run)();
  Leaves leaves = Leaves::kNothing;
};

/// The operations of this program; each program has its own table.
const std::vector<Operation> &Operations();

/// Fails when an operation did not do what it is measured for: it must not become a figure.
inline void Require(bool done, const char *what) {
  if (!done) throw std::runtime_error(std::string("not done: ") + what);
}

}  // namespace trxbench
