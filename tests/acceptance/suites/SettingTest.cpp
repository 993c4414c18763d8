// The settings without channels: bounds, texts, what is sent, stored, announced and delivered. Each
// setting is a row of literals; every case runs for each row.
#include <algorithm>

#include "../Deliveries.h"
#include "../SetterOrder.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using CallList = std::vector<Call>;
using Lines = std::vector<std::string>;

struct Model {
  ProductId product;
  const char *name;
};

const std::vector<Model> kAllSix = {{kArden, "TRX-Arden"},   {kVolt, "TRX-VOLT"},
                                    {kHalden, "TRX-HALDEN"}, {kLumen, "TRX-LUMEN"},
                                    {kMorrow, "TRX-MORROW"}, {kSelva, "TRX-SELVA"}};

struct Row {
  const char *name;
  std::vector<Model> models;
  Lines texts;           // one for each choice
  Lines values;          // wValue, one for each choice
  const char *selector;  // wIndex
  std::uint32_t choicesSentAgain;
  const char *key;
  std::int32_t defaultIndex;
  const char *change;  // follows the model's name
  StatusCode (*count)(ProductId, std::uint32_t *);
  StatusCode (*text)(ProductId, std::uint32_t, std::uint32_t, ORVStringRef *);
  StatusCode (*set)(ProductId, std::uint32_t);
  StatusCode (*current)(ProductId, std::int32_t *);
  StatusCode (*sendAgain)(ProductId);
  StatusCode (*putCallback)(ProductId, IndexCallback, void *);
  StatusCode (*takeCallback)(ProductId, IndexCallback);
};

const std::vector<Row> kRows = {
    {.name = "BoostLevel",
     .models = kAllSix,
     .texts = {"-5 dB", "-10 dB", "-15 dB", "-19 dB"},
     .values = {"0300", "0200", "0100", "0000"},
     .selector = "8003",
     .choicesSentAgain = 4,
     .key = "MaxLevel",
     .defaultIndex = 3,
     .change = " BoostLevel Change",
     .count = ORV_GetNumOfBoostLevelIndex,
     .text = ORV_GetBoostLevelText,
     .set = ORV_SetBoostLevelIndex,
     .current = ORV_GetCurrentBoostLevelIndex,
     .sendAgain = ORV_SetCurrentBoostLevelIndex,
     .putCallback = ORV_RegisterBoostLevelChangedCallback,
     .takeCallback = ORV_UnregisterBoostLevelChangedCallback},
    {.name = "MidiChannel",
     .models = {{kVolt, "TRX-VOLT"}},
     .texts = {"CH 1", "CH 2", "CH 3", "CH 4", "CH 5", "CH 6", "CH 7", "CH 8", "CH 9", "CH 10",
               "CH 11", "CH 12", "CH 13", "CH 14", "CH 15", "CH 16"},
     .values = {"0000", "0100", "0200", "0300", "0400", "0500", "0600", "0700", "0800", "0900",
                "0a00", "0b00", "0c00", "0d00", "0e00", "0f00"},
     .selector = "8004",
     .choicesSentAgain = 4,
     .key = "MidiChannel",
     .defaultIndex = 0,
     .change = " MidiChannel Change",
     .count = ORV_GetNumOfMidiChannelIndex,
     .text = ORV_GetMidiChannelText,
     .set = ORV_SetMidiChannelIndex,
     .current = ORV_GetCurrentMidiChannelIndex,
     .sendAgain = ORV_SetCurrentMidiChannelIndex,
     .putCallback = ORV_RegisterMidiChannelChangedCallback,
     .takeCallback = ORV_UnregisterMidiChannelChangedCallback},
};

// A row in the name of a test.
void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }
std::string NameOf(const testing::TestParamInfo<Row> &info) { return info.param.name; }

bool IsServed(const Row &row, ProductId product) {
  return std::any_of(row.models.begin(), row.models.end(),
                     [&](const Model &model) { return model.product == product; });
}

