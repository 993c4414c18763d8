#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Environment.h"
#include "SystemPath.h"

namespace orv {
namespace {

const std::string kBuiltIn = INSTALLED_SYSTEM_ROOT "/Library/file";

TEST(SystemPathTest, LiesUnderTheRootThatTheEnvironmentNames) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/some/where"}};
  EXPECT_EQ(SystemPath("/Library/file"), "/some/where/Library/file");
}

TEST(SystemPathTest, LiesUnderTheInstallationsDataFolderOtherwise) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", std::nullopt}};
  EXPECT_EQ(SystemPath("/Library/file"), kBuiltIn);
}

TEST(SystemPathTest, FollowsAChangeOfTheEnvironmentAtOnce) {
  const Environment first = {{"TRX_SYSTEM_ROOT", "/first"}};
  EXPECT_EQ(SystemPath("/x"), "/first/x");
  const Environment second = {{"TRX_SYSTEM_ROOT", "/second"}};
  EXPECT_EQ(SystemPath("/x"), "/second/x");
}

TEST(SystemPathTest, KeepsBlanksAndPercentSignsOfRootAndPath) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/a b/100%s"}};
  EXPECT_EQ(SystemPath("/TRX-SELVA Setup.app/%@"), "/a b/100%s/TRX-SELVA Setup.app/%@");
}

std::string OutputOf(const std::string &program) {
  const auto close = [](FILE *stream) { return pclose(stream); };
  const std::unique_ptr<FILE, decltype(close)> stream(popen(("'" + program + "'").c_str(), "r"),
                                                      close);
  if (stream == nullptr) return "cannot be run";
  std::string output;
  std::array<char, 512> part = {};
  while (const std::size_t size = fread(part.data(), 1, part.size(), stream.get())) {
    output.append(part.data(), size);
  }
  return output;
}

// A copy of the probe that runs with rights that the user of this test does not have: those of
// another account for root, of another of their groups for anyone else.
class PrivilegedProbe {
 public:
  PrivilegedProbe() : path_(SYSTEM_PATH_PROBE "-" + std::to_string(getpid())) {
    std::filesystem::copy_file(SYSTEM_PATH_PROBE, path_);
    if (geteuid() == 0) {
      constexpr uid_t kNobody = 65534;
      isPrivileged_ = chown(path_.c_str(), kNobody, kNobody) == 0 && Mark(S_ISUID);
    } else if (const auto group = AnotherGroup()) {
      isPrivileged_ = chown(path_.c_str(), static_cast<uid_t>(-1), *group) == 0 && Mark(S_ISGID);
    }
  }
  PrivilegedProbe(const PrivilegedProbe &) = delete;
  PrivilegedProbe &operator=(const PrivilegedProbe &) = delete;
  ~PrivilegedProbe() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }

  bool IsPrivileged() const { return isPrivileged_; }
  const std::string &Path() const { return path_; }

 private:
  bool Mark(mode_t bit) { return chmod(path_.c_str(), bit | 0755) == 0; }

  static std::optional<gid_t> AnotherGroup() {
    std::vector<gid_t> groups(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
    const int count = getgroups(static_cast<int>(groups.size()), groups.data());
    for (int i = 0; i < count; ++i) {
      if (groups[static_cast<std::size_t>(i)] != getgid()) {
        return groups[static_cast<std::size_t>(i)];
      }
    }
    return std::nullopt;
  }

  std::string path_;
  bool isPrivileged_ = false;
};

TEST(SystemPathTest, OfAnOrdinaryProcessFollowsTheEnvironmentOfItsParent) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/foreign"}};
  EXPECT_EQ(OutputOf(SYSTEM_PATH_PROBE), "ordinary /foreign/Library/file");
}

TEST(SystemPathTest, IgnoresTheEnvironmentInAProcessWithMoreRightsThanItsUser) {
  const Environment environment = {{"TRX_SYSTEM_ROOT", "/foreign"}};
  const PrivilegedProbe probe;
  // Root, and with it every automatic run, can always try this; an account with one group cannot.
  if (!probe.IsPrivileged() && geteuid() != 0) {
    GTEST_SKIP() << "this account cannot give a program other rights";
  }
  ASSERT_TRUE(probe.IsPrivileged());
  const std::string output = OutputOf(probe.Path());
  EXPECT_EQ(output, "privileged " + kBuiltIn) << "a build folder that is mounted nosuid?";
}

}  // namespace
}  // namespace orv
