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

void Register(const trxbench::Operation &operation) {
  const bool isAnnounced = operation.leaves == trxbench::Leaves::kAnnouncement;
  auto *const registered = benchmark::RegisterBenchmark(
      operation.name, isAnnounced ? TimeAnnouncements : Time, operation);
  registered->Unit(benchmark::kMicrosecond);
  // libusb has a thread of its own; so has the observer of announcements, which does not count.
  if (!isAnnounced) registered->MeasureProcessCPUTime();
}

int TimeAll(int argc, char **argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  for (const trxbench::Operation &operation : trxbench::Operations()) Register(operation);
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