std::uint32_t CountOf(const Row &row) { return static_cast<std::uint32_t>(row.texts.size()); }

std::vector<std::uint32_t> IndexesBeyond(const Row &row) {
  const std::uint32_t count = CountOf(row);
  return {count,   count + 1,  255,        256,        256 + count - 1,
          0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFC, 0xFFFFFFFF};
}

Announcement Change(const Row &row, const Model &model, std::uint32_t index) {
  return {model.name + std::string(row.change),
          {{"ProductID", static_cast<std::int32_t>(model.product)},
           {"Index", static_cast<std::int32_t>(index)}}};
}

std::string EntryOf(const Row &row, const std::string &value) {
  return "<key>" + std::string(row.key) + "</key><integer>" + value + "</integer>";
}

class Setting : public SetterOrder, public testing::WithParamInterface<Row> {
 protected:
  const Row &row_ = GetParam();
  const Model &model_ = row_.models.front();

  std::string SentTo(int unit, std::uint32_t index, const std::string &outcome = "0 bytes") {
    return Sent(unit, row_.values.at(index), row_.selector, outcome);
  }

  Settings StoredAs(std::uint32_t index) {
    return {{row_.key, "<integer>" + std::to_string(index) + "</integer>"}};
  }

  void Store(const Model &model, const std::string &value) {
    PutSettings(model.name, EntryOf(row_, value));
  }
};

TEST_P(Setting, ASettingIsCountedForItsModelsOnly) {
  for (const ProductId product : kAllProducts) {
    std::uint32_t count = 77;
    EXPECT_EQ(row_.count(product, &count), IsServed(row_, product) ? kSuccess : kBadArgument)
        << product;
    EXPECT_EQ(count, IsServed(row_, product) ? CountOf(row_) : 77U) << product;
    EXPECT_EQ(row_.count(product, nullptr), kBadArgument) << product;
  }
  ExpectNothingHappened();
}

TEST_P(Setting, ASettingHasATextForEachChoice) {
  for (const Model &model : row_.models) {
    for (const std::uint32_t reserved : {0U, 1U, 4U, 16U, 0xFFFFFFFFU}) {
      Lines texts;
      for (std::uint32_t index = 0; index < CountOf(row_); ++index) {
        ORVStringRef text = nullptr;
        ASSERT_EQ(row_.text(model.product, index, reserved, &text), kSuccess);
        texts.push_back(CharactersOf(text));
      }
      EXPECT_EQ(texts, row_.texts) << model.name << reserved;
    }
  }
  ExpectNothingHappened();
}

TEST_P(Setting, ASettingHandsOutTheSameTextEachTime) {
  ORVStringRef first = nullptr;
  ORVStringRef again = nullptr;
  ASSERT_EQ(row_.text(row_.models.front().product, 1, 0, &first), kSuccess);
  ASSERT_EQ(row_.set(model_.product, 0), kSuccess);
  ASSERT_EQ(row_.text(row_.models.back().product, 1, 9, &again), kSuccess);
  EXPECT_EQ(first, again);
  EXPECT_EQ(CharactersOf(first), row_.texts[1]);
}

TEST_P(Setting, ASettingHasNoTextForAnotherModelOrIndexOrANullResult) {
  for (const ProductId product : kAllProducts) {
    std::vector<std::uint32_t> indexes = IndexesBeyond(row_);
    if (!IsServed(row_, product)) indexes.insert(indexes.end(), {0, 1});
    for (const std::uint32_t index : indexes) {
      ORVStringRef text = TextOf("untouched");
      EXPECT_EQ(row_.text(product, index, 0, &text), kBadArgument) << product << ' ' << index;
      EXPECT_EQ(CharactersOf(text), "untouched") << product << ' ' << index;
    }
    EXPECT_EQ(row_.text(product, 0, 0, nullptr), kBadArgument) << product;
    EXPECT_EQ(row_.text(product, CountOf(row_), 0, nullptr), kBadArgument) << product;
  }
  ExpectNothingHappened();
}

