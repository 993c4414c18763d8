#include "ControlSocket.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ControlAddress.h"

namespace trxsim {

namespace {

[[noreturn]] void fail(const std::string &path) {
  throw ControlSocketError("cannot make the control socket " + path + ": " + std::strerror(errno));
}

std::string folderOf(const std::string &path) {
  const std::string folder = std::filesystem::path(path).parent_path();
  return folder.empty() ? "." : folder;
}

void removeDeadSocket(const std::string &path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) return;
  if (!S_ISSOCK(status.st_mode)) throw ControlSocketError(path + " is there and is not a socket");
  if (connectUnixSocket(path) || errno != ECONNREFUSED) {
    throw ControlSocketError("another simulator listens at " + path);
  }
  unlink(path.c_str());
}

// Two simulators that start at once must not take the same file for a dead one; the lock on the
// folder orders them and leaves nothing behind.
Descriptor claim(const std::string &path) {
  const Descriptor folder(open(folderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder || flock(folder.get(), LOCK_EX) != 0) fail(path);
  removeDeadSocket(path);
  Descriptor listener = listenUnixSocket(path);
  if (!listener) fail(path);
  return listener;
}

// Makes `folder` for this user alone. Under /tmp anybody may have made it, so an existing one is
// looked at.
void makeOwnFolder(const std::string &folder) {
  if (mkdir(folder.c_str(), 0700) == 0) return;
  struct stat status {};
  const bool isOwn = errno == EEXIST && lstat(folder.c_str(), &status) == 0 &&
                     S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
                     (status.st_mode & 0077) == 0;
  if (!isOwn) throw ControlSocketError(folder + " is not a folder of yours alone");
}

}  // namespace

ControlSocket::ControlSocket(std::string path, std::string ownFolder, bool isPrivate)
    : path_(std::move(path)),
      ownFolder_(std::move(ownFolder)),
      isPrivate_(isPrivate),
      listener_(claim(path_)) {}

ControlSocket::~ControlSocket() {
  unlink(path_.c_str());
  if (!ownFolder_.empty()) rmdir(ownFolder_.c_str());
}

Descriptor ControlSocket::listener() const {
  Descriptor copy(fcntl(listener_.get(), F_DUPFD_CLOEXEC, 0));
  if (!copy) fail(path_);
  return copy;
}

ControlSocket ControlSocket::at(const std::string &path) {
  return ControlSocket(std::filesystem::absolute(path), {}, false);
}

ControlSocket ControlSocket::atDefaultPlace() {
  const ControlPlace place = defaultControlPlace();
  try {
    if (place.makesFolder) makeOwnFolder(place.folder);
    return ControlSocket(place.socket, place.makesFolder ? place.folder : "", false);
  } catch (const ControlSocketError &) {
    char own[] = "/tmp/trx-mixer-sim-XXXXXX";
    if (mkdtemp(own) == nullptr) fail(own);
    return ControlSocket(std::string(own) + "/control.sock", own, true);
  }
}

}  // namespace trxsim
