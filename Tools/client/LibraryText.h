#pragma once

#include <optional>
#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace client {

/// The characters of a text that the library handed out, in UTF-8; nothing for null.
std::optional<std::string> CharactersOf(ORVStringRef text);

/// The product that the library recognises in a name, if it does.
std::optional<ProductId> ProductRecognisedIn(const std::string &name);

}  // namespace client
