// The boost level family: bounds, texts, what goes to the units, what is stored and announced.
#include <limits>

#include "../Acceptance.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class BoostLevel : public Acceptance {};

bool IsServed(ProductId product) {
  return product == 0 || product == 1 || product == 5 || product == 6 || product == 8 ||
         product == 11;
}

const std::vector<std::uint32_t> kIndexesOutOfRange = {
    4, 5, 7, 255, 256, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFC, 0xFFFFFFFF};

TEST_F(BoostLevel, CountIsFourForEveryServedModelAndRefusedForEveryOther) {
  for (const ProductId product : kAllProducts) {
    std::uint32_t count = 77;
    EXPECT_EQ(ORV_GetNumOfBoostLevelIndex(product, &count), IsServed(product) ? 100 : 102)
        << product;
    EXPECT_EQ(count, IsServed(product) ? 4U : 77U) << product;
    EXPECT_EQ(ORV_GetNumOfBoostLevelIndex(product, nullptr), 102) << product;
  }
  ExpectNothingHappened();
}

TEST_F(BoostLevel, TextsRunFromTheLoudestToTheQuietestForEveryServedModel) {
  for (const ProductId product : {0U, 1U, 5U, 6U, 8U, 11U}) {
    for (const std::uint32_t reserved : {0U, 1U, 4U, 0xFFFFFFFFU}) {
      Lines texts;
      for (std::uint32_t index = 0; index < 4; ++index) {
        ORVStringRef text = nullptr;
        ASSERT_EQ(ORV_GetBoostLevelText(product, index, reserved, &text), 100);
        texts.push_back(CharactersOf(text));
      }
      EXPECT_EQ(texts, (Lines{"-5 dB", "-10 dB", "-15 dB", "-19 dB"})) << product << reserved;
    }
  }
}

TEST_F(BoostLevel, TextIsRefusedForOtherModelsOtherIndexesAndANullResult) {
  for (const ProductId product : kAllProducts) {
    std::vector<std::uint32_t> indexes = kIndexesOutOfRange;
    if (!IsServed(product)) indexes.insert(indexes.end(), {0, 1, 2, 3});
    for (const std::uint32_t index : indexes) {
      ORVStringRef text = TextOf("untouched");
      EXPECT_EQ(ORV_GetBoostLevelText(product, index, 0, &text), 102) << product << ' ' << index;
      EXPECT_EQ(CharactersOf(text), "untouched") << product << ' ' << index;
    }
    EXPECT_EQ(ORV_GetBoostLevelText(product, 0, 0, nullptr), 102) << product;
    EXPECT_EQ(ORV_GetBoostLevelText(product, 4, 0, nullptr), 102) << product;
  }
}

TEST_F(BoostLevel, ATextOnceHandedOutStaysTheSame) {
  ORVStringRef first = nullptr;
  ORVStringRef again = nullptr;
  ASSERT_EQ(ORV_GetBoostLevelText(11, 1, 0, &first), 100);
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 2), 100);
  ASSERT_EQ(ORV_GetBoostLevelText(0, 1, 9, &again), 100);
  EXPECT_EQ(first, again);
  EXPECT_EQ(CharactersOf(first), "-10 dB");
}

TEST_F(BoostLevel, SettingIsRefusedForOtherModelsAndIndexesAndNothingIsDone) {
  rig().PlugMixer();
  for (const ProductId product : kAllProducts) {
    std::vector<std::uint32_t> indexes = kIndexesOutOfRange;
    if (!IsServed(product)) indexes.insert(indexes.end(), {0, 1, 2, 3});
    for (const std::uint32_t index : indexes) {
      EXPECT_EQ(ORV_SetBoostLevelIndex(product, index), 102) << product << ' ' << index;
    }
  }
  ExpectNothingHappened();
}

TEST_F(BoostLevel, CurrentLevelIsRefusedForOtherModelsAndANullResult) {
  for (const ProductId product : kAllProducts) {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(product, &index), IsServed(product) ? 100 : 102)
        << product;
    EXPECT_EQ(index, IsServed(product) ? 3 : -77) << product;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(product, nullptr), 102) << product;
  }
  ExpectNothingHappened();
}

TEST_F(BoostLevel, SendingAgainIsRefusedForOtherModelsAndNothingIsDone) {
  rig().PlugMixer();
  for (const ProductId product : {2U, 3U, 4U, 7U, 9U, 10U, 12U, 13U, 0x80000000U, 0xFFFFFFFFU}) {
    EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(product), 102) << product;
  }
  ExpectNothingHappened();
}

TEST_F(BoostLevel, EachIndexGoesToTheUnitAsItsReversedCodeInTheHighByte) {
  rig().PlugMixer();
  for (const std::uint32_t index : {0U, 1U, 2U, 3U}) {
    EXPECT_EQ(ORV_SetBoostLevelIndex(11, index), 100);
  }
  EXPECT_EQ(rig().WireLog(),
            (Lines{"unit 1 OUT 40 03 wValue 0300 wIndex 8003 wLength 0 -> 0 bytes",
                   "unit 1 OUT 40 03 wValue 0200 wIndex 8003 wLength 0 -> 0 bytes",
                   "unit 1 OUT 40 03 wValue 0100 wIndex 8003 wLength 0 -> 0 bytes",
                   "unit 1 OUT 40 03 wValue 0000 wIndex 8003 wLength 0 -> 0 bytes"}));
}

