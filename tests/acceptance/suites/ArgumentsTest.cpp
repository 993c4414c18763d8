// The functions with every combination of arguments, in and out of range, without mixers: what is
// accepted, and what the result is. The tables here list what is accepted; everything else is
// refused. SettingTest.cpp has the settings without channels.
#include <limits>
#include <map>
#include <span>
#include <sstream>

#include "../InstalledFiles.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

constexpr std::int32_t kChannels[] = {-2, -1, 0,   1,   2,     3,      4,    5,
                                      6,  7,  255, 256, 65536, kLeast, kMost};

constexpr std::uint32_t kIndexes[] = {
    0,  1,  2,  3,  4,  5,  6,   7,   8,       9,          10,         11,
    12, 13, 14, 15, 16, 17, 255, 256, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};

// The channels and indexes to try: a function without a channel or an index has only the first.
struct Places {
  std::span<const std::int32_t> channels;
  std::span<const std::uint32_t> indexes;
};

constexpr std::uint32_t kNoIndex[] = {0};
constexpr Places kChannelsAndIndexes = {kChannels, kIndexes};
constexpr Places kChannelsOnly = {kChannels, kNoIndex};

// The number of indexes of each channel of a model, from channel and index 0. A function without a
// channel has one row; a function without an index has rows of 1.
using Accepted = std::map<ProductId, std::vector<std::uint32_t>>;

bool Contains(const Accepted &accepted, ProductId product, std::int32_t channel = 0,
              std::uint32_t index = 0) {
  const auto model = accepted.find(product);
  if (model == accepted.end() || channel < 0) return false;
  const auto place = static_cast<std::size_t>(channel);
  return place < model->second.size() && index < model->second[place];
}

const Accepted kAllSix = {{kArden, {1}}, {kVolt, {1}},   {kHalden, {1}},
                          {kLumen, {1}}, {kMorrow, {1}}, {kSelva, {1}}};
const Accepted kSelvaOnly = {{kSelva, {1}}};

// The value of a result variable before the call.
constexpr std::int32_t kBefore = -1234567;
constexpr std::uint32_t kBeforeUnsigned = 0xFEDC1234;
ORVStringRef BeforeText() { return TextOf("untouched"); }

// Compares many outcomes and reports the first few that differ.
class Sweep {
 public:
  ~Sweep() { EXPECT_EQ(failures_, 0) << "of " << count_ << " calls, the first:\n" << told_.str(); }

  template <typename Value, typename... Arguments>
  void Expect(const Value &actual, const Value &expected, const char *what,
              const Arguments &...arguments) {
    ++count_;
    if (actual == expected) return;
    if (++failures_ > 10) return;
    told_ << what << "(";
    ((told_ << ' ' << arguments), ...);
    told_ << " ): " << actual << " and not " << expected << '\n';
  }

 private:
  int count_ = 0;
  int failures_ = 0;
  std::ostringstream told_;
};

class Arguments : public InstalledFiles {
 protected:
  // Functions (product, result).
  template <typename Result>
  static void SweepProducts(const char *name, StatusCode (*function)(ProductId, Result *),
                            const Accepted &accepted, Result before, Result handedOut,
                            Result refused) {
    Sweep sweep;
    for (const ProductId product : kAllProducts) {
      const bool isAccepted = Contains(accepted, product);
      Result result = before;
      sweep.Expect(function(product, &result), isAccepted ? kSuccess : kBadArgument, name, product);
      sweep.Expect(result, isAccepted ? handedOut : refused, name, product);
      sweep.Expect(function(product, nullptr), kBadArgument, name, product, "null");
    }
  }

  // Functions (product, channel, result). `resultOf` gives the result of an accepted call.
  template <typename Channel, typename Result, typename ResultOf>
  static void SweepChannels(const char *name, StatusCode (*function)(ProductId, Channel, Result *),
                            const Accepted &accepted, Result before, ResultOf resultOf) {
    Sweep sweep;
    for (const ProductId product : kAllProducts) {
      for (const std::int32_t channel : kChannels) {
        const bool isAccepted = Contains(accepted, product, channel);
        Result result = before;
        sweep.Expect(function(product, static_cast<Channel>(channel), &result),
                     isAccepted ? kSuccess : kBadArgument, name, product, channel);
        sweep.Expect(result, isAccepted ? Result{resultOf(product, channel)} : before, name,
                     product, channel);
        sweep.Expect(function(product, static_cast<Channel>(channel), nullptr), kBadArgument, name,
                     product, channel, "null");
      }
    }
  }

