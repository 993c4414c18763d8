// What is measured: a name and something that can be done any number of times.
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

/// The operations of this program; each program has a table of its own.
const std::vector<Operation> &Operations();

/// An operation that did not do what it is measured for must not become a figure.
inline void Require(bool done, const char *what) {
  if (!done) throw std::runtime_error(std::string("not done: ") + what);
}

}  // namespace trxbench
