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

const std::vector<Model> kAllSix = {{0, "TRX-Arden"}, {1, "TRX-VOLT"},   {5, "TRX-HALDEN"},
                                    {6, "TRX-LUMEN"}, {8, "TRX-MORROW"}, {11, "TRX-SELVA"}};

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
     .models = {{1, "TRX-VOLT"}},
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
  const Row &row() { return GetParam(); }
  const Model &model() { return row().models.front(); }

  std::string SentTo(int unit, std::uint32_t index, const std::string &outcome = "0 bytes") {
    return Sent(unit, row().values.at(index), row().selector, outcome);
  }

  Settings StoredAs(std::uint32_t index) {
    return {{row().key, "<integer>" + std::to_string(index) + "</integer>"}};
  }

  void Store(const Model &model, const std::string &value) {
    PutSettings(model.name, EntryOf(row(), value));
  }
};

TEST_P(Setting, IsCountedForItsModelsOnly) {
  for (const ProductId product : kAllProducts) {
    std::uint32_t count = 77;
    EXPECT_EQ(row().count(product, &count), IsServed(row(), product) ? 100 : 102) << product;
    EXPECT_EQ(count, IsServed(row(), product) ? CountOf(row()) : 77U) << product;
    EXPECT_EQ(row().count(product, nullptr), 102) << product;
  }
  ExpectNothingHappened();
}

TEST_P(Setting, HasATextForEachChoice) {
  for (const Model &model : row().models) {
    for (const std::uint32_t reserved : {0U, 1U, 4U, 16U, 0xFFFFFFFFU}) {
      Lines texts;
      for (std::uint32_t index = 0; index < CountOf(row()); ++index) {
        ORVStringRef text = nullptr;
        ASSERT_EQ(row().text(model.product, index, reserved, &text), 100);
        texts.push_back(CharactersOf(text));
      }
      EXPECT_EQ(texts, row().texts) << model.name << reserved;
    }
  }
  ExpectNothingHappened();
}

TEST_P(Setting, HandsOutTheSameTextEachTime) {
  ORVStringRef first = nullptr;
  ORVStringRef again = nullptr;
  ASSERT_EQ(row().text(row().models.front().product, 1, 0, &first), 100);
  ASSERT_EQ(row().set(model().product, 0), 100);
  ASSERT_EQ(row().text(row().models.back().product, 1, 9, &again), 100);
  EXPECT_EQ(first, again);
  EXPECT_EQ(CharactersOf(first), row().texts[1]);
}

TEST_P(Setting, HasNoTextForAnotherModelOrIndexOrANullResult) {
  for (const ProductId product : kAllProducts) {
    std::vector<std::uint32_t> indexes = IndexesBeyond(row());
    if (!IsServed(row(), product)) indexes.insert(indexes.end(), {0, 1});
    for (const std::uint32_t index : indexes) {
      ORVStringRef text = TextOf("untouched");
      EXPECT_EQ(row().text(product, index, 0, &text), 102) << product << ' ' << index;
      EXPECT_EQ(CharactersOf(text), "untouched") << product << ' ' << index;
    }
    EXPECT_EQ(row().text(product, 0, 0, nullptr), 102) << product;
    EXPECT_EQ(row().text(product, CountOf(row()), 0, nullptr), 102) << product;
  }
  ExpectNothingHappened();
}

// --- Setting ---------------------------------------------------------------------------------

TEST_P(Setting, IsSentToEveryUnitStoredAndAnnounced) {
  for (int i = 0; i < 3; ++i) rig().PlugMixer();
  for (std::uint32_t index = 0; index < CountOf(row()); ++index) {
    EXPECT_EQ(row().set(model().product, index), 100) << index;
    EXPECT_EQ(rig().WireLog(), (Lines{SentTo(1, index), SentTo(2, index), SentTo(3, index)}));
    EXPECT_EQ(SettingsOf(model().name), StoredAs(index));
    EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(row(), model(), index)});
    rig().ClearWireLog();
  }
}

TEST_P(Setting, HasAFileAndAnAnnouncementOfItsOwnForEachModel) {
  rig().PlugMixer();
  Lines files;
  for (const Model &model : row().models) {
    EXPECT_EQ(row().set(model.product, 1), 100) << model.name;
    EXPECT_EQ(rig().WireLog(), Lines{SentTo(1, 1)}) << model.name;
    EXPECT_EQ(SettingsOf(model.name), StoredAs(1)) << model.name;
    EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(row(), model, 1)});
    rig().ClearWireLog();
    files.push_back("Preferences/com.orvikaudio." + std::string(model.name) + "autosetup.plist");
  }
  std::sort(files.begin(), files.end());
  EXPECT_EQ(LibraryListing(), files);
}

TEST_P(Setting, IsStoredAndAnnouncedWithoutAUnit) {
  EXPECT_EQ(row().set(model().product, 1), 100);
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(SettingsOf(model().name), StoredAs(1));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(row(), model(), 1)});
}

