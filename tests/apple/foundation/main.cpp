#include <gtest/gtest.h>

#include "PrivateUser.h"

int main(int argumentCount, char **arguments) {
  if (!trxtest::IsPrivateUsers()) {
    const trxtest::PrivateUser user;
    return trxtest::RunAgain(arguments);
  }
  testing::InitGoogleTest(&argumentCount, arguments);
  return RUN_ALL_TESTS();
}