  // Functions that give a text.
  template <typename Call>
  static void SweepTexts(const char *name, const Accepted &accepted, const Places &places,
                         Call call) {
    Sweep sweep;
    for (const ProductId product : kAllProducts) {
      for (const std::int32_t channel : places.channels) {
        for (const std::uint32_t index : places.indexes) {
          const bool isAccepted = Contains(accepted, product, channel, index);
          ORVStringRef text = BeforeText();
          sweep.Expect(call(product, channel, index, &text), isAccepted ? kSuccess : kBadArgument,
                       name, product, channel, index);
          sweep.Expect(text != BeforeText(), isAccepted, name, product, channel, index);
          sweep.Expect(call(product, channel, index, nullptr), kBadArgument, name, product, channel,
                       index, "null");
        }
      }
    }
  }

  // Calls setters with everything that is refused and expects a refusal without any effect, then
  // with everything that is accepted. `statusOf` gives the status of an accepted call. Returns how
  // many were accepted.
  template <typename Call, typename StatusOf>
  std::size_t SweepSetter(const char *name, const Accepted &accepted, const Places &places,
                          Call call, StatusOf statusOf) {
    std::size_t count = 0;
    Sweep sweep;
    for (const bool isAccepted : {false, true}) {
      for (const ProductId product : kAllProducts) {
        for (const std::int32_t channel : places.channels) {
          for (const std::uint32_t index : places.indexes) {
            if (Contains(accepted, product, channel, index) != isAccepted) continue;
            sweep.Expect(call(product, channel, index),
                         isAccepted ? statusOf(product, channel, index) : kBadArgument, name,
                         product, channel, index);
            count += isAccepted ? 1 : 0;
          }
        }
      }
      if (!isAccepted) ExpectNothingHappened();
    }
    EXPECT_EQ(rig_->WireLog(), Lines());
    return count;
  }

  static StatusCode Success(ProductId, std::int32_t, std::uint32_t) { return kSuccess; }
};

TEST_F(Arguments, IsUSBConnectionTakesAnyModel) {
  for (const ProductId product : kAllProducts)
    EXPECT_EQ(ORV_IsUSBConnection(product), kNotConnected);
  rig_->PlugMixer();
  for (const ProductId product : kAllProducts) EXPECT_EQ(ORV_IsUSBConnection(product), kConnected);
}

// --- Status queries --------------------------------------------------------------------------

TEST_F(Arguments, CertifyLevelTakesFourModelsAndClearsItsResultForThem) {
  SweepProducts<std::uint32_t>("CertifyLevel", ORV_GetMixerCertifyLevel,
                               {{kHalden, {1}}, {kLumen, {1}}, {kMorrow, {1}}, {kSelva, {1}}},
                               kBeforeUnsigned, 0, kBeforeUnsigned);
  ExpectNothingHappened();
}

TEST_F(Arguments, FirmwareTakesSelvaAndClearsItsResultForEverybody) {
  SweepProducts<std::uint32_t>("Firmware", ORV_GetFirmwareVersionIndex, kSelvaOnly, kBeforeUnsigned,
                               0, 0);
  ExpectNothingHappened();
}

TEST_F(Arguments, SeratoTakesSixModelsAndLeavesItsResultWithoutAUnit) {
  SweepProducts<std::uint32_t>("Serato", ORV_GetMixerSeratoActiveStatus, kAllSix, kBeforeUnsigned,
                               kBeforeUnsigned, kBeforeUnsigned);
  ExpectNothingHappened();
}

TEST_F(Arguments, SelectorTakesFourThreeOrFiveChannelsAndLeavesItsResultWithoutAUnit) {
  SweepChannels("Selector", ORV_GetMixerInputSelectorStatus,
                {{kArden, {1, 1, 1, 1}},
                 {kVolt, {1, 1, 1}},
                 {kHalden, {1, 1, 1, 1, 1}},
                 {kLumen, {1, 1, 1, 1, 1}},
                 {kMorrow, {1, 1, 1, 1, 1}},
                 {kSelva, {1, 1, 1, 1, 1}}},
                kBeforeUnsigned, [](ProductId, std::int32_t) { return kBeforeUnsigned; });
  ExpectNothingHappened();
}