TEST_P(Setting, IsSentBeforeItIsStoredAndAnnounced) {
  ExpectUnitToldFirst([&] { return row().set(model().product, 1); }, SentTo(1, 1, "no reply"));
}

TEST_P(Setting, IsStoredBeforeItIsAnnounced) {
  ExpectStoredBeforeAnnounced([&] { return row().set(model().product, 1); }, model().name,
                              StoredAs(1));
}

TEST_P(Setting, PassesOverUnitsThatStallOrDoNotOpen) {
  for (int i = 0; i < 3; ++i) rig().PlugMixer();
  rig().SetFault(1, UnitFault::kStalls);
  rig().SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(row().set(model().product, 1), 100);
  EXPECT_EQ(row().sendAgain(model().product), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{SentTo(1, 1, "stalled"), SentTo(3, 1), SentTo(1, 1, "stalled"), SentTo(3, 1)}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(row(), model(), 1)});
}

TEST_P(Setting, IsSentStoredAndAnnouncedAlsoWhenItStaysTheSame) {
  rig().PlugMixer();
  EXPECT_EQ(row().set(model().product, 1), 100);
  // An entry that only a second write could keep shows whether the file is written again.
  PutSettings(model().name, EntryOf(row(), "0") + "<key>Mark</key><string>between</string>");
  EXPECT_EQ(row().set(model().product, 1), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{SentTo(1, 1), SentTo(1, 1)}));
  Settings stored = StoredAs(1);
  stored["Mark"] = "<string>between</string>";
  EXPECT_EQ(SettingsOf(model().name), stored);
  EXPECT_EQ(rig().TakeAnnouncements(2),
            (std::vector{Change(row(), model(), 1), Change(row(), model(), 1)}));
}

TEST_P(Setting, IsRefusedForAnotherModelOrIndexAndNothingIsDone) {
  rig().PlugMixer();
  for (const ProductId product : kAllProducts) {
    std::vector<std::uint32_t> indexes = IndexesBeyond(row());
    if (!IsServed(row(), product)) indexes.insert(indexes.end(), {0, 1});
    for (const std::uint32_t index : indexes) {
      EXPECT_EQ(row().set(product, index), 102) << product << ' ' << index;
    }
  }
  ExpectNothingHappened();
}

// --- Stored values ---------------------------------------------------------------------------

TEST_P(Setting, HasItsDefaultForItsModelsWhileNothingIsStored) {
  for (const ProductId product : kAllProducts) {
    std::int32_t index = -77;
    EXPECT_EQ(row().current(product, &index), IsServed(row(), product) ? 100 : 102) << product;
    EXPECT_EQ(index, IsServed(row(), product) ? row().defaultIndex : -77) << product;
    EXPECT_EQ(row().current(product, nullptr), 102) << product;
  }
  ExpectNothingHappened();
}

TEST_P(Setting, HasItsDefaultBesideOtherEntriesAndOtherModels) {
  PutSettings(model().name, "<key>Else</key><integer>1</integer>");
  PutSettings(model().product == 11 ? "TRX-LUMEN" : "TRX-SELVA", EntryOf(row(), "1"));
  std::int32_t index = -77;
  EXPECT_EQ(row().current(model().product, &index), 100);
  EXPECT_EQ(index, row().defaultIndex);
}

TEST_P(Setting, IsReadForEachModelAsItWasSet) {
  for (const Model &model : row().models) ASSERT_EQ(row().set(model.product, 0), 100);
  ASSERT_EQ(row().set(model().product, 1), 100);
  for (const Model &model : row().models) {
    std::int32_t index = -77;
    EXPECT_EQ(row().current(model.product, &index), 100);
    EXPECT_EQ(index, model.product == this->model().product ? 1 : 0) << model.name;
  }
}

TEST_P(Setting, IsReadAsItIsStoredInRangeOrNot) {
  const std::string count = std::to_string(CountOf(row()));
  for (const std::string &stored : {std::string("0"), count, std::string("-1"),
                                    std::string("2147483647"), std::string("-2147483648")}) {
    Store(model(), stored);
    std::int32_t index = -77;
    EXPECT_EQ(row().current(model().product, &index), 100) << stored;
    EXPECT_EQ(std::to_string(index), stored);
  }
}

// --- Sending again ---------------------------------------------------------------------------

