// Times each operation; Google Benchmark decides how often to do it.
#include <cstdio>
#include <exception>

#include <benchmark/benchmark.h>

#include "Observer.h"
#include "Operation.h"

namespace {

// So many announcements fit into the socket of the session bus many times over.
constexpr int kBatch = 32;

void Time(benchmark::State &state, const trxbench::Operation &operation) {
  operation.run();
  while (state.KeepRunning()) operation.run();
}

// The session bus works no faster than what posts to it: it is given time to deliver what was
// posted, and none of that is counted.
void TimeAnnouncements(benchmark::State &state, const trxbench::Operation &operation) {
  trxbench::Observer observer;
  operation.run();
  observer.WaitFor(1);
  int posted = 0;
  while (state.KeepRunning()) {
    operation.run();
    if (++posted < kBatch) continue;
    state.PauseTiming();
    observer.WaitFor(posted);
    posted = 0;
    state.ResumeTiming();
  }
  observer.WaitFor(posted);
}

int TimeAll(int argc, char **argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  for (const trxbench::Operation &operation : trxbench::Operations()) {
    const auto time =
        operation.leaves == trxbench::Leaves::kAnnouncement ? TimeAnnouncements : Time;
    benchmark::RegisterBenchmark(operation.name, time, operation)->Unit(benchmark::kMicrosecond);
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return TimeAll(argc, argv);
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "%s: %s\n", argv[0], failure.what());
    return 1;
  }
}
