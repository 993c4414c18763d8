#pragma once

namespace trxtest {

/// From now on, this process and its children cannot make files without a name. Cannot be undone,
/// so a child should call it. Throws when the system refuses.
void GiveUpUnnamedFiles();

/// The same, but files can be made without a name and not be given one later, as when /proc is
/// missing.
void GiveUpNamingFilesLater();

/// From now on no two files can be exchanged in one step, and a file that is renamed replaces
/// another without asking.
void GiveUpExchange();

/// From now on opening a file fails with this errno value when one of the flags is asked for;
/// whatever the flags, when there are none.
void FailToOpen(int flags, int error);

/// From now on reading at a place in a file (pread) fails with this errno value.
void FailToRead(int error);

}  // namespace trxtest
