// Prints whether the system runs this program with more rights than its user, how it maps a fixed
// path, and where the user's files are.
#include <cstdio>

#include <sys/auxv.h>
#include <unistd.h>

#include "Folders.h"
#include "SystemPath.h"

int main() {
  std::printf("%s %s %s", getauxval(AT_SECURE) != 0 ? "privileged" : "ordinary",
              orv::SystemPath("/Library/file").c_str(),
              orv::LibraryFolder().value_or("none").c_str());
  std::fflush(stdout);
  // Ends here: a leak checker would try to inspect the process, which the system refuses when it
  // has more rights than its user.
  _exit(0);
}
