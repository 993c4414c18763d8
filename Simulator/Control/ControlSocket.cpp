#include "ControlSocket.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ControlAddress.h"

namespace trxsim {

namespace {

[[noreturn]] void Fail(const std::string &path) {
  throw ControlSocketError("cannot make the control socket " + path + ": " + std::strerror(errno));
}

std::string FolderOf(const std::string &path) {
  const std::string folder = std::filesystem::path(path).parent_path();
  return folder.empty() ? "." : folder;
}

void RemoveDeadSocket(const std::string &path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) return;
  if (!S_ISSOCK(status.st_mode)) throw ControlSocketError(path + " exists and is not a socket");
  if (ConnectUnixSocket(path) || errno != ECONNREFUSED) {
    throw ControlSocketError("another simulator listens at " + path);
  }
  unlink(path.c_str());
}

// A simulator holds the lock for some microseconds. In a shared folder any user can hold it for as
// long as they like; after a second the holder cannot be a simulator, and no lock is needed.
void WaitForLock(const Descriptor &folder) {
  constexpr std::chrono::milliseconds kPause(10);
  constexpr int kTries = 100;
  for (int tried = 0; tried < kTries; ++tried) {
    if (flock(folder.Get(), LOCK_EX | LOCK_NB) == 0) return;
    std::this_thread::sleep_for(kPause);
  }
}

// Of two simulators that start at once, the second must not remove the socket of the first. The
// lock on the folder orders them and leaves no file behind.
Descriptor Claim(const std::string &path) {
  const Descriptor folder(open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder) Fail(path);
  WaitForLock(folder);
  RemoveDeadSocket(path);
  Descriptor listener = ListenUnixSocket(path);
  if (!listener) Fail(path);
  return listener;
}

// Makes `folder` for this user alone. Under /tmp another user may have made it before.
void MakeOwnFolder(const std::string &folder) {
  if (mkdir(folder.c_str(), 0700) == 0 || IsOwnFolder(folder)) return;
  throw ControlSocketError(folder + " is not a folder of this user alone");
}

}  // namespace

ControlSocket::ControlSocket(std::string path, std::string ownFolder, bool isPrivate)
    : path_(std::move(path)),
      ownFolder_(std::move(ownFolder)),
      isPrivate_(isPrivate),
      listener_(Claim(path_)) {}

ControlSocket::~ControlSocket() {
  unlink(path_.c_str());
  if (!ownFolder_.empty()) rmdir(ownFolder_.c_str());
}

Descriptor ControlSocket::Listener() const {
  Descriptor copy(fcntl(listener_.Get(), F_DUPFD_CLOEXEC, 0));
  if (!copy) Fail(path_);
  return copy;
}

ControlSocket ControlSocket::At(const std::string &path) {
  return ControlSocket(std::filesystem::absolute(path), {}, false);
}

ControlSocket ControlSocket::AtDefaultPlace() {
  const ControlPlace place = DefaultControlPlace();
  try {
    if (place.makesFolder) MakeOwnFolder(place.folder);
    return ControlSocket(place.socket, place.makesFolder ? place.folder : "", false);
  } catch (const ControlSocketError &) {
    char own[] = "/tmp/trx-mixer-sim-XXXXXX";
    if (mkdtemp(own) == nullptr) Fail(own);
    return ControlSocket(std::string(own) + "/control.sock", own, true);
  }
}

}  // namespace trxsim
