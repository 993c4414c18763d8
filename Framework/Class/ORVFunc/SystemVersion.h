// The version test that decides where the library is installed.
#pragma once

namespace orv {

/// Whether the second component of the system's version is numerically greater than 10. If so, the
/// library is installed below /Library, else below /System/Library. The first component does not
/// count: true for 10.15, false for 11.2. False when the version is unknown or has only one
/// component. Any thread.
bool SystemMinorVersionAbove10();

}  // namespace orv