// --- Input audio -----------------------------------------------------------------------------

TEST_F(Arguments, InputAudioCountTakesFourChannelsOfSelva) {
  SweepChannels("NumOfInputAudioIndex", ORV_GetNumOfInputAudioIndex, {{kSelva, {1, 1, 1, 1}}},
                kBefore, [](ProductId, std::int32_t channel) {
                  constexpr std::int32_t kCounts[] = {8, 8, 7, 1};
                  return kCounts[channel];
                });
  ExpectNothingHappened();
}

TEST_F(Arguments, InputAudioTextTakesMoreIndexesThanThereAreChoices) {
  SweepTexts("USBInputAudioText",
             {{kArden, {8, 8, 8, 8}},
              {kVolt, {2, 2, 6}},
              {kHalden, {9, 9, 9, 9, 10}},
              {kLumen, {9, 9, 9, 9, 10}},
              {kMorrow, {9, 9, 9, 9, 10}},
              {kSelva, {9, 9, 9, 9, 10}}},
             kChannelsAndIndexes,
             [](ProductId product, std::int32_t channel, std::uint32_t index, ORVStringRef *text) {
               return ORV_GetUSBInputAudioText(product, channel, index, index, text);
             });
  ExpectNothingHappened();
}

TEST_F(Arguments, SetInputAudioTakesThreeChannelsOfSelva) {
  const std::size_t count =
      SweepSetter("SetUSBInputAudio", {{kSelva, {8, 8, 7}}}, kChannelsAndIndexes,
                  ORV_SetUSBInputAudio, [](ProductId, std::int32_t, std::uint32_t index) {
                    return index < 3 ? kSuccessWithWarning : kSuccess;
                  });
  EXPECT_EQ(count, 23U);
  EXPECT_EQ(rig_->TakeAnnouncements(23).size(), 23U);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output0", "<integer>7</integer>"},
                                               {"Output1", "<integer>7</integer>"},
                                               {"Output2", "<integer>6</integer>"}}));
}

TEST_F(Arguments, SetInputAudioDirectTakesSixModelsAndAnyGroup) {
  const Accepted accepted = {{kArden, {16, 16, 16, 16}},      {kVolt, {4, 4, 16}},
                             {kHalden, {16, 16, 16, 16, 16}}, {kLumen, {16, 16, 16, 16, 16}},
                             {kMorrow, {16, 16, 16, 16, 16}}, {kSelva, {16, 16, 16, 16, 16}}};
  for (const std::int32_t group : {-1, 0, kLeast, kMost}) {
    const std::size_t count = SweepSetter(
        "SetUSBInputAudioDirect", accepted, kChannelsAndIndexes,
        [group](ProductId product, std::int32_t channel, std::uint32_t source) {
          return ORV_SetUSBInputAudioDirect(product, channel, group, source);
        },
        [](ProductId product, std::int32_t, std::uint32_t source) {
          return product == kVolt || source < 3 ? kSuccessWithWarning : kSuccess;
        });
    EXPECT_EQ(count, 408U);
  }
  ExpectNothingHappened();
}

TEST_F(Arguments, CurrentInputAudioTakesFourThreeOrSixChannels) {
  SweepChannels("CurrentUSBInputAudioIndex", ORV_GetCurrentUSBInputAudioIndex,
                {{kArden, {1, 1, 1, 1}},
                 {kVolt, {1, 1, 1}},
                 {kHalden, {1, 1, 1, 1, 1, 1}},
                 {kLumen, {1, 1, 1, 1, 1, 1}},
                 {kMorrow, {1, 1, 1, 1, 1, 1}},
                 {kSelva, {1, 1, 1, 1, 1, 1}}},
                kBefore, [](ProductId product, std::int32_t channel) {
                  if (product == kArden) return 3;
                  if (product == kVolt) return channel == 2 ? 5 : 1;
                  return 0;
                });
  ExpectNothingHappened();
}

TEST_F(Arguments, SetCurrentInputAudioTakesThreeChannelsOfSelva) {
  SweepSetter(
      "SetCurrentUSBInputAudio", {{kSelva, {1, 1, 1}}}, kChannelsOnly,
      [](ProductId product, std::int32_t channel, std::uint32_t) {
        return ORV_SetCurrentUSBInputAudio(product, channel);
      },
      Success);
  ExpectNothingHappened();
}

