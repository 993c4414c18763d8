// The rig over GNUstep and the double of IOKit. A case runs as a user of its own: Foundation learns
// whose a process is while it is loaded, so the program starts itself once more for that.
#include "../simulated/CaseRunner.h"
#include "PrivateUser.h"

int main(int argc, char **argv) {
  if (trxtest::IsInCase() && !trxtest::IsPrivateUsers()) {
    const trxtest::PrivateUser user;
    return trxtest::RunAgain(argv);
  }
  return trxtest::RunCases(argc, argv, {});
}
