#include "Surroundings.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <unistd.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "support/RemovalAtTheEnd.h"

namespace trxfuzz {
namespace {

// On a disk, making each write durable is slow.
std::string MakeTemporaryFolder() {
  std::string path = access("/dev/shm", W_OK | X_OK) == 0 ? "/dev/shm" : "/tmp";
  path += "/trx-fuzz-XXXXXX";
  if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder");
  return path;
}

void RefuseMixers() {
  if (ORV_IsUSBConnection(ORV_PRODUCT_TRX_SELVA) == ORV_NOT_CONNECTED) return;
  std::fputs("A mixer is connected, and this would change its settings: unplug it first.\n",
             stderr);
  std::exit(EXIT_FAILURE);
}

}  // namespace

std::string MakeSurroundings() {
  RefuseMixers();
  const std::string folder = MakeTemporaryFolder();
  trxtest::RemoveAtTheEnd(folder);
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + folder + "/no-bus").c_str(), 1);
  std::string library = folder + "/orvikaudio/Preferences";
  std::filesystem::create_directories(library);
  return library;
}

}  // namespace trxfuzz
