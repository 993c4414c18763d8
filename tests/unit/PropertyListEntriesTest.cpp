// Entries of other programs: whatever their type, they survive a write of the library.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PropertyList.h"
#include "PropertyListFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

// The entries that an independent reader finds after the library has set "MaxLevel".
std::vector<std::string> AfterSettingMaxLevel(const std::string &contents) {
  const TemporaryFolder folder;
  const std::string path = folder / "settings.plist";
  WriteBytes(path, contents);
  if (!PropertyList::ReadFile(path)) return {"not read"};
  if (!SetMaxLevel(path, 1)) return {"not written"};
  return ShownEntries(path);
}

// The file that the library writes for a binary list with these keys and values.
std::vector<std::string> AfterSettingMaxLevel(BinaryList &list,
                                              const std::vector<BinaryList::Reference> &entries) {
  return AfterSettingMaxLevel(list.File(list.AddDictionary(entries)));
}

TEST(PropertyListEntries, TextsFromXmlSurvive) {
  EXPECT_THAT(
      AfterSettingMaxLevel(
          XmlList("<key>accents</key><string>Größe \u4F60\u597D \U0001F39B</string>"
                  "<key>cdata</key><string><![CDATA[</dict><array> & so]]></string>"
                  "<key>character</key><string>&#228;&#x1F39B;</string>"
                  "<key>emptied</key><string/>"
                  "<key>empty</key><string></string>"
                  "<key>entities</key><string>&lt;a&gt; &amp;amp; &quot;b&quot; &apos;</string>"
                  "<key>white</key><string>  two\tand\n </string>"
                  "<key>k &amp; &lt;y&gt;</key><string>key</string>"
                  "<key>\u00FC</key><string>key too</string>")),
      ElementsAre("MaxLevel: integer 1", R"(accents: text 'Gr\xf6\xdfe \u4f60\u597d \U0001f39b')",
                  "cdata: text '</dict><array> & so'", R"(character: text '\xe4\U0001f39b')",
                  "emptied: text ''", "empty: text ''", R"(entities: text '<a> &amp; "b" \'')",
                  "k & <y>: text 'key'", R"(white: text '  two\tand\n ')",
                  R"(\xfc: text 'key too')"));
}

TEST(PropertyListEntries, TextsFromBinarySurvive) {
  BinaryList list;
  const auto accents = list.AddText("accents");
  const auto accentsText = list.Add("\x63" + std::string("\x00\xDF\x4F\x60\x00 ", 6));
  const auto beyond = list.AddText("beyond");
  const auto beyondText = list.Add("\x62\xD8\x3C\xDF\x9B");
  const auto empty = list.AddText("empty");
  const auto emptyText = list.AddText("");
  const auto entities = list.AddText("entities");
  const auto entitiesText = list.AddText("<a> &amp; \"b\"");
  const auto umlaut = list.Add("\x61" + std::string("\x00\xFC", 2));
  const auto longText = list.AddText("a text of more than fourteen characters");
  EXPECT_THAT(AfterSettingMaxLevel(list, {accents, accentsText, beyond, beyondText, empty,
                                          emptyText, entities, entitiesText, umlaut, longText}),
              ElementsAre("MaxLevel: integer 1", R"(accents: text '\xdf\u4f60 ')",
                          R"(beyond: text '\U0001f39b')", "empty: text ''",
                          R"(entities: text '<a> &amp; "b"')",
                          R"(\xfc: text 'a text of more than fourteen characters')"));
}

TEST(PropertyListEntries, IntegersFromXmlSurvive) {
  EXPECT_THAT(
      AfterSettingMaxLevel(
          XmlList("<key>a</key><integer>0</integer><key>b</key><integer>-1</integer>"
                  "<key>c</key><integer>4294967296</integer>"
                  "<key>d</key><integer>9223372036854775807</integer>"
                  "<key>e</key><integer>-9223372036854775808</integer>"
                  "<key>f</key><integer>9223372036854775808</integer>"
                  "<key>g</key><integer>18446744073709551615</integer>")),
      ElementsAre("MaxLevel: integer 1", "a: integer 0", "b: integer -1", "c: integer 4294967296",
                  "d: integer 9223372036854775807", "e: integer -9223372036854775808",
                  "f: integer 9223372036854775808", "g: integer 18446744073709551615"));
}

