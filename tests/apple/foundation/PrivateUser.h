// A private user for Foundation, with a Library folder, defaults and message ports.
#pragma once

#include <string>

namespace trxtest {

/// Makes the folder of a new user; processes started from now on belong to that user. A process
/// reads its user while it is loaded and cannot change it. Removes the folder at the end.
class PrivateUser {
 public:
  PrivateUser();
  PrivateUser(const PrivateUser &) = delete;
  PrivateUser &operator=(const PrivateUser &) = delete;
  ~PrivateUser();

 private:
  std::string folder_;
};

/// Whether this process belongs to a private user.
bool IsPrivateUsers();

/// The folders of this process's private user.
std::string LibraryFolderOfUser();
std::string PortsFolderOfUser();
/// The folder for the fixed paths of the system, see bridge/SystemRoot.h.
std::string SystemRootOfUser();

/// Runs this program again in a new process, with the same arguments, and returns its exit code.
int RunAgain(char **arguments);

}  // namespace trxtest
