// XML in the encodings that property lists come in. Any thread.
#pragma once

#include <optional>
#include <string>

namespace orv {

/// The same text in UTF-8 without a byte order mark, which is what the parser reads. Knows UTF-16
/// by its byte order mark or by its first character, '<'. Nothing when it is no proper UTF-16; all
/// else, a binary list too, comes back as it is.
std::optional<std::string> InUtf8(std::string contents);

}  // namespace orv
