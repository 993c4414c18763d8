// Where the udev rule is looked for.
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "client/Linux/UdevRule.h"

namespace client {
namespace {

namespace fs = std::filesystem;

TEST(UdevRule, ARuleIsFoundInEachFolderThatHasIt) {
  std::string pattern = (fs::temp_directory_path() / "udev-rule-XXXXXX").string();
  const std::string folder = mkdtemp(pattern.data());
  const std::string with = folder + "/with";
  const std::string without = folder + "/without";
  fs::create_directory(with);
  std::ofstream(with + "/70-trx-selva.rules") << "# a rule\n";
  const std::vector<std::string_view> folders{without, with, folder};
  EXPECT_EQ(FoldersWithRule(folders), std::vector<std::string>{with});
  fs::remove_all(folder);
}

TEST(UdevRule, ARuleIsLookedForWhereUdevReadsRules) {
  const auto folders = UdevRuleFolders();
  EXPECT_EQ((std::vector<std::string_view>(folders.begin(), folders.end())),
            (std::vector<std::string_view>{"/etc/udev/rules.d", "/run/udev/rules.d",
                                           "/usr/local/lib/udev/rules.d", "/usr/lib/udev/rules.d",
                                           "/lib/udev/rules.d"}));
}

}  // namespace
}  // namespace client
