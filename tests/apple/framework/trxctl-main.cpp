// trxctl as on macOS, with what this machine lacks: devices for the double of IOKit, launchd's
// events, and time for the announcements of a process that ends at once.
#include <cstdlib>

#include <CommandLine.h>
#include <IOKitDouble.h>

#include "PlugEvent.h"
#include "RegistryProtocol.h"
#include "RemoteDevices.h"
#include "RunLoopTurn.h"

namespace client {

std::optional<std::string> ProductOfPlugEvent() {
  const char *const product = std::getenv("PRODUCT_OF_PLUG_EVENT");
  if (product == nullptr) return std::nullopt;
  return product;
}

}  // namespace client

int main(int argc, char **argv) {
  const char *const registry = std::getenv(trxtest::kRegistryVariable);
  if (registry == nullptr) return 125;
  trxtest::RemoteDevices devices(registry);
  trxtest::IOKitDouble::Show(&devices);
  const int code = trxctl::RunCommandLine(argc, argv);
  trxtest::PassThroughDaemon();
  return code;
}
