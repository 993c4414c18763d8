// trx-mixer-sim: runs a command with software mixers plugged in, for the command and the programs
// that it starts, or for the whole machine.

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <dlfcn.h>

#include "../Control/CommandArguments.h"
#include "../Control/CommandInterpreter.h"
#include "../Control/ControlServer.h"
#include "../Control/ControlSocket.h"
#include "../Control/Environment.h"
#include "../Control/SimulatedEnvironment.h"
#include "../Control/UnitKindText.h"
#include "../Control/UsageFormatter.h"
#include "../Model/Desk.h"
#include "../Model/RequestGate.h"
#include "../umockdev/UmockdevFrontEnd.h"
#include "../usbip/UsbipFrontEnd.h"
#include "ChildProcess.h"

namespace {

enum ExitCode { kUsage = 2, kSimulatorFailed = 125 };

// A socket path has at most 107 bytes, and a mixer needs about 50 of them below this folder.
constexpr std::size_t kLongestTemporaryFolder = 50;

constexpr const char *kExamples =
    "Examples:\n"
    "  trx-mixer-sim -- trxctl status                one mixer, one command\n"
    "  trx-mixer-sim --units 2 -- bash               a shell with two mixers plugged in\n"
    "  trx-mixer-sim --units TRX-SELVA,TRX-VOLT -- bash  a mixer of each model\n"
    "  trx-mixer-sim --wire-log wire.txt -- ./tests  write all requests to a file\n"
    "  sudo trx-mixer-sim --usbip --units 2          two mixers for every program, until Ctrl-C\n"
    "\n"
    "While the command runs, from another terminal or from the command itself:\n"
    "  trx-mixer-ctl units                           list all units\n"
    "  trx-mixer-ctl set 1 selector 0 6              turn a selector\n"
    "  trx-mixer-ctl run -- bash                     a second shell with the same mixers\n"
    "  trx-mixer-ctl help                            list all commands\n"
    "\n"
    "Exit codes: that of the command, 128 + N when signal N ended it; 2 usage, 125 the mixers\n"
    "could not be set up, 126 the command cannot be run, 127 there is no such command.\n";

struct Options {
  std::vector<trxsim::UnitKind> units;
  bool usbip = false;
  std::string wireLog;
  std::string control;
  std::vector<std::string> command;
};

/// The dynamic linker only warns when it cannot preload a library, and the command would see the
/// real bus of the machine.
void RequirePreloadable(const std::string &library, const char *package) {
  void *handle = dlopen(library.c_str(), RTLD_LAZY | RTLD_LOCAL);
  if (handle == nullptr) {
    throw std::runtime_error("no command could see the mixers: " + std::string(dlerror()) +
                             "; it comes with " + package);
  }
  dlclose(handle);
}

trxsim::WireLog::Sink OpenWireLog(const std::string &path) {
  if (path.empty()) return {};
  const auto file = std::make_shared<std::ofstream>(path);
  if (!*file) throw std::runtime_error("cannot write the wire log " + path);
  return [file](const std::string &line) { *file << line << std::endl; };
}

trxsim::ControlSocket OpenControl(const std::string &path) {
  return path.empty() ? trxsim::ControlSocket::AtDefaultPlace() : trxsim::ControlSocket::At(path);
}

/// Sockets below a long temporary folder cannot be bound.
void KeepTemporaryFolderShort() {
  const char *folder = std::getenv("TMPDIR");
  if (folder != nullptr && std::string(folder).size() > kLongestTemporaryFolder) {
    setenv("TMPDIR", "/tmp", 1);
  }
}

/// Connects the hosts of a front end to the desk while it exists.
class Wiring {
 public:
  Wiring(trxsim::RequestGate &requests, trxsim::Desk &desk) : requests_(requests) {
    requests_.Open(desk);
  }
  ~Wiring() { requests_.Close(); }
  Wiring(const Wiring &) = delete;
  Wiring &operator=(const Wiring &) = delete;

