// A host of two threads that open the same mixer at once. libumockdev-preload makes a mutex for
// each opened device just before it enters the device into its table; there the first thread waits
// for the second. Prints whether both were ever there together.
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

namespace {

constexpr int kRounds = 3;
constexpr std::chrono::milliseconds kPatience{300};

thread_local bool isOpening = false;
std::atomic<int> inside = 0;
std::atomic<bool> haveMet = false;

void WaitForOther() {
  if (++inside == 2) haveMet = true;
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!haveMet && std::chrono::steady_clock::now() < end) std::this_thread::yield();
  --inside;
}

void OpenAndClose(const char *path) {
  isOpening = true;
  const int descriptor = open(path, O_RDWR | O_CLOEXEC);
  isOpening = false;
  if (descriptor < 0) std::perror(path);
  close(descriptor);
}

}  // namespace

extern "C" int pthread_mutex_init(pthread_mutex_t *mutex, const pthread_mutexattr_t *attributes) {
  static const auto next =
      reinterpret_cast<decltype(&pthread_mutex_init)>(dlsym(RTLD_NEXT, "pthread_mutex_init"));
  if (isOpening) WaitForOther();
  return next(mutex, attributes);
}

int main(int, char **arguments) {
  for (int round = 0; round < kRounds; ++round) {
    std::thread other(OpenAndClose, arguments[1]);
    OpenAndClose(arguments[1]);
    other.join();
  }
  std::puts(haveMet ? "together" : "one after the other");
  return 0;
}
