// The one question that the library asks about the operating system.
#pragma once

namespace orv {

/// Whether the second component of the system's version is numerically greater than 10: then what
/// is installed lies below /Library, else below /System/Library. The first component does not
/// count, so 10.15 is above and 11.2 is not. False when the version is not known or has one
/// component only. Any thread.
bool SystemMinorVersionAbove10();

}  // namespace orv