TEST(PropertyListEntries, IntegersFromBinarySurvive) {
  BinaryList list;
  std::vector<BinaryList::Reference> entries;
  const auto add = [&](const char *key, BinaryList::Reference value) {
    entries.push_back(list.AddText(key));
    entries.push_back(value);
  };
  add("a", list.AddInteger(255, 1));
  add("b", list.AddInteger(65535, 2));
  add("c", list.AddInteger(4294967295, 4));
  add("d", list.AddInteger(0xFFFFFFFFFFFFFFFF, 8));
  add("e", list.AddInteger(0x8000000000000000, 8));
  add("f", list.AddInteger(0xFFFFFFFFFFFFFFFF, 16));
  add("g", list.AddInteger(0x8000000000000000, 16));
  EXPECT_THAT(
      AfterSettingMaxLevel(list, entries),
      ElementsAre("MaxLevel: integer 1", "a: integer 255", "b: integer 65535",
                  "c: integer 4294967295", "d: integer -1", "e: integer -9223372036854775808",
                  "f: integer 18446744073709551615", "g: integer 9223372036854775808"));
}

TEST(PropertyListEntries, RealsAndBooleansFromXmlSurvive) {
  EXPECT_THAT(AfterSettingMaxLevel(
                  XmlList("<key>a</key><real>0.1</real><key>b</key><real>1e308</real>"
                          "<key>c</key><real>-2.5</real><key>d</key><real>+infinity</real>"
                          "<key>e</key><real>-infinity</real><key>f</key><real>nan</real>"
                          "<key>g</key><real>3</real><key>h</key><real>0.30000000000000004</real>"
                          "<key>i</key><real>5e-324</real><key>j</key><real>1e-300</real>"
                          "<key>k</key><real>123456789012345680</real>"
                          "<key>l</key><true/><key>m</key><false/>")),
              ElementsAre("MaxLevel: integer 1", "a: real 0.1", "b: real 1e+308", "c: real -2.5",
                          "d: real inf", "e: real -inf", "f: real nan", "g: real 3.0",
                          "h: real 0.30000000000000004", "i: real 5e-324", "j: real 1e-300",
                          "k: real 1.2345678901234568e+17", "l: true", "m: false"));
}

TEST(PropertyListEntries, RealsAndBooleansFromBinarySurvive) {
  BinaryList list;
  std::vector<BinaryList::Reference> entries;
  const auto add = [&](const char *key, const std::string &object) {
    entries.push_back(list.AddText(key));
    entries.push_back(list.Add(object));
  };
  add("a", "\x23" + BigEndianReal(0.1));
  add("b", "\x23" + BigEndianReal(1e308));
  add("c", "\x23" + BigEndianReal(-2.5));
  add("d", std::string("\x23\x7F\xF0\0\0\0\0\0\0", 9));
  add("e", std::string("\x23\xFF\xF0\0\0\0\0\0\0", 9));
  add("f", std::string("\x22\x40\x20\0\0", 5));
  add("g", "\x09");
  add("h", "\x08");
  EXPECT_THAT(AfterSettingMaxLevel(list, entries),
              ElementsAre("MaxLevel: integer 1", "a: real 0.1", "b: real 1e+308", "c: real -2.5",
                          "d: real inf", "e: real -inf", "f: real 2.5", "g: true", "h: false"));
}

TEST(PropertyListEntries, DatesAndDataFromXmlSurvive) {
  EXPECT_THAT(AfterSettingMaxLevel(XmlList("<key>a</key><date>2024-02-29T23:59:59Z</date>"
                                           "<key>b</key><date>1969-12-31T00:00:00Z</date>"
                                           "<key>c</key><date>2100-03-01T12:34:56Z</date>"
                                           "<key>d</key><data></data><key>e</key><data/>"
                                           "<key>f</key><data>AA==</data>"
                                           "<key>g</key><data>\n\tAAEC\n\t/+8=\n\t</data>")),
              ElementsAre("MaxLevel: integer 1", "a: date 2024-02-29T23:59:59",
                          "b: date 1969-12-31T00:00:00", "c: date 2100-03-01T12:34:56",
                          "d: data <>", "e: data <>", "f: data <00>", "g: data <000102ffef>"));
}

TEST(PropertyListEntries, DatesAndDataFromBinarySurvive) {
  BinaryList list;
  std::vector<BinaryList::Reference> entries;
  const auto add = [&](const char *key, const std::string &object) {
    entries.push_back(list.AddText(key));
    entries.push_back(list.Add(object));
  };
  add("a", "\x33" + BigEndianReal(0));
  add("b", "\x33" + BigEndianReal(-86400));
  add("c", "\x40");
  add("d", std::string("\x42\x00\xFF", 3));
  EXPECT_THAT(AfterSettingMaxLevel(list, entries),
              ElementsAre("MaxLevel: integer 1", "a: date 2001-01-01T00:00:00",
                          "b: date 2000-12-31T00:00:00", "c: data <>", "d: data <00ff>"));
}

