#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

#include "Control/ControlClient.h"
#include "TemporaryFolder.h"

/// A program started by a test, its input and output in pipes, its errors in a file. Killed at the
/// end if it still runs.
class Program {
 public:
  /// Starts `words` with TMPDIR and XDG_RUNTIME_DIR set to `folder`.
  Program(std::vector<std::string> words, const trxtest::TemporaryFolder &folder);
  ~Program();
  Program(const Program &) = delete;
  Program &operator=(const Program &) = delete;

  /// Sends a line and waits for the answering line; "" at the end of the program's output.
  std::string Ask(const std::string &line);

  /// Sends a line whose answer is taken later by `Answer`.
  void Tell(const std::string &line);

  /// Waits for a line.
  std::string Answer();

  /// Sends a signal.
  void Signal(int number);

  /// Closes the input and waits for the end: the exit status, or 1000 plus the signal.
  int Finish();

  /// What it wrote to its standard error so far.
  std::string Errors() const;

  /// All that it still writes to its output.
  std::string Rest();

 private:
  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string errorFile_;
  std::string received_;
};

/// The real trx-mixer-sim with a USB client as its command. Everything it leaves behind would lie
/// in `folder`.
class SimulatorRun {
 public:
  /// Starts with these units, as --units takes them; returns when the client runs.
  explicit SimulatorRun(const std::string &units);
  explicit SimulatorRun(int mixers) : SimulatorRun(std::to_string(mixers)) {}

  /// The command under the simulator.
  Program &Client() { return program_; }

  /// Sends a control command; the lines of the reply.
  std::vector<std::string> Control(const std::string &command) { return control_.Ask(command); }

  /// The wire log.
  std::vector<std::string> Log() { return control_.Ask("log"); }

  /// Waits until a request stands in the wire log, at most ten seconds; throws after that.
  void WaitForRequest();

  /// Words that start one more client on the same desk, by way of trx-mixer-ctl.
  std::vector<std::string> FurtherClient() const;

  /// Opens a device node in the client and returns its descriptor as text.
  std::string Open(const std::string &path);

  trxtest::TemporaryFolder folder;
  const std::string socket = folder / "control.sock";

 private:
  Program program_;
  std::string ready_;
  trxsim::ControlClient control_;
};
