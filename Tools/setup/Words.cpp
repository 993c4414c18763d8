#include "Words.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstring>

namespace setup {
namespace {

class Words {
  Q_DECLARE_TR_FUNCTIONS(Words)
};

std::vector<client::Mixer> MixersThat(const client::Delivery &delivery, client::Outcome outcome) {
  std::vector<client::Mixer> mixers;
  for (const client::MixerResult &result : delivery.mixers) {
    if (result.outcome == outcome) mixers.push_back(result.mixer);
  }
  return mixers;
}

/// What a mixer did that did not take a value.
QString FailureAsText(client::Outcome outcome, const QString &mixer) {
  switch (outcome) {
    case client::Outcome::kDone:
      return {};
    case client::Outcome::kRefused:
      return Words::tr("%1 refused it.").arg(mixer);
    case client::Outcome::kNoAnswer:
      return Words::tr("%1 did not answer.").arg(mixer);
    case client::Outcome::kGone:
      return Words::tr("%1 was unplugged.").arg(mixer);
    case client::Outcome::kNoPermission:
      return Words::tr("%1 may not be opened.").arg(mixer);
    case client::Outcome::kBusy:
      return Words::tr("Another program holds %1.").arg(mixer);
    case client::Outcome::kFailed:
      break;
  }
  return Words::tr("%1 did not take it.").arg(mixer);
}

QString FailuresAsText(const client::Delivery &delivery) {
  QStringList failures;
  for (const client::MixerResult &result : delivery.mixers) {
    const QString failure = FailureAsText(result.outcome, MixerAsText(result.mixer));
    if (!failure.isEmpty()) failures << failure;
  }
  return failures.join(' ');
}

QString DeliveryAsText(const client::Delivery &delivery) {
  if (!delivery.isConnected) return Words::tr("Kept. No mixer is connected.");
  const QString failures = FailuresAsText(delivery);
  const auto taken = static_cast<int>(delivery.CountTaken());
  if (taken == 0) return Words::tr("Kept, but not sent:") + ' ' + failures;
  if (!failures.isEmpty()) {
    const QString mixers = MixersAsText(MixersThat(delivery, client::Outcome::kDone));
    return Words::tr("Sent to %1.").arg(mixers) + ' ' + failures;
  }
  return taken == 1 ? Words::tr("Sent to one mixer.") : Words::tr("Sent to %1 mixers.").arg(taken);
}

QString SentenceOf(const ShownSetting &shown) {
  return SettingAsText(shown.setting) + ' ' + ChoiceAsText(shown) + '.';
}

}  // namespace

QString UsbChannelAsText(int32_t channel) { return Words::tr("USB %1").arg(channel + 1); }

QString SettingAsText(const client::Setting &setting) {
  const QString channel = UsbChannelAsText(setting.channel);
  if (setting.kind->name == "input") return Words::tr("%1 records").arg(channel);
  if (setting.kind->name == "output") return Words::tr("%1 plays to").arg(channel);
  if (setting.kind->name == "boost") return Words::tr("Boost level");
  return Words::tr("MIDI channel");
}

QString SettingAsDescription(const client::Setting &setting) {
  const QString channel = UsbChannelAsText(setting.channel);
  if (setting.kind->name == "input") {
    return Words::tr("The signal of the mixer that the computer records on %1.").arg(channel);
  }
  if (setting.kind->name == "output") {
    return Words::tr("The mixer channel that the computer plays %1 to.").arg(channel);
  }
  if (setting.kind->name == "boost") return Words::tr("How loud you record.");
  return Words::tr("The MIDI channel that the mixer uses.");
}

QString ChoiceAsText(const ShownSetting &shown) {
  return shown.IsChoice() ? shown.choices.at(shown.index) : Words::tr("Unknown choice");
}

QString MixerAsText(const client::Mixer &mixer) {
  return QString::fromStdString(mixer.serial.empty() ? mixer.product : mixer.serial);
}

QString MixersAsText(const std::vector<client::Mixer> &mixers) {
  QStringList texts;
  for (const client::Mixer &mixer : mixers) texts << MixerAsText(mixer);
  return texts.join(Words::tr(", "));
}

QString SendingAsText(const Look &look) {
  const auto count = look.mixers.size();
  return count > 1 ? Words::tr("Sending to %1 mixers …").arg(count) : Words::tr("Sending …");
}

QString SentAsText(const client::SendResult &result) {
  if (result.status == ORV_BAD_ARGUMENT) {
    return Words::tr("The mixer settings refused this choice.");
  }
  if (result.isStored) return DeliveryAsText(result.delivery);
  if (result.delivery.CountTaken() > 0)
    return Words::tr("Sent, but this computer could not keep it.");
  return Words::tr("This computer could not keep the choice.");
}

QString SentAllAsText(const SentAll &all) {
  if (!all.delivery.isConnected) return Words::tr("No mixer is connected.");
  const QString failures = FailuresAsText(all.delivery);
  if (!failures.isEmpty()) return Words::tr("Not all settings were sent:") + ' ' + failures;
  if (all.failed.empty()) return Words::tr("All settings were sent.");
  QStringList names;
  for (const client::Setting &setting : all.failed) names << SettingAsText(setting);
  return Words::tr("Sent all but these; choose them anew: %1.").arg(names.join(Words::tr(", ")));
}

QString NotTurnedAsText(int reason) {
  return Words::tr("This could not be changed: %1.")
      .arg(QString::fromLocal8Bit(std::strerror(reason)));
}

QString AutoApplyObstacleAsText(client::AutoApplyObstacle obstacle) {
  switch (obstacle) {
    case client::AutoApplyObstacle::kNone:
      return {};
    case client::AutoApplyObstacle::kNoServiceManager:
      return Words::tr("Not possible in this session.");
    case client::AutoApplyObstacle::kUnitMasked:
      return Words::tr("Turned off by an administrator.");
    case client::AutoApplyObstacle::kNoUnit:
    case client::AutoApplyObstacle::kNoRule:
      break;
  }
  return Words::tr("Install the package trxctl for this.");
}

QString AutoApplyRunAsText(const client::AutoApplyRun &run) {
  return Words::tr("A mixer was plugged in: %1").arg(QString::fromStdString(run.line));
}

QString FirmwareAsText(uint32_t firmware) {
  constexpr uint32_t kMinorBits = 8;
  constexpr uint32_t kMinorMask = 0xFF;
  return QString("%1.%2")
      .arg(firmware >> kMinorBits, 0, 16)
      .arg(firmware & kMinorMask, 2, 16, QChar('0'));
}

QString WarningAsTitle(const Warning &warning) {
  return Words::tr("The input selector of CH%1 is not on USB").arg(warning.channel + 1);
}

QString RoutingInWords(const SetupState &state) {
  QStringList sentences;
  for (const ShownSetting &shown : state.Settings()) sentences << SentenceOf(shown);
  for (const Warning &warning : state.LastLook().warnings) {
    sentences << WarningAsTitle(warning) + '.';
  }
  return sentences.join(' ');
}

}  // namespace setup
