// Conversion between texts of the exported interface and the characters that suites use.
#pragma once

#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxtest {

/// A text with these characters (UTF-8), alive for the rest of the process; the same text for the
/// same characters. Not before main() begins. Null when the platform has no text with these
/// characters.
ORVStringRef TextOf(const std::string &characters);

/// The characters of a text (UTF-8); "(null)" for none.
std::string CharactersOf(ORVStringRef text);

}  // namespace trxtest
