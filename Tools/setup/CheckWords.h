#pragma once

#include <QString>

#include "client/Diagnosis.h"

namespace setup {

/// A problem in words for the person at the mixer.
struct ProblemWords {
  QString title;
  /// What it means and the one thing to do.
  QString text;
  /// A command that an administrator runs; empty for none.
  QString command = {};
};

/// What a check found, as a line in a list.
QString CheckAsText(const client::Check &check);

/// What is the matter and what to do about it; for checks that are not good.
ProblemWords ProblemAsText(const client::Check &check);

/// The name of what was checked.
QString PartAsText(client::CheckedPart part);

}  // namespace setup
