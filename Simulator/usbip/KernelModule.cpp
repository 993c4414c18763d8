#include "KernelModule.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxsim {

bool LoadKernelModule(const std::string &name) {
  std::string program = "modprobe";
  std::string quietly = "-q";
  std::string module = name;
  char *const arguments[] = {program.data(), quietly.data(), module.data(), nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t process = 0;
  const int error = posix_spawnp(&process, arguments[0], &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  return error == 0 && waitpid(process, &status, 0) == process && status == 0;
}

}  // namespace trxsim