TEST_F(BoostLevel, EveryModelReachesTheSameUnitAndHasAFileAndAnAnnouncementOfItsOwn) {
  rig().PlugMixer();
  const std::vector<std::pair<std::uint32_t, std::string>> models = {
      {0, "TRX-Arden"}, {1, "TRX-VOLT"},   {5, "TRX-HALDEN"},
      {6, "TRX-LUMEN"}, {8, "TRX-MORROW"}, {11, "TRX-SELVA"}};
  for (const auto &[product, name] : models) {
    EXPECT_EQ(ORV_SetBoostLevelIndex(product, 1), 100) << name;
    EXPECT_EQ(rig().WireLog(),
              (Lines{"unit 1 OUT 40 03 wValue 0200 wIndex 8003 wLength 0 -> 0 bytes"}))
        << name;
    EXPECT_EQ(SettingsOf(name), (Settings{{"MaxLevel", "<integer>1</integer>"}})) << name;
    EXPECT_EQ(rig().TakeAnnouncements(1),
              std::vector{BoostChange(name, static_cast<std::int32_t>(product), 1)});
    rig().ClearWireLog();
  }
  EXPECT_EQ(LibraryListing(), (Lines{"Preferences/com.orvikaudio.TRX-Ardenautosetup.plist",
                                     "Preferences/com.orvikaudio.TRX-HALDENautosetup.plist",
                                     "Preferences/com.orvikaudio.TRX-LUMENautosetup.plist",
                                     "Preferences/com.orvikaudio.TRX-MORROWautosetup.plist",
                                     "Preferences/com.orvikaudio.TRX-SELVAautosetup.plist",
                                     "Preferences/com.orvikaudio.TRX-VOLTautosetup.plist"}));
}

TEST_F(BoostLevel, WithoutAUnitTheLevelIsStoredAndAnnouncedAllTheSame) {
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 2), 100);
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>2</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", 11, 2)});
}

TEST_F(BoostLevel, SettingTheSameLevelTwiceSendsStoresAndAnnouncesTwice) {
  rig().PlugMixer();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 1), 100);
  // Whether the file is written again shows in an entry that only a second write could keep.
  PutSettings("TRX-SELVA",
              "<key>MaxLevel</key><integer>3</integer>"
              "<key>Mark</key><string>between</string>");
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 1), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{"unit 1 OUT 40 03 wValue 0200 wIndex 8003 wLength 0 -> 0 bytes",
                   "unit 1 OUT 40 03 wValue 0200 wIndex 8003 wLength 0 -> 0 bytes"}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"MaxLevel", "<integer>1</integer>"}, {"Mark", "<string>between</string>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(2),
            (std::vector{BoostChange("TRX-SELVA", 11, 1), BoostChange("TRX-SELVA", 11, 1)}));
}

TEST_F(BoostLevel, SendingAgainSendsTheStoredLevelAndNeitherStoresNorAnnounces) {
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 1), 100);
  ASSERT_EQ(rig().TakeAnnouncements(1).size(), 1U);
  rig().PlugMixer();
  rig().PlugMixer();
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(11), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{"unit 1 OUT 40 03 wValue 0200 wIndex 8003 wLength 0 -> 0 bytes",
                   "unit 2 OUT 40 03 wValue 0200 wIndex 8003 wLength 0 -> 0 bytes"}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>1</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(BoostLevel, SendingAgainWithNothingStoredSendsTheQuietestAndMakesNoFile) {
  rig().PlugMixer();
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(11), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{"unit 1 OUT 40 03 wValue 0000 wIndex 8003 wLength 0 -> 0 bytes"}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(BoostLevel, SendingAgainWithoutAUnitSucceeds) {
  for (const ProductId product : {0U, 1U, 5U, 6U, 8U, 11U}) {
    EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(product), 100) << product;
  }
  ExpectNothingHappened();
}

TEST_F(BoostLevel, SendingAgainReadsTheFileOfItsOwnModel) {
  rig().PlugMixer();
  PutSettings("TRX-Arden", "<key>MaxLevel</key><integer>0</integer>");
  PutSettings("TRX-SELVA", "<key>MaxLevel</key><integer>2</integer>");
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(0), 100);
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(11), 100);
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(6), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{"unit 1 OUT 40 03 wValue 0300 wIndex 8003 wLength 0 -> 0 bytes",
                   "unit 1 OUT 40 03 wValue 0100 wIndex 8003 wLength 0 -> 0 bytes",
                   "unit 1 OUT 40 03 wValue 0000 wIndex 8003 wLength 0 -> 0 bytes"}));
}

TEST_F(BoostLevel, AStoredNumberThatIsNoLevelIsHandedOutButNotSent) {
  rig().PlugMixer();
  const std::vector<std::pair<std::string, std::int32_t>> stored = {
      {"7", 7},
      {"9", 9},
      {"4", 4},
      {"-1", -1},
      {"2147483647", std::numeric_limits<std::int32_t>::max()},
      {"-2147483648", std::numeric_limits<std::int32_t>::min()}};
  for (const auto &[text, value] : stored) {
    PutSettings("TRX-SELVA", "<key>MaxLevel</key><integer>" + text + "</integer>");
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(11, &index), 100) << text;
    EXPECT_EQ(index, value);
    EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(11), 102) << text;
  }
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(BoostLevel, TheCurrentLevelIsTheOneSetLastForThatModel) {
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  ASSERT_EQ(ORV_SetBoostLevelIndex(5, 2), 100);
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 1), 100);
  for (const auto &[product, expected] :
       std::vector<std::pair<ProductId, std::int32_t>>{{11, 1}, {5, 2}, {0, 3}, {1, 3}}) {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(product, &index), 100);
    EXPECT_EQ(index, expected) << product;
  }
}

}  // namespace
}  // namespace trxtest