// --- The warning -----------------------------------------------------------------------------

TEST_F(Arguments, WarningTakes101AndThirteenLanguages) {
  const Accepted accepted = {{kArden, {1, 1, 1, 1}},     {kVolt, {1, 1, 1}},
                             {kHalden, {1, 1, 1, 1, 1}}, {kLumen, {1, 1, 1, 1}},
                             {kMorrow, {1, 1, 1, 1}},    {kSelva, {1, 1, 1, 1}}};
  constexpr std::int32_t kLanguages[] = {kLeast, -1, 0,  1,  2,  3,  4,   5,   6,   7,   8,    9,
                                         10,     11, 12, 13, 98, 99, 100, 101, 255, 256, kMost};
  constexpr StatusCode kStatuses[] = {
      kLeast,        -1,   0, 99, kSuccess, kSuccessWithWarning, kBadArgument, kConnected,
      kNotConnected, kMost};
  // Nothing is installed, so an accepted call gives null.
  Sweep sweep;
  for (const ProductId product : kAllProducts) {
    for (const std::int32_t channel : kChannels) {
      for (const StatusCode status : kStatuses) {
        for (const std::int32_t language : kLanguages) {
          const bool isLanguage = (language >= 0 && language <= 11) || language == 99;
          const bool isAccepted =
              Contains(accepted, product, channel) && status == kSuccessWithWarning && isLanguage;
          ORVStringRef text = BeforeText();
          sweep.Expect(
              ORV_GetWarningTextForSetUSBAudioInput(product, channel, status, language, &text),
              isAccepted ? kSuccess : kBadArgument, "Warning", product, channel, status, language);
          sweep.Expect(text == nullptr, isAccepted, "Warning", product, channel, status, language);
          sweep.Expect(text == BeforeText(), !isAccepted, "Warning", product, channel, status,
                       language);
        }
        sweep.Expect(ORV_GetWarningTextForSetUSBAudioInput(product, channel, status, 0, nullptr),
                     kBadArgument, "Warning", product, channel, status, "null");
      }
    }
  }
  ExpectNothingHappened();
}

// --- Output audio ----------------------------------------------------------------------------

TEST_F(Arguments, OutputAudioCountTakesThreeChannelsOfSelva) {
  SweepChannels("NumOfOutputAudioIndex", ORV_GetNumOfOutputAudioIndex, {{kSelva, {1, 1, 1}}},
                kBeforeUnsigned, [](ProductId, std::int32_t) { return 3U; });
  ExpectNothingHappened();
}

TEST_F(Arguments, OutputAudioTextTakesThreeChannelsAndFourIndexesOfSelva) {
  SweepTexts("USBOutputAudioText", {{kSelva, {4, 4, 4}}}, kChannelsAndIndexes,
             [](ProductId product, std::int32_t channel, std::uint32_t index, ORVStringRef *text) {
               return ORV_GetUSBOutputAudioText(product, channel, index, index, text);
             });
  ExpectNothingHappened();
}

TEST_F(Arguments, SetOutputAudioTakesFiveChannelsOfSelva) {
  const std::size_t count = SweepSetter("SetUSBOutputAudio", {{kSelva, {3, 3, 3, 3, 3}}},
                                        kChannelsAndIndexes, ORV_SetUSBOutputAudio, Success);
  EXPECT_EQ(count, 15U);
  EXPECT_EQ(rig_->TakeAnnouncements(15).size(), 15U);
}

TEST_F(Arguments, SetOutputAudioDefaultTakesFiveChannelsOfSelva) {
  SweepSetter(
      "SetUSBOutputAudioDefault", {{kSelva, {1, 1, 1, 1, 1}}}, kChannelsOnly,
      [](ProductId product, std::int32_t channel, std::uint32_t) {
        return ORV_SetUSBOutputAudioDefault(product, channel);
      },
      Success);
  EXPECT_EQ(rig_->TakeAnnouncements(5).size(), 5U);
  EXPECT_EQ(LibraryListing(), Lines());
}

