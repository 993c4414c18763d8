// The rig over GNUstep and the double of IOKit. Each case has its own user. Foundation reads the
// user while it is loaded, so the program starts itself again for each case.
#include "../simulated/CaseRunner.h"
#include "PrivateUser.h"

int main(int argc, char **argv) {
  if (trxtest::IsInCase() && !trxtest::IsPrivateUsers()) {
    const trxtest::PrivateUser user;
    return trxtest::RunAgain(argv);
  }
  return trxtest::RunCases(argc, argv, {});
}
