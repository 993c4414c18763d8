// Prints whether the system runs this program with more rights than its user, how it maps a fixed
// path, and where the user's files are. With a path, stores a file there.
#include <cstdio>
#include <string>

#include <sys/auxv.h>
#include <unistd.h>

#include "FileReplacement.h"
#include "Folders.h"
#include "SystemPath.h"

int main(int count, char **arguments) {
  std::printf("%s %s %s", getauxval(AT_SECURE) != 0 ? "privileged" : "ordinary",
              orv::SystemPath("/Library/file").c_str(),
              orv::LibraryFolder().value_or("none").c_str());
  if (count > 1) {
    orv::ChangeFileContents(arguments[1], 100, [](const auto &) { return std::string("stored"); });
  }
  std::fflush(stdout);
  // Ends here: a leak checker would try to inspect the process, which the system refuses when it
  // has more rights than its user.
  _exit(0);
}
