#include "ControlAddress.h"

#include <cstdlib>

#include <sys/stat.h>
#include <unistd.h>

namespace trxsim {

namespace {

const char *Variable(const char *name) {
  const char *value = std::getenv(name);
  return value != nullptr && *value != '\0' ? value : nullptr;
}

bool Exists(const std::string &path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

}  // namespace

ControlPlace DefaultControlPlace() {
  // By the rules of XDG a relative path counts as none.
  const char *runtimeFolder = Variable("XDG_RUNTIME_DIR");
  if (runtimeFolder != nullptr && *runtimeFolder == '/') {
    return {runtimeFolder, std::string(runtimeFolder) + "/trx-mixer-sim.sock", false};
  }
  const std::string folder = "/tmp/trx-mixer-sim-" + std::to_string(getuid());
  return {folder, folder + "/control.sock", true};
}

bool IsOwnFolder(const std::string &folder) {
  struct stat status {};
  return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == getuid() && (status.st_mode & 0077) == 0;
}

std::string ClientControlSocket() {
  const char *given = Variable(kControlVariable);
  if (given != nullptr) return given;
  const ControlPlace place = DefaultControlPlace();
  if (place.makesFolder && Exists(place.folder) && !IsOwnFolder(place.folder)) {
    throw SimulatorNotTrusted(place.folder + " is not a folder of this user alone");
  }
  return place.socket;
}

}  // namespace trxsim