TEST_F(Arguments, CurrentOutputAudioTakesThreeChannelsOfSelva) {
  SweepChannels("CurrentUSBOutputAudioIndex", ORV_GetCurrentUSBOutputAudioIndex,
                {{kSelva, {1, 1, 1}}}, kBefore,
                [](ProductId, std::int32_t channel) { return channel; });
  ExpectNothingHappened();
}

TEST_F(Arguments, SetCurrentOutputAudioTakesThreeChannelsOfSelva) {
  SweepSetter(
      "SetCurrentUSBOutputAudio", {{kSelva, {1, 1, 1}}}, kChannelsOnly,
      [](ProductId product, std::int32_t channel, std::uint32_t) {
        return ORV_SetCurrentUSBOutputAudio(product, channel);
      },
      Success);
  ExpectNothingHappened();
}

// --- Version texts ---------------------------------------------------------------------------

TEST_F(Arguments, VersionTextsTakeSelvaOrSixModelsWhenAllIsInstalled) {
  InstallSystem("10.15");
  Install("/private/var/db/receipts/com.orvikaudio.TRX-SELVA.pkg.plist",
          "<key>PackageVersion</key><string>1</string>");
  Install("/Library/Frameworks/TRX-SELVASetup.framework/Versions/A/Resources/Info.plist",
          "<key>CFBundleVersion</key><string>1</string>");
  for (const std::string model :
       {"TRX-Arden", "TRX-VOLT", "TRX-HALDEN", "TRX-LUMEN", "TRX-MORROW", "TRX-SELVA"}) {
    Install("/Library/Extensions/" + model + " USBAudio.kext/Contents/Info.plist",
            "<key>CFBundleShortVersionString</key><string>1</string>");
    Install("/Applications/Orvik/" + model + "/" + model + " Setup.app/Contents/Info.plist",
            "<key>CFBundleVersion</key><string>1</string>");
  }
  // All contain the same text, so all calls give the same pointer.
  ORVStringRef one = nullptr;
  ASSERT_EQ(ORV_GetPkgVersionText(kSelva, &one), kSuccess);
  ASSERT_EQ(CharactersOf(one), "1");
  SweepProducts("PkgVersionText", ORV_GetPkgVersionText, kSelvaOnly, BeforeText(), one,
                BeforeText());
  SweepProducts("DriverVersionText", ORV_GetDriverVersionText, kAllSix, BeforeText(), one,
                BeforeText());
  SweepProducts("UtilityVersionText", ORV_GetUtilityVersionText, kAllSix, BeforeText(), one,
                BeforeText());
  SweepProducts("LibraryVersionText", ORV_GetLibraryVersionText, kSelvaOnly, BeforeText(), one,
                BeforeText());
  ExpectNothingHappened();
}

// --- Callbacks -------------------------------------------------------------------------------

void NeverCalledWithChannel(std::int32_t, std::int32_t, void *) {
  ADD_FAILURE() << "nothing was announced";
}

// Null callbacks and contexts are accepted.
template <typename Callback>
void SweepRegistration(const char *name, StatusCode (*put)(ProductId, Callback, void *),
                       StatusCode (*takeAway)(ProductId, Callback), Callback callback,
                       const Accepted &accepted) {
  int context = 0;
  Sweep sweep;
  for (const ProductId product : kAllProducts) {
    const StatusCode expected = Contains(accepted, product) ? kSuccess : kBadArgument;
    sweep.Expect(takeAway(product, callback), expected, name, product, "before");
    sweep.Expect(put(product, callback, &context), expected, name, product);
    sweep.Expect(put(product, nullptr, &context), expected, name, product, "null");
    sweep.Expect(put(product, callback, nullptr), expected, name, product, "no context");
    sweep.Expect(takeAway(product, nullptr), expected, name, product, "null");
    sweep.Expect(takeAway(product, callback), expected, name, product, "again");
  }
}

TEST_F(Arguments, CallbacksOfTheRoutingsAreForSixModels) {
  SweepRegistration("InputAudio", ORV_RegisterInputAudioChangedCallback,
                    ORV_UnregisterInputAudioChangedCallback, NeverCalledWithChannel, kAllSix);
  SweepRegistration("OutputAudio", ORV_RegisterOutputAudioChangedCallback,
                    ORV_UnregisterOutputAudioChangedCallback, NeverCalledWithChannel, kAllSix);
  ExpectNothingHappened();
}

}  // namespace
}  // namespace trxtest
