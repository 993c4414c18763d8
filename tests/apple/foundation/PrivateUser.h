// A user whom Foundation takes for the one at the computer: with a Library folder, defaults and
// message ports of its own.
#pragma once

#include <string>

namespace trxtest {

/// Makes the folder of a new user, and makes each process that is started from now on that user's.
/// A process learns whose it is while it is loaded, so it cannot become another's. Removes the
/// folder at the end.
class PrivateUser {
 public:
  PrivateUser();
  PrivateUser(const PrivateUser &) = delete;
  PrivateUser &operator=(const PrivateUser &) = delete;
  ~PrivateUser();

 private:
  std::string folder_;
};

/// Whether this process is a private user's.
bool IsPrivateUsers();

/// Where things lie for the private user of this process.
std::string LibraryFolderOfUser();
std::string PortsFolderOfUser();
/// Where fixed paths of the system lead to, see bridge/SystemRoot.h.
std::string SystemRootOfUser();

/// Runs this program again as a process of its own, with the same arguments, and returns what that
/// returns.
int RunAgain(char **arguments);

}  // namespace trxtest