// --- Setting ---------------------------------------------------------------------------------

TEST_P(Setting, ASettingIsSentToEveryUnitStoredAndAnnounced) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  for (std::uint32_t index = 0; index < CountOf(row_); ++index) {
    EXPECT_EQ(row_.set(model_.product, index), kSuccess) << index;
    EXPECT_EQ(rig_->WireLog(), (Lines{SentTo(1, index), SentTo(2, index), SentTo(3, index)}));
    EXPECT_EQ(SettingsOf(model_.name), StoredAs(index));
    EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(row_, model_, index)});
    rig_->ClearWireLog();
  }
}

TEST_P(Setting, ASettingHasAFileAndAnAnnouncementOfItsOwnForEachModel) {
  rig_->PlugMixer();
  Lines files;
  for (const Model &model : row_.models) {
    EXPECT_EQ(row_.set(model.product, 1), kSuccess) << model.name;
    EXPECT_EQ(rig_->WireLog(), Lines{SentTo(1, 1)}) << model.name;
    EXPECT_EQ(SettingsOf(model.name), StoredAs(1)) << model.name;
    EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(row_, model, 1)});
    rig_->ClearWireLog();
    files.push_back("Preferences/com.orvikaudio." + std::string(model.name) + "autosetup.plist");
  }
  std::sort(files.begin(), files.end());
  EXPECT_EQ(LibraryListing(), files);
}

TEST_P(Setting, ASettingIsStoredAndAnnouncedWithoutAUnit) {
  EXPECT_EQ(row_.set(model_.product, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(), Lines());
  EXPECT_EQ(SettingsOf(model_.name), StoredAs(1));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(row_, model_, 1)});
}

TEST_P(Setting, ASettingIsSentThenStoredThenAnnounced) {
  ExpectSentStoredAnnounced([&] { return row_.set(model_.product, 1); }, SentTo(1, 1));
}

TEST_P(Setting, ASettingPassesOverUnitsThatStallOrDoNotOpen) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kStalls);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(row_.set(model_.product, 1), kSuccess);
  EXPECT_EQ(row_.sendAgain(model_.product), kSuccess);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{SentTo(1, 1, "stalled"), SentTo(3, 1), SentTo(1, 1, "stalled"), SentTo(3, 1)}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(row_, model_, 1)});
}

TEST_P(Setting, ASettingIsSentStoredAndAnnouncedAlsoWhenItStaysTheSame) {
  rig_->PlugMixer();
  EXPECT_EQ(row_.set(model_.product, 1), kSuccess);
  // An entry that only a second write could keep shows whether the file is written again.
  PutSettings(model_.name, EntryOf(row_, "0") + "<key>Mark</key><string>between</string>");
  EXPECT_EQ(row_.set(model_.product, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{SentTo(1, 1), SentTo(1, 1)}));
  Settings stored = StoredAs(1);
  stored["Mark"] = "<string>between</string>";
  EXPECT_EQ(SettingsOf(model_.name), stored);
  EXPECT_EQ(rig_->TakeAnnouncements(2),
            (std::vector{Change(row_, model_, 1), Change(row_, model_, 1)}));
}

TEST_P(Setting, ASettingIsRefusedForAnotherModelOrIndexAndNothingIsDone) {
  rig_->PlugMixer();
  for (const ProductId product : kAllProducts) {
    std::vector<std::uint32_t> indexes = IndexesBeyond(row_);
    if (!IsServed(row_, product)) indexes.insert(indexes.end(), {0, 1});
    for (const std::uint32_t index : indexes) {
      EXPECT_EQ(row_.set(product, index), kBadArgument) << product << ' ' << index;
    }
  }
  ExpectNothingHappened();
}

// --- Stored values ---------------------------------------------------------------------------

