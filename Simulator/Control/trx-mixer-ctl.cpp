// trx-mixer-ctl: sends one command to a running simulator, or runs a program inside it.

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "CommandInterpreter.h"
#include "ControlAddress.h"
#include "ControlClient.h"
#include "Environment.h"
#include "SimulatedEnvironment.h"
#include "UsageFormatter.h"

namespace {

enum ExitCode { kDone = 0, kRefused = 1, kUsage = 2, kUnreachable = 3, kNoExec = 126, kNotFound };

constexpr const char *kExamples =
    "Examples:\n"
    "  trx-mixer-ctl units                       list all units\n"
    "  trx-mixer-ctl set 1 selector 0 6          turn the first selector of mixer 1\n"
    "  trx-mixer-ctl fault 1 no-reply selectors  let mixer 1 not answer that request\n"
    "  trx-mixer-ctl unplug 2                    pull the cable of unit 2\n"
    "  trx-mixer-ctl log                         print all requests\n"
    "  trx-mixer-ctl help                        list all commands\n"
    "  trx-mixer-ctl run -- bash                 open a shell that sees the mixers\n"
    "\n"
    "Exit codes: 0 done, 1 refused by the simulator, 2 usage, 3 no simulator of this user;\n"
    "run: that of the program, 126 or 127 if it cannot be started.\n";

int RunProgram(const std::string &socket, std::vector<std::string> words) {
  trxsim::ControlClient simulator(socket);
  const trxsim::Environment additions = simulator.Ask("environment");
  trxsim::RequireExpectedEnvironment(additions, socket);
  std::vector<std::string> environment = trxsim::EnvironmentWith(additions);
  const std::vector<char *> variables = trxsim::ExecVector(environment);
  const std::vector<char *> arguments = trxsim::ExecVector(words);
  execvpe(arguments[0], arguments.data(), variables.data());
  std::fprintf(stderr, "trx-mixer-ctl: cannot run %s: %s\n", arguments[0], std::strerror(errno));
  return errno == ENOENT ? kNotFound : kNoExec;
}

int Print(const std::vector<std::string> &lines) {
  for (const std::string &line : lines) std::printf("%s\n", line.c_str());
  return kDone;
}

int SendCommand(const std::string &socket, const std::vector<std::string> &words) {
  trxsim::ControlClient simulator(socket);
  std::string command;
  for (const std::string &word : words) command += (command.empty() ? "" : " ") + word;
  return Print(simulator.Ask(command));
}

int Talk(const std::string &given, std::vector<std::string> words) {
  if (words == std::vector<std::string>{"help"}) return Print(trxsim::CommandHelp());
  const bool run = words[0] == "run";
  if (run) {
    words.erase(words.begin());
    if (!words.empty() && words[0] == "--") words.erase(words.begin());
  }
  if (words.empty()) {
    std::fprintf(stderr,
                 "trx-mixer-ctl: no program to run; for example: trx-mixer-ctl run -- bash\n");
    return kUsage;
  }
  const std::string socket = given.empty() ? trxsim::ClientControlSocket() : given;
  return run ? RunProgram(socket, std::move(words)) : SendCommand(socket, words);
}

int RunTool(int argc, char **argv) {
  CLI::App app("Control running software mixers.", "trx-mixer-ctl");
  app.formatter(
      std::make_shared<trxsim::UsageFormatter>("trx-mixer-ctl [OPTIONS] COMMAND [ARGUMENT...]"));
  app.footer(kExamples);
  app.prefix_command();
  std::string socket;
  app.add_option("--control", socket,
                 "control socket of the simulator; without this, that of the simulator in which "
                 "this program runs, or the usual one of the user")
      ->type_name("SOCKET");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return app.exit(error) == 0 ? kDone : kUsage;
  }
  std::vector<std::string> words = app.remaining();
  if (words.empty()) {
    std::fprintf(stderr,
                 "trx-mixer-ctl: no command given. `trx-mixer-ctl help` lists those of the "
                 "simulator, `trx-mixer-ctl --help` shows examples.\n");
    return kUsage;
  }
  return Talk(socket, std::move(words));
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return RunTool(argc, argv);
  } catch (const trxsim::SimulatorNotTrusted &failure) {
    std::fprintf(stderr, "trx-mixer-ctl: %s\n", failure.what());
    return kUnreachable;
  } catch (const trxsim::SimulatorUnreachable &failure) {
    std::fprintf(stderr,
                 "trx-mixer-ctl: %s\n"
                 "Hint: start one with `trx-mixer-sim --units 2 -- bash`, or name its socket with "
                 "--control.\n",
                 failure.what());
    return kUnreachable;
  } catch (const std::exception &refusal) {
    std::fprintf(stderr, "trx-mixer-ctl: %s\n", refusal.what());
    return kRefused;
  }
}
