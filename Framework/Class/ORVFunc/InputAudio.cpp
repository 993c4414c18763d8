// USB input audio: which mixer signal the computer records on each recording channel.
// docs/compatibility.md has the reasons for bounds and thresholds that differ between functions.
#include <array>
#include <span>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ChangeKind.h"
#include "ConnectedUnits.h"
#include "Product.h"
#include "SettingsFile.h"
#include "Text.h"

using namespace orv;

namespace {

// --- Texts ---------------------------------------------------------------------------------------

constexpr std::array<const char *, 42> InputAudioText = {
    "CH1 Timecode PHONO",        // 0
    "CH1 Timecode CD/LINE",      // 1
    "CH1 Timecode DIGITAL",      // 2
    "CH1 Timecode LINE",         // 3
    "Post CH1 Fader",            // 4
    "CH2 Timecode PHONO",        // 5
    "CH2 Timecode CD/LINE",      // 6
    "CH2 Timecode DIGITAL",      // 7
    "CH2 Timecode LINE",         // 8
    "Post CH2 Fader",            // 9
    "CH3 Timecode PHONO",        // 10
    "CH3 Timecode CD/LINE",      // 11
    "CH3 Timecode DIGITAL",      // 12
    "CH3 Timecode LINE",         // 13
    "Post CH3 Fader",            // 14
    "CH4 Timecode PHONO",        // 15
    "CH4 Timecode CD/LINE",      // 16
    "CH4 Timecode DIGITAL",      // 17
    "CH4 Timecode LINE",         // 18
    "Post CH4 Fader",            // 19
    "Cross Fader A",             // 20
    "Cross Fader B",             // 21
    "MIC",                       // 22
    "REC OUT",                   // 23
    "CH1 Timecode CD",           // 24
    "CH2 Timecode CD",           // 25
    "MIC / AUX Post EQ",         // 26
    "CH1 Control Tone PHONO",    // 27
    "CH1 Control Tone LINE",     // 28
    "CH1 Control Tone DIGITAL",  // 29
    "CH2 Control Tone PHONO",    // 30
    "CH2 Control Tone LINE",     // 31
    "CH2 Control Tone DIGITAL",  // 32
    "CH3 Control Tone PHONO",    // 33
    "CH3 Control Tone LINE",     // 34
    "CH3 Control Tone DIGITAL",  // 35
    "CH4 Control Tone PHONO",    // 36
    "CH4 Control Tone LINE",     // 37
    "CH4 Control Tone DIGITAL",  // 38
    "REC OUT",                   // 39
    "Post AUX Fader",            // 40
    "AUX",                       // 41
};

// The tables below hold indexes into InputAudioText, one row for each channel.

constexpr std::array<std::int32_t, 32> TRXBASE_TEXT = {
    0,  1,  2,  4,  20, 21, 22, 23,  //
    6,  8,  7,  9,  20, 21, 22, 23,  //
    11, 13, 12, 14, 20, 21, 22, 23,  //
    15, 16, 17, 19, 20, 21, 22, 23,
};

constexpr std::array<std::int32_t, 48> TRXHALDEN_TEXT = {
    27, 28, 29, 4,  20, 21, 22, 39, 27,  //
    30, 31, 32, 9,  20, 21, 22, 39, 30,  //
    33, 34, 35, 14, 20, 21, 22, 39, 33,  //
    36, 37, 38, 19, 20, 21, 22, 39, 36,  //
    39, 40, 4,  9,  14, 19, 20, 21, 22,  //
    0,  0,  0,
};

// An index past the end of TRXLUMEN_TEXT reads TRXMID_TEXT, which follows it
// (docs/compatibility.md). So the two are one sequence.
constexpr std::size_t kLumenEntries = 24;
constexpr std::size_t kMidEntries = 20;
constexpr std::array<std::int32_t, kLumenEntries + kMidEntries> kLumenThenMid = {
    // TRXLUMEN_TEXT
    27, 28, 4, 20, 21, 22, 41, 39,  //
    30, 31, 9, 20, 21, 22, 41, 39,  //
    39, 4, 9, 20, 21, 22, 41, 0,    //
    // TRXMID_TEXT
    0, 24, 0, 0, 0, 0,     //
    5, 25, 0, 0, 0, 0,     //
    4, 9, 20, 21, 26, 23,  //
    0, 0};
constexpr std::span<const std::int32_t> TRXLUMEN_TEXT = kLumenThenMid;
constexpr std::span<const std::int32_t> TRXMID_TEXT = TRXLUMEN_TEXT.subspan<kLumenEntries>();

// One number for each channel; 0 refuses the channel.
using LimitPerChannel = std::array<std::uint32_t, 5>;

bool IsBelow(const LimitPerChannel &limits, std::int32_t channel, std::uint32_t number) {
  if (channel < 0 || static_cast<std::size_t>(channel) >= limits.size()) return false;
  return number < limits[static_cast<std::size_t>(channel)];
}

struct TextTable {
  ProductSet models;
  std::span<const std::int32_t> entries;
  std::uint32_t width;
  LimitPerChannel accepted;  // looser than the rows: docs/compatibility.md
};

constexpr std::array<TextTable, 4> kTextTables = {{
    {{ORV_PRODUCT_TRX_ARDEN}, TRXBASE_TEXT, 8, {8, 8, 8, 8, 0}},
    {{ORV_PRODUCT_TRX_VOLT}, TRXMID_TEXT, 6, {2, 2, 6, 0, 0}},
    {{ORV_PRODUCT_TRX_HALDEN}, TRXHALDEN_TEXT, 9, {9, 9, 9, 9, 10}},
    {{ORV_PRODUCT_TRX_LUMEN, ORV_PRODUCT_TRX_MORROW, ORV_PRODUCT_TRX_SELVA},
     TRXLUMEN_TEXT,
     8,
     {9, 9, 9, 9, 10}},
}};

// --- Choices and their routing values ------------------------------------------------------------

constexpr LimitPerChannel kListedChoices = {8, 8, 7, 1, 0};
constexpr LimitPerChannel kSettableChoices = {8, 8, 7, 0, 0};

constexpr std::int64_t kConvTableWidth = 8;

// The high byte is the channel, from 1; the low byte is the mixer's code for the signal. The tables
// of the sister models have one more entry. Nothing reads them: the routing of those models is set
// with raw values only.
constexpr std::array<std::uint16_t, 24> _convTable_LUMEN = {
    0x0103, 0x0100, 0x0106, 0x0107, 0x0108, 0x0109, 0x010D, 0x010A,  //
    0x0203, 0x0200, 0x0206, 0x0207, 0x0208, 0x0209, 0x020D, 0x020A,  //
    0x030A, 0x0311, 0x0312, 0x0307, 0x0308, 0x0309, 0x030D, 0x0000,
};
[[maybe_unused]] constexpr const auto &_convTable_MORROW = _convTable_LUMEN;
constexpr auto _convTable_SELVA = std::span(_convTable_LUMEN).first<23>();

// Nothing for an index past the end, for example when the stored index is no choice.
const std::uint16_t *RoutingValue(std::int32_t channel, std::int64_t index) {
  const std::int64_t position = channel * kConvTableWidth + index;
  if (position < 0 || position >= std::ssize(_convTable_SELVA)) return nullptr;
  return &_convTable_SELVA[static_cast<std::size_t>(position)];
}

// --- Raw values ----------------------------------------------------------------------------------

struct RawLimits {
  ProductSet models;
  LimitPerChannel sources;
};

constexpr std::array<RawLimits, 3> kRawLimits = {{
    {{ORV_PRODUCT_TRX_ARDEN}, {16, 16, 16, 16, 0}},
    {{ORV_PRODUCT_TRX_VOLT}, {4, 4, 16, 0, 0}},
    {{ORV_PRODUCT_TRX_HALDEN, ORV_PRODUCT_TRX_LUMEN, ORV_PRODUCT_TRX_MORROW, ORV_PRODUCT_TRX_SELVA},
     {16, 16, 16, 16, 16}},
}};

std::uint16_t RawRoutingValue(std::int32_t channel, std::int32_t group, std::uint32_t source) {
  const std::uint32_t groupBits = (static_cast<std::uint32_t>(group) + 1) << 12 & 0xF000;
  const std::uint32_t channelBits = (static_cast<std::uint32_t>(channel) + 1) << 8 & 0x0F00;
  return static_cast<std::uint16_t>(groupBits | channelBits | (source & 0xFF));
}

// --- The input selectors -------------------------------------------------------------------------

// Reads the input selectors of each unit until one is in a position that does not deliver the
// chosen signal. A selector that could not be read counts as being in position 0.
template <typename Accepts>
bool AnySelectorRefuses(const ConnectedUnits &units, std::uint16_t length, std::int32_t channel,
                        Accepts accepts) {
  bool isRefused = false;
  VisitUnits(units, [&](DeviceHandle unit) {
    std::array<std::uint8_t, 6> selectors = {};  // one more than is ever read
    GetInputSelectorInfo(unit, selectors.data(), length);
    isRefused = !accepts(selectors[static_cast<std::size_t>(channel) + 1]);
    return isRefused ? Visit::kStop : Visit::kNext;
  });
  return isRefused;
}

// The thresholds with and without a unit differ: docs/compatibility.md.
StatusCode WarnAboutChoice(const ConnectedUnits &units, std::int32_t channel, std::uint32_t index) {
  if (units.Count() == 0) return index < 3 ? ORV_SUCCESS_WITH_WARNING : ORV_SUCCESS;
  const bool isRefused = AnySelectorRefuses(units, 4, channel, [&](std::uint8_t selector) {
    return index >= 2 || selector == 6 || selector == 7;
  });
  return isRefused ? ORV_SUCCESS_WITH_WARNING : ORV_SUCCESS;
}

StatusCode WarnAboutRawValue(const ConnectedUnits &units, std::int32_t channel,
                             std::uint32_t source) {
  if (units.Count() == 0) return source < 3 ? ORV_SUCCESS_WITH_WARNING : ORV_SUCCESS;
  const bool isRefused = AnySelectorRefuses(
      units, 5, channel, [&](std::uint8_t selector) { return source >= 4 || selector == 4; });
  return isRefused ? ORV_SUCCESS_WITH_WARNING : ORV_SUCCESS;
}

// TRX-VOLT has selectors for its first two channels. Without a unit they are unknown.
StatusCode WarnAboutRawValueOnVolt(const ConnectedUnits &units, std::int32_t channel) {
  if (units.Count() == 0) return ORV_SUCCESS_WITH_WARNING;
  const bool isRefused = AnySelectorRefuses(
      units, 3, channel, [&](std::uint8_t selector) { return channel >= 2 || selector == 2; });
  return isRefused ? ORV_SUCCESS_WITH_WARNING : ORV_SUCCESS;
}

// --- Stored choices ------------------------------------------------------------------------------

constexpr std::array<const char *, 5> kKeys = {"Output0", "Output1", "Output2", "Output3",
                                               "Output4"};

struct StoredChoice {
  ProductSet models;
  std::int32_t channels;
  std::array<std::int32_t, 6> defaults;  // one for each channel
};

constexpr std::array<StoredChoice, 3> kStoredChoices = {{
    {{ORV_PRODUCT_TRX_ARDEN}, 4, {3, 3, 3, 3}},
    {{ORV_PRODUCT_TRX_VOLT}, 3, {1, 1, 5}},
    {{ORV_PRODUCT_TRX_HALDEN, ORV_PRODUCT_TRX_LUMEN, ORV_PRODUCT_TRX_MORROW, ORV_PRODUCT_TRX_SELVA},
     6,
     {0, 0, 0, 0, 0, 0}},
}};

template <typename Row, std::size_t size>
const Row *RowOf(const std::array<Row, size> &rows, ProductId productId) {
  for (const Row &row : rows) {
    if (row.models.Contains(productId)) return &row;
  }
  return nullptr;
}

LastPosted inputAudioInfo;

}  // namespace

