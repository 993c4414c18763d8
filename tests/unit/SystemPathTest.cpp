#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "Environment.h"
#include "PrivilegedProbe.h"
#include "SystemPath.h"

namespace orv {
namespace {

using testing::StartsWith;
using trxtest::OutputOf;
using trxtest::PrivilegedProbe;

const std::string kBuiltIn = INSTALLED_SYSTEM_ROOT "/Library/file";

TEST(SystemPathTest, ASystemPathLiesUnderTheRootThatTheEnvironmentNames) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/some/where"}};
  EXPECT_EQ(SystemPath("/Library/file"), "/some/where/Library/file");
}

TEST(SystemPathTest, ASystemPathLiesUnderTheInstallationsDataFolderOtherwise) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", std::nullopt}};
  EXPECT_EQ(SystemPath("/Library/file"), kBuiltIn);
}

TEST(SystemPathTest, ASystemPathFollowsAChangeOfTheEnvironmentAtOnce) {
  const Environment first = {{"TRX_SYSTEM_ROOT", "/first"}};
  EXPECT_EQ(SystemPath("/x"), "/first/x");
  const Environment second = {{"TRX_SYSTEM_ROOT", "/second"}};
  EXPECT_EQ(SystemPath("/x"), "/second/x");
}

TEST(SystemPathTest, ASystemPathKeepsBlanksAndPercentSignsOfRootAndPath) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/a b/100%s"}};
  EXPECT_EQ(SystemPath("/TRX-SELVA Setup.app/%@"), "/a b/100%s/TRX-SELVA Setup.app/%@");
}

TEST(SystemPathTest, ASystemPathOfAnOrdinaryProcessFollowsTheEnvironmentOfItsParent) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/foreign"}};
  EXPECT_THAT(OutputOf(PRIVILEGE_PROBE), StartsWith("ordinary /foreign/Library/file "));
}

TEST(SystemPathTest, IgnoresTheEnvironmentInAProcessWithMoreRightsThanItsUser) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/foreign"}};
  const PrivilegedProbe probe;
  // Root, and so every automatic run, can always test this; an account with one group cannot.
  if (!probe.IsPrivileged() && geteuid() != 0) {
    GTEST_SKIP() << "this account cannot give a program other rights";
  }
  ASSERT_TRUE(probe.IsPrivileged());
  const std::string output = OutputOf(probe.Path());
  EXPECT_THAT(output, StartsWith("privileged " + kBuiltIn + " "))
      << "a build folder that is mounted nosuid?";
}

}  // namespace
}  // namespace orv
