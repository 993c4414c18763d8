// Runs one operation a number of times, for counters that measure a whole process. The difference
// between two runs is the cost of the operation without that of the process.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

#include "Operation.h"

namespace {

int Repeat(const char *name, long times) {
  for (const trxbench::Operation &operation : trxbench::Operations()) {
    if (std::strcmp(operation.name, name) != 0) continue;
    for (long i = 0; i < times; ++i) operation.run();
    return 0;
  }
  std::fprintf(stderr, "there is no operation %s\n", name);
  return 2;
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s OPERATION TIMES\n", argv[0]);
    return 2;
  }
  try {
    return Repeat(argv[1], std::strtol(argv[2], nullptr, 10));
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "%s: %s\n", argv[0], failure.what());
    return 1;
  }
}
