// Texts of the exported interface and characters of the suites, whatever a text is on the platform.
#pragma once

#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxtest {

/// A text with these characters (UTF-8), alive for the rest of the process; the same text for the
/// same characters. Not before main() begins. Null when they cannot stand in a text of the
/// platform.
ORVStringRef TextOf(const std::string &characters);

/// The characters of a text (UTF-8); "(null)" for none.
std::string CharactersOf(ORVStringRef text);

}  // namespace trxtest
