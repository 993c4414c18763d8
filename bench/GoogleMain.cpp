// Times each operation; Google Benchmark decides how often to run it.
#include <cstdio>
#include <exception>

#include <benchmark/benchmark.h>

#include "Observer.h"
#include "Operation.h"

namespace {

// The socket of the session bus has room for many times this number of announcements.
constexpr int kBatch = 32;

void Time(benchmark::State &state, const trxbench::Operation &operation) {
  operation.run();
  while (state.KeepRunning()) operation.run();
}

// The session bus is no faster than the posting process. It gets time to deliver the posts, and
// that time is not counted.
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