TEST_P(Setting, ASettingHasItsDefaultForItsModelsWhileNothingIsStored) {
  for (const ProductId product : kAllProducts) {
    std::int32_t index = -77;
    EXPECT_EQ(row_.current(product, &index), IsServed(row_, product) ? kSuccess : kBadArgument)
        << product;
    EXPECT_EQ(index, IsServed(row_, product) ? row_.defaultIndex : -77) << product;
    EXPECT_EQ(row_.current(product, nullptr), kBadArgument) << product;
  }
  ExpectNothingHappened();
}

TEST_P(Setting, ASettingHasItsDefaultBesideOtherEntriesAndOtherModels) {
  PutSettings(model_.name, "<key>Else</key><integer>1</integer>");
  PutSettings(model_.product == kSelva ? "TRX-LUMEN" : "TRX-SELVA", EntryOf(row_, "1"));
  std::int32_t index = -77;
  EXPECT_EQ(row_.current(model_.product, &index), kSuccess);
  EXPECT_EQ(index, row_.defaultIndex);
}

TEST_P(Setting, ASettingIsReadForEachModelAsItWasSet) {
  for (const Model &model : row_.models) ASSERT_EQ(row_.set(model.product, 0), kSuccess);
  ASSERT_EQ(row_.set(model_.product, 1), kSuccess);
  for (const Model &model : row_.models) {
    std::int32_t index = -77;
    EXPECT_EQ(row_.current(model.product, &index), kSuccess);
    EXPECT_EQ(index, model.product == model_.product ? 1 : 0) << model.name;
  }
}

TEST_P(Setting, ASettingIsReadAsItIsStoredInRangeOrNot) {
  const std::string count = std::to_string(CountOf(row_));
  for (const std::string &stored : {std::string("0"), count, std::string("-1"),
                                    std::string("2147483647"), std::string("-2147483648")}) {
    Store(model_, stored);
    std::int32_t index = -77;
    EXPECT_EQ(row_.current(model_.product, &index), kSuccess) << stored;
    EXPECT_EQ(std::to_string(index), stored);
  }
}

// --- Sending again ---------------------------------------------------------------------------