// A routing change is delivered even to a receiver that the platform has suspended, so that no
// window shows an outdated routing.
constinit ChangeKind<ChannelIndexCallback> orv::inputAudioChange = {
    " InputAudio Change", Delivery::kImmediately, inputAudioInfo};

StatusCode ORV_GetNumOfInputAudioIndex(ProductId productId, int32_t channel, int32_t *count) {
  if (count == nullptr || !kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (!IsBelow(kListedChoices, channel, 0)) return ORV_BAD_ARGUMENT;
  *count = static_cast<int32_t>(kListedChoices[static_cast<std::size_t>(channel)]);
  return ORV_SUCCESS;
}

StatusCode ORV_GetUSBInputAudioText(ProductId productId, int32_t channel, uint32_t index,
                                    uint32_t /*reserved*/, ORVStringRef *text) {
  if (text == nullptr) return ORV_BAD_ARGUMENT;
  const TextTable *const table = RowOf(kTextTables, productId);
  if (table == nullptr || !IsBelow(table->accepted, channel, index)) return ORV_BAD_ARGUMENT;
  const std::int32_t number = table->entries[static_cast<uint32_t>(channel) * table->width + index];
  *text = TextOfLiteral(InputAudioText[static_cast<std::size_t>(number)]);
  return ORV_SUCCESS;
}

StatusCode ORV_SetUSBInputAudio(ProductId productId, int32_t channel, uint32_t index) {
  if (!kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (!IsBelow(kSettableChoices, channel, index)) return ORV_BAD_ARGUMENT;
  const ConnectedUnits units =
      ApplyToEveryUnit(productId, SetMixerOutputSetting, *RoutingValue(channel, index));
  MergeSettingValue(ModelDisplayName(productId), kKeys[static_cast<std::size_t>(channel)],
                    static_cast<int32_t>(index));
  Announce(inputAudioChange, productId, channel, index);
  return WarnAboutChoice(units, channel, index);
}

StatusCode ORV_SetUSBInputAudioDirect(ProductId productId, int32_t channel, int32_t group,
                                      uint32_t source) {
  const RawLimits *const limits = RowOf(kRawLimits, productId);
  if (limits == nullptr || !IsBelow(limits->sources, channel, source)) return ORV_BAD_ARGUMENT;
  const ConnectedUnits units =
      ApplyToEveryUnit(productId, SetMixerOutputSetting, RawRoutingValue(channel, group, source));
  return kVoltOnly.Contains(productId) ? WarnAboutRawValueOnVolt(units, channel)
                                       : WarnAboutRawValue(units, channel, source);
}

StatusCode ORV_GetCurrentUSBInputAudioIndex(ProductId productId, int32_t channel, int32_t *index) {
  if (index == nullptr) return ORV_BAD_ARGUMENT;
  const StoredChoice *const stored = RowOf(kStoredChoices, productId);
  if (stored == nullptr || channel < 0 || channel >= stored->channels) return ORV_BAD_ARGUMENT;
  const auto place = static_cast<std::size_t>(channel);
  if (place >= kKeys.size()) {  // a channel that can be read but is never stored
    *index = 0;
    return ORV_SUCCESS;
  }
  GetSettingValue(ModelDisplayName(productId), kKeys[place], stored->defaults[place], index);
  return ORV_SUCCESS;
}

StatusCode ORV_SetCurrentUSBInputAudio(ProductId productId, int32_t channel) {
  int32_t recorded = 0;
  if (ORV_GetCurrentUSBInputAudioIndex(productId, channel, &recorded) != ORV_SUCCESS) {
    return ORV_BAD_ARGUMENT;
  }
  if (!kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  const std::uint16_t *const value = RoutingValue(channel, recorded);
  if (value == nullptr) return ORV_BAD_ARGUMENT;
  ApplyToEveryUnit(productId, SetMixerOutputSetting, *value);
  return ORV_SUCCESS;
}

StatusCode ORV_RegisterInputAudioChangedCallback(ProductId productId, ChannelIndexCallback callback,
                                                 void *context) {
  return Register(inputAudioChange, kEveryServedModel, productId, callback, context);
}

StatusCode ORV_UnregisterInputAudioChangedCallback(ProductId productId,
                                                   ChannelIndexCallback /*callback*/) {
  return Unregister(inputAudioChange, kEveryServedModel, productId);
}