TEST(PropertyListEntries, ContainersFromXmlSurvive) {
  EXPECT_THAT(
      AfterSettingMaxLevel(XmlList(
          "<key>a</key><array/><key>b</key><dict/><key>c</key><array></array>"
          "<key>d</key><array><integer>2</integer><array><true/><dict><key>x</key><real>0.5</real>"
          "<key>y</key><array><string>z</string></array></dict></array></array>"
          "<key>e</key><dict><key>one</key><integer>1</integer><key>none</key><dict/></dict>")),
      ElementsAre("MaxLevel: integer 1", "a: []", "b: {}", "c: []",
                  "d: [integer 2, [true, {x: real 0.5, y: [text 'z']}]]",
                  "e: {one: integer 1, none: {}}"));
}

TEST(PropertyListEntries, ContainersFromBinarySurvive) {
  BinaryList list;
  const auto a = list.AddText("a");
  const auto b = list.AddText("b");
  const auto c = list.AddText("c");
  const auto d = list.AddText("d");
  const auto two = list.AddInteger(2);
  const auto emptyArray = list.AddArray({});
  const auto emptyDictionary = list.AddDictionary({});
  const auto inner = list.AddDictionary({a, two, b, emptyArray});
  const auto longArray = list.AddArray(std::vector<BinaryList::Reference>(16, two));
  EXPECT_THAT(AfterSettingMaxLevel(list, {a, emptyArray, b, emptyDictionary, c,
                                          list.AddArray({inner, inner}), d, longArray}),
              ElementsAre("MaxLevel: integer 1", "a: []", "b: {}",
                          "c: [{a: integer 2, b: []}, {a: integer 2, b: []}]",
                          "d: [integer 2, integer 2, integer 2, integer 2, integer 2, integer 2, "
                          "integer 2, integer 2, integer 2, integer 2, integer 2, integer 2, "
                          "integer 2, integer 2, integer 2, integer 2]"));
}

TEST(PropertyListEntries, AnArchiverReferenceBecomesItsXmlForm) {
  EXPECT_THAT(AfterSettingMaxLevel(BinaryListOf("\x80\x07")),
              ElementsAre("MaxLevel: integer 1", "a: {CF$UID: integer 7}"));
}

TEST(PropertyListEntries, AHundredLevelsFromXmlSurvive) {
  std::string open;
  std::string close;
  std::string expected = "deep: ";
  for (int level = 0; level < 98; ++level) {
    open += "<array>";
    close += "</array>";
    expected += "[";
  }
  expected += "integer 5" + std::string(98, ']');
  EXPECT_THAT(
      AfterSettingMaxLevel(XmlList("<key>deep</key>" + open + "<integer>5</integer>" + close)),
      ElementsAre("MaxLevel: integer 1", expected));
}

TEST(PropertyListEntries, AHundredLevelsFromBinarySurvive) {
  BinaryList list;
  auto value = list.AddInteger(5);
  std::string expected = "deep: ";
  for (int level = 0; level < 98; ++level) {
    value = list.AddArray({value});
    expected += "[";
  }
  expected += "integer 5" + std::string(98, ']');
  const auto key = list.AddText("deep");
  EXPECT_THAT(AfterSettingMaxLevel(list, {key, value}),
              ElementsAre("MaxLevel: integer 1", expected));
}

TEST(PropertyListEntries, OneSharedObjectServesSeveralKeys) {
  BinaryList list;
  const auto a = list.AddText("a");
  const auto b = list.AddText("b");
  const auto shared = list.AddText("shared");
  EXPECT_THAT(AfterSettingMaxLevel(list, {a, shared, b, shared}),
              ElementsAre("MaxLevel: integer 1", "a: text 'shared'", "b: text 'shared'"));
}

TEST(PropertyListEntries, AnEntryIsReplacedWhateverItsTypeWas) {
  for (const std::string value :
       {"<string>old</string>", "<dict><key>x</key><true/></dict>", "<integer>2</integer>"}) {
    EXPECT_THAT(AfterSettingMaxLevel(XmlList("<key>MaxLevel</key>" + value)),
                ElementsAre("MaxLevel: integer 1"))
        << value;
  }
}

TEST(PropertyListEntries, TimeZoneDoesNotMoveDates) {
  setenv("TZ", "America/New_York", 1);
  EXPECT_THAT(AfterSettingMaxLevel(XmlList("<key>a</key><date>2024-07-01T12:00:00Z</date>")),
              ElementsAre("MaxLevel: integer 1", "a: date 2024-07-01T12:00:00"));
  unsetenv("TZ");
}

}  // namespace
}  // namespace orv
