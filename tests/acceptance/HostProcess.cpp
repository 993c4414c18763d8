#include "HostProcess.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxtest {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatienceForAnswer{120};
constexpr std::chrono::seconds kPatienceForCalls{60};

int MillisecondsUntil(Clock::time_point deadline) {
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
  return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
}

std::array<int, 2> MakePipe() {
  std::array<int, 2> ends = {};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category());
  return ends;
}

}  // namespace

HostProcess::HostProcess(const std::string &program) {
  const auto [commandsOut, commandsIn] = MakePipe();
  const auto [repliesOut, repliesIn] = MakePipe();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, commandsOut, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, repliesIn, STDOUT_FILENO);
  std::string name = program;
  const std::array<char *, 2> arguments = {name.data(), nullptr};
  const int error =
      posix_spawn(&id_, program.c_str(), &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(commandsOut);
  close(repliesIn);
  input_ = commandsIn;
  output_ = repliesOut;
  if (error != 0) throw std::system_error(error, std::generic_category(), program);
}

HostProcess::~HostProcess() {
  close(input_);
  const auto deadline = Clock::now() + kPatienceForCalls;
  while (ReadMore(MillisecondsUntil(deadline))) {
  }
  close(output_);
  if (Clock::now() >= deadline) kill(id_, SIGKILL);
  int status = 0;
  waitpid(id_, &status, 0);
  EXPECT_FALSE(WIFEXITED(status) && WEXITSTATUS(status) != 0) << "the host process has failed";
}

std::string HostProcess::Ask(const std::string &command) {
  Begin(command);
  return Answer();
}

void HostProcess::Begin(const std::string &command) {
  const std::string line = command + '\n';
  if (write(input_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
    throw std::runtime_error("the host process takes no commands");
  }
}

std::string HostProcess::Answer() {
  const auto deadline = Clock::now() + kPatienceForAnswer;
  while (answers_.empty()) {
    if (!ReadMore(MillisecondsUntil(deadline))) {
      throw std::runtime_error("the host process did not answer");
    }
  }
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::vector<std::string> HostProcess::TakeCalls(std::size_t count) {
  const auto deadline = Clock::now() + kPatienceForCalls;
  while (calls_.size() < count && ReadMore(MillisecondsUntil(deadline))) {
  }
  return std::exchange(calls_, {});
}

// False when nothing came in time, and at the end of the process.
bool HostProcess::ReadMore(int milliseconds) {
  pollfd waiting = {output_, POLLIN, 0};
  if (poll(&waiting, 1, milliseconds) <= 0) return false;
  std::array<char, 4096> part;
  const ssize_t size = read(output_, part.data(), part.size());
  if (size <= 0) return false;
  received_.append(part.data(), static_cast<std::size_t>(size));
  for (std::size_t end = received_.find('\n'); end != std::string::npos;
       end = received_.find('\n')) {
    Sort(received_.substr(0, end));
    received_.erase(0, end + 1);
  }
  return true;
}

// Callbacks run between and during commands: "! " marks their lines, "= " marks answers.
void HostProcess::Sort(const std::string &line) {
  const std::string text = line.size() > 2 ? line.substr(2) : std::string();
  if (line.starts_with("= ")) {
    answers_.push_back(text);
  } else if (line.starts_with("! ")) {
    calls_.push_back(text);
  } else {
    throw std::runtime_error("the host process says: " + line);
  }
}

}  // namespace trxtest