 private:
  trxsim::RequestGate &requests_;
};

/// Without a command: until a signal asks for the end.
int KeepPluggedIn(std::size_t units) {
  std::printf("trx-mixer-sim: units plugged in: %zu; Ctrl-C unplugs them\n", units);
  std::fflush(stdout);
  trxsim::WaitForEnd();
  return 0;
}

/// Plugs the units in and runs the command with `additions` in its environment.
template <typename FrontEnd>
int Simulate(const Options &options, const trxsim::ControlSocket &control, FrontEnd &frontEnd,
             const trxsim::Environment &additions) {
  trxsim::Desk desk(frontEnd, OpenWireLog(options.wireLog));
  const Wiring wiring(frontEnd.Requests(), desk);
  for (const trxsim::UnitKind &kind : options.units) desk.Plug(kind);
  trxsim::CommandInterpreter interpreter(desk, additions);
  const trxsim::ControlServer server(control.Listener(), interpreter);
  if (options.command.empty()) return KeepPluggedIn(options.units.size());
  return trxsim::RunCommand(options.command, trxsim::EnvironmentWith(additions));
}

/// For the command and the programs that it starts.
int SimulateForCommand(const Options &options, const trxsim::ControlSocket &control) {
  RequirePreloadable(trxsim::GuardPath(), "trx-mixer-sim");
  RequirePreloadable(trxsim::kPreload, "the package libumockdev0");
  KeepTemporaryFolderShort();
  trxsim::UmockdevFrontEnd frontEnd;
  const trxsim::Environment additions =
      trxsim::SimulatedEnvironment(frontEnd.RootFolder(), control.Path());
  return Simulate(options, control, frontEnd, additions);
}

/// For every program, through the running kernel.
int SimulateForMachine(const Options &options, const trxsim::ControlSocket &control) {
  trxsim::UsbipFrontEnd frontEnd;
  return Simulate(options, control, frontEnd, {trxsim::ControlEntry(control.Path())});
}

int Simulate(const Options &options) {
  const trxsim::ControlSocket control = OpenControl(options.control);
  if (control.IsPrivate()) {
    std::fprintf(
        stderr,
        "trx-mixer-sim: another simulator has the usual control socket; this one listens at %s\n",
        control.Path().c_str());
  }
  return options.usbip ? SimulateForMachine(options, control)
                       : SimulateForCommand(options, control);
}

std::string UnitsHelp() {
  return "what is plugged in at the start: how many TRX-SELVA mixers, or a list of kinds such as "
         "TRX-SELVA,TRX-VOLT. A kind is a mixer model (" +
         trxsim::ModelNames() +
         ") or VENDOR:PRODUCT for another USB device; the mixers' maker is " +
         trxsim::MakerIdText();
}

/// What is wrong with the value of --units; empty when nothing is.
std::string UnitsError(const std::string &units) {
  try {
    trxsim::ParseUnits(units);
    return {};
  } catch (const trxsim::CommandError &error) {
    return error.what();
  }
}

int Run(int argc, char **argv) {
  CLI::App app(
      "Run a command with software mixers plugged in. It needs neither hardware nor privileges. "
      "With --usbip, every program on the machine sees the mixers; that needs root.",
      "trx-mixer-sim");
  app.formatter(
      std::make_shared<trxsim::UsageFormatter>("trx-mixer-sim [OPTIONS] -- COMMAND [ARGUMENT...]"));
  app.footer(kExamples);
  app.prefix_command();
  Options options;
  std::string units = "1";
  app.add_option("--units", units, UnitsHelp())
      ->type_name("COUNT|KIND,...")
      ->check(UnitsError)
      ->capture_default_str();
  app.add_flag("--usbip", options.usbip,
               "plug the mixers into the running kernel; needs root and the kernel module "
               "vhci-hcd, but no command");
  app.add_option("--wire-log", options.wireLog, "write a line for each request to this file")
      ->type_name("FILE");
  app.add_option("--control", options.control, "socket to listen at for trx-mixer-ctl")
      ->type_name("SOCKET");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return app.exit(error) == 0 ? 0 : kUsage;
  }
  options.units = trxsim::ParseUnits(units);
  options.command = app.remaining();
  if (!options.command.empty() && options.command[0] == "--") {
    options.command.erase(options.command.begin());
  }
  if (options.command.empty() && !options.usbip) {
    std::fprintf(stderr,
                 "trx-mixer-sim: no command given. For a shell with two mixers: trx-mixer-sim "
                 "--units 2 -- bash\n`trx-mixer-sim --help` shows more.\n");
    return kUsage;
  }
  return Simulate(options);
}

}  // namespace

int main(int argc, char **argv) {
  trxsim::BlockSignals();
  try {
    return Run(argc, argv);
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "trx-mixer-sim: %s\n", failure.what());
    return kSimulatorFailed;
  }
}