TEST_P(Setting, ASettingIsSentAgainToEveryUnitAndNeitherStoredNorAnnounced) {
  rig_->PlugMixer();
  rig_->PlugMixer();
  for (std::uint32_t index = 0; index < row_.choicesSentAgain; ++index) {
    Store(model_, std::to_string(index));
    EXPECT_EQ(row_.sendAgain(model_.product), kSuccess) << index;
    EXPECT_EQ(rig_->WireLog(), (Lines{SentTo(1, index), SentTo(2, index)}));
    EXPECT_EQ(SettingsOf(model_.name), StoredAs(index));
    rig_->ClearWireLog();
  }
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_P(Setting, ASettingIsNotSentAgainBeyondTheChoicesThatCanBe) {
  rig_->PlugMixer();
  Lines stored = {"-1", "256", "2147483647", "-2147483648"};
  for (std::uint32_t index = row_.choicesSentAgain; index <= CountOf(row_); ++index) {
    stored.push_back(std::to_string(index));
  }
  for (const std::string &index : stored) {
    Store(model_, index);
    EXPECT_EQ(row_.sendAgain(model_.product), kBadArgument) << index;
  }
  EXPECT_EQ(rig_->WireLog(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_P(Setting, ASettingIsSentAgainAsItsDefaultWhileNothingIsStored) {
  rig_->PlugMixer();
  for (const Model &model : row_.models) {
    EXPECT_EQ(row_.sendAgain(model.product), kSuccess) << model.name;
    EXPECT_EQ(rig_->WireLog(), Lines{SentTo(1, static_cast<std::uint32_t>(row_.defaultIndex))});
    rig_->ClearWireLog();
  }
  ExpectNothingHappened();
}

TEST_P(Setting, ASettingIsSentAgainFromTheFileOfTheModel) {
  rig_->PlugMixer();
  for (const Model &model : row_.models) Store(model, "1");
  Store(model_, "0");
  for (const Model &model : row_.models) {
    EXPECT_EQ(row_.sendAgain(model.product), kSuccess);
    EXPECT_EQ(rig_->WireLog(), Lines{SentTo(1, model.product == model_.product ? 0 : 1)});
    rig_->ClearWireLog();
  }
}

TEST_P(Setting, ASettingIsSentAgainForItsModelsOnlyAndWithoutAUnitToo) {
  for (const ProductId product : kAllProducts) {
    EXPECT_EQ(row_.sendAgain(product), IsServed(row_, product) ? kSuccess : kBadArgument)
        << product;
  }
  rig_->PlugMixer();
  for (const ProductId product : kAllProducts) {
    if (IsServed(row_, product)) continue;
    EXPECT_EQ(row_.sendAgain(product), kBadArgument) << product;
  }
  ExpectNothingHappened();
}

INSTANTIATE_TEST_SUITE_P(Each, Setting, testing::ValuesIn(kRows), NameOf);

// --- Callbacks -------------------------------------------------------------------------------

std::string first = "first";
std::string second = "second";

class SettingCallback : public Deliveries, public testing::WithParamInterface<Row> {
 protected:
  const Row &row_ = GetParam();
  const Model &model_ = row_.models.front();
};

// Null callbacks and contexts are accepted, and Unregister ignores its callback.
TEST_P(SettingCallback, ACallbackIsAcceptedForTheModelsOfTheSettingOnly) {
  for (const ProductId product : kAllProducts) {
    const StatusCode expected = IsServed(row_, product) ? kSuccess : kBadArgument;
    EXPECT_EQ(row_.takeCallback(product, IndexA), expected) << product;
    EXPECT_EQ(row_.putCallback(product, IndexA, &first), expected) << product;
    EXPECT_EQ(row_.putCallback(product, nullptr, &first), expected) << product;
    EXPECT_EQ(row_.putCallback(product, IndexA, nullptr), expected) << product;
    EXPECT_EQ(row_.takeCallback(product, nullptr), expected) << product;
    EXPECT_EQ(row_.takeCallback(product, IndexA), expected) << product;
  }
  ExpectNothingHappened();
}

TEST_P(SettingCallback, ACallbackRunsOnceForEachRegistrationWithTheIndexThatWasSet) {
  ASSERT_EQ(row_.putCallback(model_.product, IndexA, &first), kSuccess);
  ASSERT_EQ(row_.set(model_.product, CountOf(row_) - 1), kSuccess);
  const auto last = static_cast<std::int32_t>(CountOf(row_) - 1);
  EXPECT_TRUE(Delivered({{"A first", -1, last}}));
  ASSERT_EQ(row_.putCallback(model_.product, IndexB, &second), kSuccess);
  rig_->Announce(Change(row_, model_, 1));
  EXPECT_TRUE(Delivered({{"B second", -1, 1}, {"B second", -1, 1}}));
}

TEST_P(SettingCallback, ACallbackDoesNotRunOnceUnregistered) {
  ASSERT_EQ(row_.putCallback(model_.product, IndexA, &first), kSuccess);
  ASSERT_EQ(row_.takeCallback(model_.product, IndexA), kSuccess);
  ASSERT_EQ(row_.set(model_.product, 1), kSuccess);
  rig_->Announce(Change(row_, model_, 0));
  EXPECT_TRUE(Delivered({}));
}

TEST_P(SettingCallback, ACallbackDoesNotRunForAnotherSetting) {
  ASSERT_EQ(row_.putCallback(model_.product, IndexA, &first), kSuccess);
  for (const Row &other : kRows) {
    if (std::string(other.name) != row_.name) rig_->Announce(Change(other, model_, 1));
  }
  EXPECT_TRUE(Delivered({}));
}

INSTANTIATE_TEST_SUITE_P(Each, SettingCallback, testing::ValuesIn(kRows), NameOf);

}  // namespace
}  // namespace trxtest
