#include "SimulatorRun.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using trxtest::TemporaryFolder;

[[noreturn]] void Become(std::vector<std::string> &words, const TemporaryFolder &folder) {
  setenv("TMPDIR", folder.Path().c_str(), 1);
  setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
  unsetenv("TRX_MIXER_SIM_CONTROL");
  std::vector<char *> arguments;
  for (std::string &word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

std::vector<std::string> SimulatorWords(const std::string &units, const std::string &socket) {
  return {TRX_MIXER_SIM, "--units", units, "--control", socket, "--", USB_CLIENT};
}

}  // namespace

Program::Program(std::vector<std::string> words, const TemporaryFolder &folder) {
  static int started = 0;
  // Beside the folder, so that the folder shows only what the program itself leaves behind.
  errorFile_ = folder.Path() + "-errors-" + std::to_string(started++);
  int in[2];
  int out[2];
  if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
  const int errors = open(errorFile_.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
  process_ = fork();
  if (process_ == 0) {
    dup2(in[0], STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    Become(words, folder);
  }
  close(in[0]);
  close(out[1]);
  close(errors);
  input_ = in[1];
  output_ = out[0];
}

Program::~Program() {
  if (process_ > 0) {
    kill(process_, SIGTERM);
    Finish();
  }
  close(output_);
  unlink(errorFile_.c_str());
}

std::string Program::Ask(const std::string &line) {
  Tell(line);
  return Answer();
}

void Program::Tell(const std::string &line) {
  const std::string bytes = line + '\n';
  EXPECT_EQ(write(input_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
}

std::string Program::Answer() {
  for (;;) {
    const std::size_t end = received_.find('\n');
    if (end != std::string::npos) {
      std::string line = received_.substr(0, end);
      received_.erase(0, end + 1);
      return line;
    }
    char buffer[4096];
    const ssize_t count = read(output_, buffer, sizeof buffer);
    if (count <= 0) return {};
    received_.append(buffer, static_cast<std::size_t>(count));
  }
}

void Program::Signal(int number) { kill(process_, number); }

int Program::Finish() {
  if (input_ >= 0) close(input_);
  input_ = -1;
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  return WIFSIGNALED(status) ? 1000 + WTERMSIG(status) : WEXITSTATUS(status);
}

std::string Program::Errors() const {
  std::stringstream text;
  text << std::ifstream(errorFile_).rdbuf();
  return text.str();
}

std::string Program::Rest() {
  std::string all = std::move(received_);
  received_.clear();
  char buffer[4096];
  for (ssize_t count; (count = read(output_, buffer, sizeof buffer)) > 0;) {
    all.append(buffer, static_cast<std::size_t>(count));
  }
  return all;
}

SimulatorRun::SimulatorRun(const std::string &units)
    : program_(SimulatorWords(units, socket), folder),
      ready_(program_.Ask("variable TRX_MIXER_SIM_CONTROL")),
      control_(socket) {
  EXPECT_EQ(ready_, socket) << program_.Errors();
}

void SimulatorRun::WaitForRequest() {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (Log().empty()) {
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error("no request is made");
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

std::vector<std::string> SimulatorRun::FurtherClient() const {
  return {TRX_MIXER_CTL, "--control", socket, "run", "--", USB_CLIENT};
}

std::string SimulatorRun::Open(const std::string &path) {
  const std::string descriptor = program_.Ask("open " + path);
  EXPECT_TRUE(!descriptor.empty() && descriptor[0] >= '0' && descriptor[0] <= '9') << descriptor;
  return descriptor;
}
