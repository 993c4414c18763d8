#include "ControlAddress.h"

#include <cstdlib>

#include <unistd.h>

namespace trxsim {

namespace {

const char *Variable(const char *name) {
  const char *value = std::getenv(name);
  return value != nullptr && *value != '\0' ? value : nullptr;
}

}  // namespace

ControlPlace DefaultControlPlace() {
  // The base directory rules of desktop Linux have relative paths ignored.
  const char *runtimeFolder = Variable("XDG_RUNTIME_DIR");
  if (runtimeFolder != nullptr && *runtimeFolder == '/') {
    return {runtimeFolder, std::string(runtimeFolder) + "/trx-mixer-sim.sock", false};
  }
  const std::string folder = "/tmp/trx-mixer-sim-" + std::to_string(getuid());
  return {folder, folder + "/control.sock", true};
}

std::string ClientControlSocket() {
  const char *given = Variable(kControlVariable);
  return given != nullptr ? given : DefaultControlPlace().socket;
}

}  // namespace trxsim
