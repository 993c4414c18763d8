// Another process that uses the library and is controlled line by line.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include <sys/types.h>

namespace trxtest {

/// A running acceptance-host (host/Commands.h lists its commands). It receives notifications in its
/// event loop when it has no command to run. It ends with this object; the case fails when its exit
/// code is not 0. Functions throw when the process has ended or does not answer for two minutes.
/// One thread at a time.
class HostProcess {
 public:
  /// Starts `program` in the environment of this process.
  explicit HostProcess(const std::string &program);
  ~HostProcess();
  HostProcess(const HostProcess &) = delete;
  HostProcess &operator=(const HostProcess &) = delete;

  /// Runs a command and returns the answer.
  std::string Ask(const std::string &command);

  /// Starts a command without waiting for its answer.
  void Begin(const std::string &command);

  /// The answer to the oldest command that has no answer yet.
  std::string Answer();

  /// Waits until the callbacks of the process have run `count` times since the last call, but at
  /// most a minute; then returns a line for each run, whether fewer or more.
  std::vector<std::string> TakeCalls(std::size_t count);

  pid_t Id() const { return id_; }

 private:
  bool ReadMore(int milliseconds);
  void Sort(const std::string &line);

  pid_t id_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string received_;
  std::deque<std::string> answers_;
  std::vector<std::string> calls_;
};

}  // namespace trxtest
