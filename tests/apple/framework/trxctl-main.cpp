// trxctl as on macOS, with what this machine lacks: devices for the double of IOKit, and time for
// the announcements of a process that ends at once.
#include <cstdlib>

#include <CommandLine.h>
#include <IOKitDouble.h>

#include "RegistryProtocol.h"
#include "RemoteDevices.h"
#include "RunLoopTurn.h"

int main(int argc, char **argv) {
  const char *const registry = std::getenv(trxtest::kRegistryVariable);
  if (registry == nullptr) return 125;
  trxtest::RemoteDevices devices(registry);
  trxtest::IOKitDouble::Show(&devices);
  const int code = trxctl::RunCommandLine(argc, argv);
  trxtest::PassThroughDaemon();
  return code;
}
