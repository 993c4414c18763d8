#pragma once

#include <QString>

#include "SetupState.h"

namespace setup {

/// The texts that say what became of something. Names of signals and channels are those printed on
/// the mixer, and are the same in all languages.

/// "USB 1", counted from 1 as on the mixer.
QString UsbChannelAsText(int32_t channel);

/// A setting in a sentence: "USB 1 records".
QString SettingAsText(const client::Setting &setting);

/// What a setting is, for those who hear it.
QString SettingAsDescription(const client::Setting &setting);

/// A choice as the library calls it, or that it is none.
QString ChoiceAsText(const ShownSetting &shown);

/// The serial number of a mixer, or its name where it has none.
QString MixerAsText(const client::Mixer &mixer);

/// Mixers one after the other: "SIM00001, SIM00002".
QString MixersAsText(const std::vector<client::Mixer> &mixers);

/// What is going on while a choice is on its way.
QString SendingAsText(const Look &look);

/// What became of a choice.
QString SentAsText(const client::SendResult &result);

/// What became of all settings that were sent again.
QString SentAllAsText(const SentAll &all);

/// Why the switch for plugged in mixers did not move.
QString NotTurnedAsText(int reason);

/// What keeps settings from being sent to a mixer that is plugged in; empty for nothing.
QString AutoApplyObstacleAsText(client::AutoApplyObstacle obstacle);

/// What was sent to a mixer that was plugged in.
QString AutoApplyRunAsText(const client::AutoApplyRun &run);

/// The firmware's number as the mixer writes it: 0x0100 is 1.00.
QString FirmwareAsText(uint32_t firmware);

/// The input selector that has to be turned.
QString WarningAsTitle(const Warning &warning);

/// The whole routing in sentences, for those who do not see the drawing.
QString RoutingInWords(const SetupState &state);

}  // namespace setup
