#pragma once

#include <QString>

#include "client/ProfileFault.h"

namespace setup {

/// Why something could not be done with a profile, in one sentence.
QString FaultAsText(const client::ProfileFault &fault);

}  // namespace setup
