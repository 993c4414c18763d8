#include "RemovalAtTheEnd.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxtest {
namespace {

// The watcher has only the reading end of a pipe: it reads the end when the last writer is gone.
[[noreturn]] void Watch(int readingEnd, const std::string &folder) {
  setsid();
  char never = '\0';
  while (read(readingEnd, &never, 1) > 0) {
  }
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  _exit(EXIT_SUCCESS);
}

}  // namespace

// The watcher must survive when a process is killed with all its descendants, so its parent is a
// process that has already ended.
void RemoveAtTheEnd(const std::string &folder) {
  std::array<int, 2> ends = {};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  const pid_t between = fork();
  if (between == 0) {
    close(ends[1]);
    if (fork() == 0) Watch(ends[0], folder);
    _exit(EXIT_SUCCESS);
  }
  close(ends[0]);
  if (between < 0 || waitpid(between, nullptr, 0) != between) {
    throw std::runtime_error("nobody to watch");
  }
}

}  // namespace trxtest
