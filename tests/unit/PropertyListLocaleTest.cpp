// A host whose locale has a decimal comma keeps its locale, and files keep their values.
#include <clocale>
#include <cstdlib>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <locale.h>

#include "ChildProcess.h"
#include "PropertyList.h"
#include "PropertyListFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::Optional;
using trxtest::ExpectQuietSuccess;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

// A private locale, so that none must be installed. All its other parts are those of C.
class PropertyListInAHostWithADecimalComma : public testing::Test {
 protected:
  void SetUp() override {
    WriteBytes(folder_ / "source",
               "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\n"
               "END LC_NUMERIC\n");
    const std::string command = "'" LOCALEDEF "' -c -i '" + (folder_ / "source") + "' '" +
                                (folder_ / "comma") + "' >/dev/null 2>&1";
    // It warns about the missing parts and exits with an error.
    [[maybe_unused]] const int complaint = std::system(command.c_str());
    setenv("LOCPATH", folder_.Path().c_str(), 1);
  }
  void TearDown() override { unsetenv("LOCPATH"); }

  void ExpectRealsToSurvive() const {
    ASSERT_STREQ(localeconv()->decimal_point, ",");
    const std::string path = folder_ / "settings.plist";
    WriteBytes(path, XmlList("<key>a</key><real>0.1</real><key>b</key><real>-2.5</real>"
                             "<key>c</key><real>1234567.75</real>"));
    const auto list = PropertyList::ReadFile(path);
    ASSERT_TRUE(list);
    EXPECT_THAT(list->IntegerForKey("c"), Optional(1234567));
    ASSERT_TRUE(SetMaxLevel(path, 1));
    EXPECT_THAT(ShownEntries(path), ElementsAre("MaxLevel: integer 1", "a: real 0.1",
                                                "b: real -2.5", "c: real 1234567.75"));
    EXPECT_STREQ(localeconv()->decimal_point, ",");
  }

  const TemporaryFolder folder_;
};

TEST_F(PropertyListInAHostWithADecimalComma, RealsKeepTheirValueInTheProcessLocale) {
  ExpectQuietSuccess([this] {
    ASSERT_NE(setlocale(LC_ALL, "comma"), nullptr);
    ExpectRealsToSurvive();
    EXPECT_EQ(uselocale(nullptr), LC_GLOBAL_LOCALE);
  });
}

TEST_F(PropertyListInAHostWithADecimalComma, RealsKeepTheirValueInALocaleOfTheThread) {
  ExpectQuietSuccess([this] {
    const locale_t comma = newlocale(LC_NUMERIC_MASK, "comma", nullptr);
    ASSERT_NE(comma, nullptr);
    uselocale(comma);
    ExpectRealsToSurvive();
    EXPECT_EQ(uselocale(nullptr), comma);
  });
}

}  // namespace
}  // namespace orv
