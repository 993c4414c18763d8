#include "Setting.h"

#include <array>

#include "InputLists.h"

namespace trxctl {
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

constexpr std::array<Setting, 5> kSettings{{
    {"input",
     "input audio",
     "input audio choice",
     "what the computer records on each USB channel",
     "  trxctl input              what each channel records\n"
     "  trxctl input 2            channel 2, and the choices there are\n"
     "  trxctl input 2 \"REC OUT\"  set it by its text; rec is enough\n"
     "  trxctl input 2 7          set it by its number in the list\n"
     "  trxctl input 2 --again    send the stored choice to the mixers once more\n"
     "  trxctl input 2 --raw 10   send a raw routing value; nothing is stored\n",
     true,
     0,
     0,
     kWithChannel<CountInputChoices, ORV_GetUSBInputAudioText, ORV_GetCurrentUSBInputAudioIndex,
                  ORV_SetUSBInputAudio, ORV_SetCurrentUSBInputAudio,
                  ORV_RegisterInputAudioChangedCallback>,
     {.takes_choices = TakesInputChoices,
      .set_raw = ORV_SetUSBInputAudioDirect,
      .warning = ORV_GetWarningTextForSetUSBAudioInput}},
    {"output",
     "output audio",
     "output audio choice",
     "where the computer plays each USB channel",
     "  trxctl output             where each channel plays\n"
     "  trxctl output 2           channel 2, and the choices there are\n"
     "  trxctl output 2 AUX       set it by its text; a is enough\n"
     "  trxctl output 2 --again   send the stored choice to the mixers once more\n"
     "  trxctl output 2 --default set the default for now; nothing is stored\n",
     true,
     0,
     0,
     kWithChannel<ORV_GetNumOfOutputAudioIndex, ORV_GetUSBOutputAudioText,
                  ORV_GetCurrentUSBOutputAudioIndex, ORV_SetUSBOutputAudio,
                  ORV_SetCurrentUSBOutputAudio, ORV_RegisterOutputAudioChangedCallback>,
     {.set_default = ORV_SetUSBOutputAudioDefault}},
    {"boost",
     "boost level",
     "boost level",
     "the boost level of the mixer's USB audio output",
     "  trxctl boost              the level stored last, and the levels there are\n"
     "  trxctl boost \"-10 dB\"     set it by its text; -10 is enough\n"
     "  trxctl boost 1            set it by its number in the list\n"
     "  trxctl boost --again      send the stored level to the mixers once more\n",
     false,
     0,
     0,
     kWithoutChannel<ORV_GetNumOfBoostLevelIndex, ORV_GetBoostLevelText,
                     ORV_GetCurrentBoostLevelIndex, ORV_SetBoostLevelIndex,
                     ORV_SetCurrentBoostLevelIndex, ORV_RegisterBoostLevelChangedCallback>,
     {}},
    // Whoever says 10 means MIDI channel 10, so the numbers are those of the channels.
    {"midi",
     "MIDI channel",
     "MIDI channel",
     "the MIDI channel that the mixer uses",
     "  trxctl midi --model TRX-VOLT           the channel stored last\n"
     "  trxctl midi 10 --model TRX-VOLT        set MIDI channel 10\n"
     "  trxctl midi --again --model TRX-VOLT   send the stored channel once more\n",
     false,
     1,
     4,
     kWithoutChannel<ORV_GetNumOfMidiChannelIndex, ORV_GetMidiChannelText,
                     ORV_GetCurrentMidiChannelIndex, ORV_SetMidiChannelIndex,
                     ORV_SetCurrentMidiChannelIndex, ORV_RegisterMidiChannelChangedCallback>,
     {}},
    {"keymode",
     "key mode",
     "key mode",
     "the MIDI key mode of the mixer",
     "  trxctl keymode            tells which models offer a key mode\n",
     false,
     0,
     0,
     kWithoutChannel<ORV_GetNumOfMidiKeyModeIndex, ORV_GetMidiKeyModeText,
                     ORV_GetCurrentMidiKeyModeIndex, ORV_SetMidiKeyModeIndex,
                     ORV_SetCurrentMidiKeyModeIndex, ORV_RegisterMidiKeyModeChangedCallback>,
     {}},
}};

}  // namespace

std::span<const Setting> Settings() { return kSettings; }

}  // namespace trxctl
