// trx-mixer-registry: runs a command, and its children, on a desk with software mixers that the
// double of IOKit shows. Takes the options of trx-mixer-sim that the case runner gives.
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <Control/CommandInterpreter.h>
#include <Control/ControlServer.h>
#include <Control/ControlSocket.h>
#include <Model/Desk.h>
#include <Program/ChildProcess.h>

#include "RegistryFrontEnd.h"

namespace {

int Run(int argc, char **argv) {
  CLI::App app("Run a command with software mixers in the registry of IOKit's double.");
  app.prefix_command();
  int units = 0;
  std::string control;
  app.add_option("--units", units, "how many mixers are plugged in at the start");
  app.add_option("--control", control, "socket to listen at for the rig")->required();
  CLI11_PARSE(app, argc, argv);
  std::vector<std::string> command = app.remaining();
  if (!command.empty() && command[0] == "--") command.erase(command.begin());

  const std::string registry = control + ".registry";
  const trxsim::ControlSocket socket = trxsim::ControlSocket::At(control);
  trxtest::RegistryFrontEnd frontEnd(registry);
  trxsim::Desk desk(frontEnd);
  frontEnd.Requests().Open(desk);
  for (int unit = 0; unit < units; ++unit) desk.Plug();
  const trxsim::Environment additions = {std::string(trxtest::kRegistryVariable) + '=' + registry};
  trxsim::CommandInterpreter interpreter(desk, additions);
  const trxsim::ControlServer server(socket.Listener(), interpreter);
  const int result = trxsim::RunCommand(command, trxsim::EnvironmentWith(additions));
  frontEnd.Requests().Close();
  return result;
}

}  // namespace

int main(int argc, char **argv) {
  trxsim::BlockSignals();
  try {
    return Run(argc, argv);
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "trx-mixer-registry: %s\n", failure.what());
    return 125;
  }
}
