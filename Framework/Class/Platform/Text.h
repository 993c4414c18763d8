// The platform's string operations, including TextOfLiteral. Any thread.
#pragma once

#include <string>
#include <string_view>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "TextOfLiteral.h"

namespace orv {

/// Whether the upper-case form of a text contains another text, which has upper-case ASCII
/// characters only. Independent of the locale; any thread.
bool UpperCaseContains(ORVStringRef text, const char *upperCase) noexcept;

/// Whether one text comes after another when each run of digits counts as one number: "9" is less
/// than "10".
bool IsNumericallyGreater(const std::string &text, const std::string &than);

/// A text of the same characters for a host: it stays valid and unchanged for the life of the
/// process. Another call with the same characters takes no more memory.
ORVStringRef KeptText(std::string_view text);

}  // namespace orv
