#include "Settings.h"

#include <algorithm>
#include <array>

#include "InputLists.h"
#include "LibraryText.h"
#include "StoredSettings.h"

namespace client {
namespace {

void ChangedWithoutChannel(int32_t index, void *listener) {
  static_cast<Listener *>(listener)->Changed(kNoChannel, index);
}

void ChangedWithChannel(int32_t channel, int32_t index, void *listener) {
  static_cast<Listener *>(listener)->Changed(channel, index);
}

/// The functions of a setting without channels.
template <auto Count, auto Text, auto Get, auto Set, auto Again, auto Register>
constexpr SettingFunctions kWithoutChannel{
    [](ProductId model, int32_t, uint32_t *count) { return Count(model, count); },
    [](ProductId model, int32_t, uint32_t index, ORVStringRef *text) {
      return Text(model, index, 0, text);
    },
    [](ProductId model, int32_t, int32_t *index) { return Get(model, index); },
    [](ProductId model, int32_t, uint32_t index) { return Set(model, index); },
    [](ProductId model, int32_t) { return Again(model); },
    [](ProductId model, Listener *listener) {
      return Register(model, ChangedWithoutChannel, listener);
    },
};

/// The functions of a setting that each channel has.
template <auto Count, auto Text, auto Get, auto Set, auto Again, auto Register>
constexpr SettingFunctions kWithChannel{
    Count,
    [](ProductId model, int32_t channel, uint32_t index, ORVStringRef *text) {
      return Text(model, channel, index, 0, text);
    },
    Get,
    Set,
    Again,
    [](ProductId model, Listener *listener) {
      return Register(model, ChangedWithChannel, listener);
    },
};

// Each channel that the computer plays goes to the mixer channel of its own number.
int32_t OwnPlace(ProductId /*model*/, int32_t channel) { return channel; }

constexpr std::array<SettingKind, 5> kSettingKinds{{
    {.name = "input",
     .title = "input audio",
     .choice = "input audio choice",
     .about = "what the computer records on each USB channel",
     .hasChannels = true,
     .againCount = 0,
     .key = "Output",
     .defaultIndex = 0,
     .functions = kWithChannel<CountInputChoices, ORV_GetUSBInputAudioText,
                               ORV_GetCurrentUSBInputAudioIndex, ORV_SetUSBInputAudio,
                               ORV_SetCurrentUSBInputAudio, ORV_RegisterInputAudioChangedCallback>,
     .extras = {.takesChoices = TakesInputChoices,
                .defaultOf = DefaultInputChoice,
                .setRaw = ORV_SetUSBInputAudioDirect,
                .warning = ORV_GetWarningTextForSetUSBAudioInput}},
    {.name = "output",
     .title = "output audio",
     .choice = "output audio choice",
     .about = "where the computer plays each USB channel",
     .hasChannels = true,
     .againCount = 0,
     .key = "Input",
     .defaultIndex = 0,
     .functions =
         kWithChannel<ORV_GetNumOfOutputAudioIndex, ORV_GetUSBOutputAudioText,
                      ORV_GetCurrentUSBOutputAudioIndex, ORV_SetUSBOutputAudio,
                      ORV_SetCurrentUSBOutputAudio, ORV_RegisterOutputAudioChangedCallback>,
     .extras = {.defaultOf = OwnPlace, .setDefault = ORV_SetUSBOutputAudioDefault}},
    {.name = "boost",
     .title = "boost level",
     .choice = "boost level",
     .about = "the boost level of the mixer's USB audio output",
     .hasChannels = false,
     .againCount = 0,
     .key = "MaxLevel",
     .defaultIndex = 3,
     .functions =
         kWithoutChannel<ORV_GetNumOfBoostLevelIndex, ORV_GetBoostLevelText,
                         ORV_GetCurrentBoostLevelIndex, ORV_SetBoostLevelIndex,
                         ORV_SetCurrentBoostLevelIndex, ORV_RegisterBoostLevelChangedCallback>},
    {.name = "midi",
     .title = "MIDI channel",
     .choice = "MIDI channel",
     .about = "the MIDI channel that the mixer uses",
     .hasChannels = false,
     .againCount = 4,
     .key = "MidiChannel",
     .defaultIndex = 0,
     .functions =
         kWithoutChannel<ORV_GetNumOfMidiChannelIndex, ORV_GetMidiChannelText,
                         ORV_GetCurrentMidiChannelIndex, ORV_SetMidiChannelIndex,
                         ORV_SetCurrentMidiChannelIndex, ORV_RegisterMidiChannelChangedCallback>},
    {.name = "keymode",
     .title = "key mode",
     .choice = "key mode",
     .about = "the MIDI key mode of the mixer",
     .hasChannels = false,
     .againCount = 0,
     .key = "",
     .defaultIndex = 0,
     .functions =
         kWithoutChannel<ORV_GetNumOfMidiKeyModeIndex, ORV_GetMidiKeyModeText,
                         ORV_GetCurrentMidiKeyModeIndex, ORV_SetMidiKeyModeIndex,
                         ORV_SetCurrentMidiKeyModeIndex, ORV_RegisterMidiKeyModeChangedCallback>},
}};

}  // namespace

std::span<const SettingKind> SettingKinds() { return kSettingKinds; }

bool Setting::IsOffered() const {
  uint32_t count = 0;
  return kind->functions.count(model->id, channel, &count) == ORV_SUCCESS;
}

bool Setting::TakesChoices() const {
  return kind->extras.takesChoices == nullptr || kind->extras.takesChoices(model->id);
}

std::vector<std::string> Setting::Choices() const {
  std::vector<std::string> choices;
  while (const auto text = TextOf(static_cast<int32_t>(choices.size()))) choices.push_back(*text);
  return choices;
}

std::optional<std::string> Setting::TextOf(int32_t index) const {
  // The text functions answer for some numbers that are no choices, so the count decides.
  uint32_t count = 0;
  ORVStringRef text = nullptr;
  if (kind->functions.count(model->id, channel, &count) != ORV_SUCCESS ||
      static_cast<uint32_t>(index) >= count ||
      kind->functions.text(model->id, channel, static_cast<uint32_t>(index), &text) !=
          ORV_SUCCESS) {
    return std::nullopt;
  }
  return CharactersOf(text);
}

int32_t Setting::Current() const {
  int32_t index = -1;
  kind->functions.get(model->id, channel, &index);
  return index;
}

int32_t Setting::Default() const {
  const auto defaultOf = kind->extras.defaultOf;
  return defaultOf == nullptr ? kind->defaultIndex : defaultOf(model->id, channel);
}

std::string Setting::Key() const {
  return std::string(kind->key) + (kind->hasChannels ? std::to_string(channel) : "");
}

bool Setting::IsStored() const {
  const auto file = SettingsFileOf(*model);
  if (!file) return false;
  const FileState state = StateOfFile(*file);
  if (!state.keys) return Current() != Default();
  return std::find(state.keys->begin(), state.keys->end(), Key()) != state.keys->end();
}

bool Setting::CanSendAgain(int32_t index) const {
  return kind->againCount == 0 || index < kind->againCount;
}

std::vector<Setting> SettingsOf(const SettingKind &kind, const Model &model) {
  std::vector<Setting> settings;
  Setting next{&kind, &model, kind.hasChannels ? 0 : kNoChannel};
  while (next.IsOffered()) {
    settings.push_back(next);
    if (!kind.hasChannels) break;
    ++next.channel;
  }
  return settings;
}

std::vector<Setting> SettingsOf(const Model &model) {
  std::vector<Setting> settings;
  for (const SettingKind &kind : kSettingKinds) {
    const std::vector<Setting> more = SettingsOf(kind, model);
    settings.insert(settings.end(), more.begin(), more.end());
  }
  return settings;
}

std::vector<const Model *> ModelsWith(const SettingKind &kind) {
  std::vector<const Model *> models = ServedModels();
  std::erase_if(models, [&kind](const Model *model) { return SettingsOf(kind, *model).empty(); });
  return models;
}

}  // namespace client
