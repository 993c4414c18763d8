#pragma once

namespace trxtest {

/// From now on this process, and what it starts, lives on a system whose file systems have no files
/// without a name. There is no way back, so a child should call it. Throws when the system does not
/// do its part.
void GiveUpUnnamedFiles();

/// As above, but files can be made without a name, and only not be given one later: as where /proc
/// is missing.
void GiveUpNamingFilesLater();

}  // namespace trxtest
