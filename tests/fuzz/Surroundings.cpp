#include "Surroundings.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <fcntl.h>
#include <unistd.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxfuzz {
namespace {

// A disk would take its time to make each write durable.
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

// The watcher has only the reading end of a pipe: it comes to its end with the last writer, this
// process.
void RemoveAtTheEnd(const std::string &folder) {
  std::array<int, 2> ends = {};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  if (fork() != 0) {
    close(ends[0]);
    return;
  }
  setsid();
  close(ends[1]);
  char never = '\0';
  while (read(ends[0], &never, 1) > 0) {
  }
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  _exit(EXIT_SUCCESS);
}

std::string MakeSurroundings() {
  RefuseMixers();
  const std::string folder = MakeTemporaryFolder();
  RemoveAtTheEnd(folder);
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + folder + "/no-bus").c_str(), 1);
  std::string library = folder + "/orvikaudio/Preferences";
  std::filesystem::create_directories(library);
  return library;
}

}  // namespace trxfuzz
