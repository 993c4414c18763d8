#include "ProfileFaultWords.h"

#include <QCoreApplication>
#include <QFile>
#include <cstring>

#include "Words.h"

namespace setup {
namespace {

using client::ProfileProblem;

class ProfileFaultWords {
  Q_DECLARE_TR_FUNCTIONS(ProfileFaultWords)
};

QString SettingIn(const client::ProfileFault &fault) {
  return fault.setting ? SettingAsText(*fault.setting) : QString::fromStdString(fault.what);
}

}  // namespace

QString FaultAsText(const client::ProfileFault &fault) {
  const QString what = QString::fromStdString(fault.what);
  const QString reason = QString::fromLocal8Bit(std::strerror(fault.reason));
  switch (fault.problem) {
    case ProfileProblem::kNameEmpty:
      return ProfileFaultWords::tr("A profile needs a name.");
    case ProfileProblem::kNameTooLong:
      return ProfileFaultWords::tr("This name is too long.");
    case ProfileProblem::kNameNotPrintable:
      return ProfileFaultWords::tr("This name has characters that a name cannot have.");
    case ProfileProblem::kNoHome:
      return ProfileFaultWords::tr("This user has no home folder to keep profiles in.");
    case ProfileProblem::kNoSuchProfile:
      return ProfileFaultWords::tr("There is no profile %1 any more.").arg(what);
    case ProfileProblem::kNameTaken:
      return ProfileFaultWords::tr("There is a profile %1 already.").arg(what);
    case ProfileProblem::kFileTaken:
      return ProfileFaultWords::tr("There is a file %1 already.").arg(what);
    case ProfileProblem::kMisplaced:
      return ProfileFaultWords::tr("The file is named for another profile, %1. Import it.")
          .arg(what);
    case ProfileProblem::kUnreadable:
      return ProfileFaultWords::tr("%1 cannot be read: %2.").arg(what, reason);
    case ProfileProblem::kUnwritable:
      return ProfileFaultWords::tr("%1 cannot be written: %2.").arg(what, reason);
    case ProfileProblem::kStoredIsNoChoice:
      return ProfileFaultWords::tr("%1 is set to an unknown choice. Choose it anew first.")
          .arg(SettingIn(fault));
    case ProfileProblem::kOtherFormat:
      return ProfileFaultWords::tr("This profile is from a newer version of this program.");
    case ProfileProblem::kUnknownModel:
      return ProfileFaultWords::tr("This profile is for a mixer that is not known here: %1.")
          .arg(what);
    case ProfileProblem::kUnknownText:
      return ProfileFaultWords::tr("The mixer has no choice \"%1\".").arg(what);
    case ProfileProblem::kUnknownSetting:
    case ProfileProblem::kNotTaken:
    case ProfileProblem::kUnknownChannel:
    case ProfileProblem::kNoChannels:
    case ProfileProblem::kDisagree:
    case ProfileProblem::kSettingTwice:
      return ProfileFaultWords::tr("This profile holds something that the mixer does not have: %1.")
          .arg(SettingIn(fault));
    case ProfileProblem::kNoSettings:
      return ProfileFaultWords::tr("This profile holds no settings.");
    case ProfileProblem::kTooLarge:
    case ProfileProblem::kNoUtf8:
    case ProfileProblem::kNoJson:
    case ProfileProblem::kTooDeep:
    case ProfileProblem::kMemberTwice:
    case ProfileProblem::kNoMember:
    case ProfileProblem::kNotObject:
    case ProfileProblem::kNotList:
    case ProfileProblem::kNotText:
    case ProfileProblem::kNotNumber:
      break;
  }
  return ProfileFaultWords::tr("This file is no profile.");
}

}  // namespace setup