TEST_P(Setting, IsSentAgainToEveryUnitAndNeitherStoredNorAnnounced) {
  rig().PlugMixer();
  rig().PlugMixer();
  for (std::uint32_t index = 0; index < row().choicesSentAgain; ++index) {
    Store(model(), std::to_string(index));
    EXPECT_EQ(row().sendAgain(model().product), 100) << index;
    EXPECT_EQ(rig().WireLog(), (Lines{SentTo(1, index), SentTo(2, index)}));
    EXPECT_EQ(SettingsOf(model().name), StoredAs(index));
    rig().ClearWireLog();
  }
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_P(Setting, IsNotSentAgainBeyondTheChoicesThatCanBe) {
  rig().PlugMixer();
  Lines stored = {"-1", "256", "2147483647", "-2147483648"};
  for (std::uint32_t index = row().choicesSentAgain; index <= CountOf(row()); ++index) {
    stored.push_back(std::to_string(index));
  }
  for (const std::string &index : stored) {
    Store(model(), index);
    EXPECT_EQ(row().sendAgain(model().product), 102) << index;
  }
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_P(Setting, IsSentAgainAsItsDefaultWhileNothingIsStored) {
  rig().PlugMixer();
  for (const Model &model : row().models) {
    EXPECT_EQ(row().sendAgain(model.product), 100) << model.name;
    EXPECT_EQ(rig().WireLog(), Lines{SentTo(1, static_cast<std::uint32_t>(row().defaultIndex))});
    rig().ClearWireLog();
  }
  ExpectNothingHappened();
}

TEST_P(Setting, IsSentAgainFromTheFileOfTheModel) {
  rig().PlugMixer();
  for (const Model &model : row().models) Store(model, "1");
  Store(model(), "0");
  for (const Model &model : row().models) {
    EXPECT_EQ(row().sendAgain(model.product), 100);
    EXPECT_EQ(rig().WireLog(), Lines{SentTo(1, model.product == this->model().product ? 0 : 1)});
    rig().ClearWireLog();
  }
}

TEST_P(Setting, IsSentAgainForItsModelsOnlyAndWithoutAUnitToo) {
  for (const ProductId product : kAllProducts) {
    EXPECT_EQ(row().sendAgain(product), IsServed(row(), product) ? 100 : 102) << product;
  }
  rig().PlugMixer();
  for (const ProductId product : kAllProducts) {
    if (IsServed(row(), product)) continue;
    EXPECT_EQ(row().sendAgain(product), 102) << product;
  }
  ExpectNothingHappened();
}

INSTANTIATE_TEST_SUITE_P(Each, Setting, testing::ValuesIn(kRows), NameOf);

// --- Callbacks -------------------------------------------------------------------------------

std::string first = "first";
std::string second = "second";

class SettingCallback : public Deliveries, public testing::WithParamInterface<Row> {
 protected:
  const Row &row() { return GetParam(); }
  const Model &model() { return row().models.front(); }
};

// Null callbacks and contexts are accepted, and Unregister ignores its callback.
TEST_P(SettingCallback, IsAcceptedForTheModelsOfTheSettingOnly) {
  for (const ProductId product : kAllProducts) {
    const StatusCode expected = IsServed(row(), product) ? 100 : 102;
    EXPECT_EQ(row().takeCallback(product, IndexA), expected) << product;
    EXPECT_EQ(row().putCallback(product, IndexA, &first), expected) << product;
    EXPECT_EQ(row().putCallback(product, nullptr, &first), expected) << product;
    EXPECT_EQ(row().putCallback(product, IndexA, nullptr), expected) << product;
    EXPECT_EQ(row().takeCallback(product, nullptr), expected) << product;
    EXPECT_EQ(row().takeCallback(product, IndexA), expected) << product;
  }
  ExpectNothingHappened();
}

TEST_P(SettingCallback, RunsOnceForEachRegistrationWithTheIndexThatWasSet) {
  ASSERT_EQ(row().putCallback(model().product, IndexA, &first), 100);
  ASSERT_EQ(row().set(model().product, CountOf(row()) - 1), 100);
  const auto last = static_cast<std::int32_t>(CountOf(row()) - 1);
  EXPECT_EQ(DeliverAll(), (CallList{{"A first", -1, last}}));
  ASSERT_EQ(row().putCallback(model().product, IndexB, &second), 100);
  rig().Announce(Change(row(), model(), 1));
  EXPECT_EQ(DeliverAll(), (CallList{{"B second", -1, 1}, {"B second", -1, 1}}));
}

TEST_P(SettingCallback, DoesNotRunOnceUnregistered) {
  ASSERT_EQ(row().putCallback(model().product, IndexA, &first), 100);
  ASSERT_EQ(row().takeCallback(model().product, IndexA), 100);
  ASSERT_EQ(row().set(model().product, 1), 100);
  rig().Announce(Change(row(), model(), 0));
  EXPECT_EQ(DeliverAll(), CallList());
}

TEST_P(SettingCallback, DoesNotRunForAnotherSetting) {
  ASSERT_EQ(row().putCallback(model().product, IndexA, &first), 100);
  for (const Row &other : kRows) {
    if (std::string(other.name) != row().name) rig().Announce(Change(other, model(), 1));
  }
  EXPECT_EQ(DeliverAll(), CallList());
}

INSTANTIATE_TEST_SUITE_P(Each, SettingCallback, testing::ValuesIn(kRows), NameOf);

}  // namespace
}  // namespace trxtest
