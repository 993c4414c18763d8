#include "CheckWords.h"

#include <QCoreApplication>
#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>

#include "Words.h"

namespace setup {
namespace {

using client::Check;
using client::CheckedPart;
using client::Finding;

class CheckWords {
  Q_DECLARE_TR_FUNCTIONS(CheckWords)
};

constexpr char kReloadRules[] = "sudo udevadm control --reload && sudo udevadm trigger";

QString Path(const std::string &path) { return QFile::decodeName(path.c_str()); }

QString Reason(const Check &check) { return QString::fromLocal8Bit(std::strerror(check.reason)); }

QString Mixer(const Check &check) {
  return check.mixers.empty() ? QString() : MixerAsText(check.mixers.front());
}

QString Names(const Check &check) {
  QStringList names;
  for (const std::string &name : check.names) names << QString::fromStdString(name);
  return names.join(CheckWords::tr(", "));
}

QString Parts(const QStringList &parts) { return parts.join(CheckWords::tr(", ")); }

QString FilesAsText(const Check &check) {
  QStringList parts;
  if (check.count > 0) parts << CheckWords::tr("%1 in good order").arg(check.count);
  if (check.otherCount > 0) parts << CheckWords::tr("%1 without effect").arg(check.otherCount);
  return parts.isEmpty() ? CheckWords::tr("nothing stored yet") : Parts(parts);
}

QString AutoApplyAsText(const Check &check) {
  if (check.autoApply != client::AutoApplyObstacle::kNone) {
    return AutoApplyObstacleAsText(check.autoApply);
  }
  return check.otherCount != 0 ? CheckWords::tr("turned off") : CheckWords::tr("on");
}

QString GoodAsText(const Check &check) {
  switch (check.part) {
    case CheckedPart::kUsb:
      return check.count == 1 ? CheckWords::tr("1 USB device seen")
                              : CheckWords::tr("%1 USB devices seen").arg(check.count);
    case CheckedPart::kMaker:
      return check.names.empty() ? CheckWords::tr("no other product of the maker is connected")
                                 : CheckWords::tr("also connected: %1").arg(Names(check));
    case CheckedPart::kMixer:
      return check.mixers.empty() ? CheckWords::tr("a mixer is connected")
                                  : CheckWords::tr("found: %1").arg(MixersAsText(check.mixers));
    case CheckedPart::kNode:
      return Path(check.path);
    case CheckedPart::kAccess:
      return CheckWords::tr("%1 may be opened").arg(Mixer(check));
    case CheckedPart::kAnswer:
      return CheckWords::tr("every mixer that may be opened answers");
    case CheckedPart::kSessionBus:
      return CheckWords::tr("reached");
    case CheckedPart::kSettingsFolder:
      return Path(check.path);
    case CheckedPart::kSettingsFiles:
      return FilesAsText(check);
    case CheckedPart::kAutoApply:
      return AutoApplyAsText(check);
    case CheckedPart::kInstallation:
      break;
  }
  return CheckWords::tr("library %1, package %2")
      .arg(QString::fromStdString(check.names.front()), QString::fromStdString(check.names.back()));
}

ProblemWords NoPermission(const Check &check) {
  ProblemWords words{
      CheckWords::tr("You may not open the mixer"),
      CheckWords::tr("It is connected, but this computer lets only administrators use it. Let an "
                     "administrator run the command below once, then plug the mixer in again.")};
  words.command = check.finding == Finding::kNoRule
                      ? "sudo cp " + Path(check.path) + " /etc/udev/rules.d/ && " + kReloadRules
                      : QString(kReloadRules);
  return words;
}

ProblemWords FolderProblem(const Check &check) {
  const QString title = CheckWords::tr("Your settings cannot be kept");
  if (check.reason == ENOSPC || check.reason == EDQUOT) {
    return {title, CheckWords::tr("The disk is full. Delete files that you do not need.")};
  }
  if (check.reason == EROFS) {
    return {title, CheckWords::tr("The disk can only be read. Let an administrator change that.")};
  }
  if (check.finding == Finding::kNoFolder) {
    return {title, CheckWords::tr("A file is in the place of the folder %1. Move it elsewhere.")
                       .arg(Path(check.obstacle))};
  }
  return {title, CheckWords::tr("The folder %1 is not writable. Give yourself the right to write "
                                "to it.")
                     .arg(Path(check.obstacle))};
}

ProblemWords FileProblem(const Check &check) {
  const QString title = CheckWords::tr("Your settings cannot be read");
  const QString file = Path(check.path);
  switch (check.finding) {
    case Finding::kFileTooLarge:
    case Finding::kFileTooDeep:
    case Finding::kFileIsNoList:
      return {title, CheckWords::tr("%1 holds no settings. Remove it.").arg(file)};
    case Finding::kFileIsNone:
      return {title, CheckWords::tr("%1 is no file. Remove it.").arg(file)};
    case Finding::kNoChoice:
      return {CheckWords::tr("A stored setting is no choice"),
              CheckWords::tr("%1 is stored with a number that no choice has. Choose it anew.")
                  .arg(SettingAsText(check.settings.front()))};
    case Finding::kFileKept:
      return {CheckWords::tr("Earlier settings were set aside"),
              CheckWords::tr("They could not be read, and are kept in %1. Remove that file if you "
                             "do not need it.")
                  .arg(Names(check))};
    default:
      return {title, CheckWords::tr("%1 cannot be read. Give yourself the right to read it, or "
                                    "remove it.")
                         .arg(file)};
  }
}

}  // namespace

QString PartAsText(CheckedPart part) {
  static const std::array<const char *, 11> kNames{
      QT_TRANSLATE_NOOP("CheckWords", "USB"),
      QT_TRANSLATE_NOOP("CheckWords", "Other products"),
      QT_TRANSLATE_NOOP("CheckWords", "Mixer"),
      QT_TRANSLATE_NOOP("CheckWords", "Device file"),
      QT_TRANSLATE_NOOP("CheckWords", "Permission"),
      QT_TRANSLATE_NOOP("CheckWords", "Answer"),
      QT_TRANSLATE_NOOP("CheckWords", "Session bus"),
      QT_TRANSLATE_NOOP("CheckWords", "Settings folder"),
      QT_TRANSLATE_NOOP("CheckWords", "Settings files"),
      QT_TRANSLATE_NOOP("CheckWords", "Installation"),
      QT_TRANSLATE_NOOP("CheckWords", "At plug-in"),
  };
  return CheckWords::tr(kNames.at(static_cast<std::size_t>(part)));
}

QString CheckAsText(const Check &check) {
  if (check.IsGood()) return GoodAsText(check);
  switch (check.finding) {
    case Finding::kUsbHidden:
    case Finding::kNoUsbDevice:
      return CheckWords::tr("no USB device seen");
    case Finding::kNoMixer:
    case Finding::kOnlyOtherProducts:
      return CheckWords::tr("but no mixer");
    case Finding::kNoRule:
    case Finding::kRuleWithoutEffect:
      return CheckWords::tr("You may not open it");
    default:
      return ProblemAsText(check).title;
  }
}

ProblemWords ProblemAsText(const Check &check) {
  switch (check.finding) {
    case Finding::kGood:
      break;
    case Finding::kUsbHidden:
    case Finding::kNoUsbDevice:
      return {CheckWords::tr("This computer shows no USB at all"),
              CheckWords::tr("Is this a virtual machine or a container? It needs a USB "
                             "controller.")};
    case Finding::kOnlyOtherProducts:
      return {CheckWords::tr("This product has no settings here"),
              CheckWords::tr("%1 is connected. It is not a mixer that this program can set. "
                             "Connect a mixer of the TRX-SELVA family.")
                  .arg(Names(check))};
    case Finding::kNoMixer:
      return {CheckWords::tr("No mixer found"),
              CheckWords::tr("Connect the mixer by USB and switch it on. What you choose meanwhile "
                             "is kept.")};
    case Finding::kNodeMissing:
      return {CheckWords::tr("The mixer cannot be opened"),
              CheckWords::tr("The file %1 is missing. Plug the mixer out and in again.")
                  .arg(Path(check.path))};
    case Finding::kNoRule:
    case Finding::kRuleWithoutEffect:
      return NoPermission(check);
    case Finding::kHeld:
      return {CheckWords::tr("Another program holds the mixer"),
              CheckWords::tr("Only one program at a time may use it so. End that program. The "
                             "command below names it."),
              "lsof " + Path(check.mixers.front().node)};
    case Finding::kNotOpened:
      return {CheckWords::tr("The mixer cannot be opened"),
              CheckWords::tr("Plug it out and in again. The system says: %1.").arg(Reason(check))};
    case Finding::kNoAnswer:
      return {CheckWords::tr("%1 does not answer").arg(Mixer(check)),
              CheckWords::tr("Switch it off and on again, and connect it without a hub. Your "
                             "settings are kept.")};
    case Finding::kNoSessionBus:
    case Finding::kSessionBusSilent:
      return {CheckWords::tr("There is no session bus"),
              CheckWords::tr("Changes made by other programs show up a little later. Log out and "
                             "in again.")};
    case Finding::kNoHome:
      return {CheckWords::tr("Your settings cannot be kept"),
              CheckWords::tr("This user has no home folder.")};
    case Finding::kFolderNotWritable:
    case Finding::kNoFolder:
      return FolderProblem(check);
    case Finding::kFileIsNone:
    case Finding::kFileTooLarge:
    case Finding::kFileTooDeep:
    case Finding::kFileUnreadable:
    case Finding::kFileIsNoList:
    case Finding::kNoChoice:
    case Finding::kFileKept:
      return FileProblem(check);
    case Finding::kAutoApplyBroken:
      return {CheckWords::tr("Settings cannot be sent to a mixer that is plugged in"),
              AutoApplyObstacleAsText(check.autoApply)};
    case Finding::kNoLibraryVersion:
    case Finding::kNoPackageVersion:
      return {CheckWords::tr("The installation is not complete"),
              CheckWords::tr("Files with versions are missing. Install the package again.")};
  }
  return {GoodAsText(check), {}};
}

}  // namespace setup
