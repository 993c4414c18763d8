// The settings without channels: one row for each setting, and one line for each function.
#include <array>

#include "Setting.h"

using namespace orv;

namespace {

LastPosted boostLevelInfo, midiChannelInfo, midiKeyModeInfo;

// --- Boost level: the level step of the mixer's USB audio output ---------------------------------

constexpr std::array<const char *, 4> BoostLevelText = {"-5 dB", "-10 dB", "-15 dB", "-19 dB"};

// The mixer counts from the quietest level, hosts count from the loudest.
constexpr std::array<std::uint8_t, 4> _convDbTable = {3, 2, 1, 0};

}  // namespace

constinit Setting orv::boostLevel = {
    .models = kEveryServedModel,
    .key = "MaxLevel",
    .defaultIndex = 3,
    .texts = BoostLevelText,
    .request = SetUSBOutputLevelSetting,
    .codes = _convDbTable,
    .choicesSentAgain = 4,
    .change = {" BoostLevel Change", Delivery::kPlain, boostLevelInfo},
};

StatusCode ORV_GetNumOfBoostLevelIndex(ProductId productId, uint32_t *count) {
  return GetCount(boostLevel, productId, count);
}

StatusCode ORV_GetBoostLevelText(ProductId productId, uint32_t index, uint32_t /*reserved*/,
                                 ORVStringRef *text) {
  return GetText(boostLevel, productId, index, text);
}

StatusCode ORV_SetBoostLevelIndex(ProductId productId, uint32_t index) {
  return Set(boostLevel, productId, index);
}

StatusCode ORV_GetCurrentBoostLevelIndex(ProductId productId, int32_t *index) {
  return GetCurrent(boostLevel, productId, index);
}

StatusCode ORV_SetCurrentBoostLevelIndex(ProductId productId) {
  return SetCurrent(boostLevel, productId);
}

StatusCode ORV_RegisterBoostLevelChangedCallback(ProductId productId, IndexCallback callback,
                                                 void *context) {
  return Register(boostLevel.change, boostLevel.models, productId, callback, context);
}

StatusCode ORV_UnregisterBoostLevelChangedCallback(ProductId productId,
                                                   IndexCallback /*callback*/) {
  return Unregister(boostLevel.change, boostLevel.models, productId);
}

// --- MIDI channel: which of the sixteen MIDI channels the mixer uses -----------------------------

namespace {

constexpr std::array<const char *, 16> MidiChannelText = {
    "CH 1", "CH 2",  "CH 3",  "CH 4",  "CH 5",  "CH 6",  "CH 7",  "CH 8",
    "CH 9", "CH 10", "CH 11", "CH 12", "CH 13", "CH 14", "CH 15", "CH 16"};

}  // namespace

// Fewer channels can be sent again than can be set: docs/compatibility.md.
constinit Setting orv::midiChannel = {
    .models = kVoltOnly,
    .key = "MidiChannel",
    .defaultIndex = 0,
    .texts = MidiChannelText,
    .request = SetMidiChannelSetting,
    .codes = {},
    .choicesSentAgain = 4,
    .change = {" MidiChannel Change", Delivery::kPlain, midiChannelInfo},
};

StatusCode ORV_GetNumOfMidiChannelIndex(ProductId productId, uint32_t *count) {
  return GetCount(midiChannel, productId, count);
}

StatusCode ORV_GetMidiChannelText(ProductId productId, uint32_t index, uint32_t /*reserved*/,
                                  ORVStringRef *text) {
  return GetText(midiChannel, productId, index, text);
}

StatusCode ORV_SetMidiChannelIndex(ProductId productId, uint32_t index) {
  return Set(midiChannel, productId, index);
}

StatusCode ORV_GetCurrentMidiChannelIndex(ProductId productId, int32_t *index) {
  return GetCurrent(midiChannel, productId, index);
}

StatusCode ORV_SetCurrentMidiChannelIndex(ProductId productId) {
  return SetCurrent(midiChannel, productId);
}

StatusCode ORV_RegisterMidiChannelChangedCallback(ProductId productId, IndexCallback callback,
                                                  void *context) {
  return Register(midiChannel.change, midiChannel.models, productId, callback, context);
}

StatusCode ORV_UnregisterMidiChannelChangedCallback(ProductId productId,
                                                    IndexCallback /*callback*/) {
  return Unregister(midiChannel.change, midiChannel.models, productId);
}

// --- MIDI key mode: no model has one, so every function refuses every call -----------------------

namespace {

constexpr std::array<const char *, 2> MidiKeyModeText = {"Toggle", "Trigger"};

}  // namespace

// Hosts are linked with the functions, see docs/compatibility.md; nothing else of the row is used.
constinit Setting orv::midiKeyMode = {
    .models = kNoModel,
    .key = nullptr,
    .defaultIndex = 0,
    .texts = MidiKeyModeText,
    .request = SetMidiKeyModeSetting,
    .codes = {},
    .choicesSentAgain = 0,
    .change = {nullptr, Delivery::kPlain, midiKeyModeInfo},
};

StatusCode ORV_GetNumOfMidiKeyModeIndex(ProductId productId, uint32_t *count) {
  return GetCount(midiKeyMode, productId, count);
}

StatusCode ORV_GetMidiKeyModeText(ProductId productId, uint32_t index, uint32_t /*reserved*/,
                                  ORVStringRef *text) {
  return GetText(midiKeyMode, productId, index, text);
}

StatusCode ORV_SetMidiKeyModeIndex(ProductId productId, uint32_t index) {
  return Set(midiKeyMode, productId, index);
}

StatusCode ORV_GetCurrentMidiKeyModeIndex(ProductId productId, int32_t *index) {
  return GetCurrent(midiKeyMode, productId, index);
}

StatusCode ORV_SetCurrentMidiKeyModeIndex(ProductId productId) {
  return SetCurrent(midiKeyMode, productId);
}

StatusCode ORV_RegisterMidiKeyModeChangedCallback(ProductId productId, IndexCallback callback,
                                                  void *context) {
  return Register(midiKeyMode.change, midiKeyMode.models, productId, callback, context);
}

StatusCode ORV_UnregisterMidiKeyModeChangedCallback(ProductId productId,
                                                    IndexCallback /*callback*/) {
  return Unregister(midiKeyMode.change, midiKeyMode.models, productId);
}
