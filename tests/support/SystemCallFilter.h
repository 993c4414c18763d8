#pragma once

namespace trxtest {

/// From now on, this process and its children cannot make files without a name. Cannot be undone,
/// so a child should call it. Throws when the system refuses.
void GiveUpUnnamedFiles();

/// The same, but files can be made without a name and not be given one later, as when /proc is
/// missing.
void GiveUpNamingFilesLater();

}  // namespace trxtest
