// How a fuzz target expects the library to read a settings file.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include <plist/plist.h>

namespace trxfuzz {

struct FreeList {
  void operator()(void *list) const { plist_free(list); }
};

/// The dictionary in the bytes of a file; null when there is none.
using StoredList = std::unique_ptr<void, FreeList>;

/// The dictionary that the library should read from these bytes.
StoredList ListIn(const std::string &bytes);

/// Whether these bytes may be a property list, but one that is too large or too deep to be read.
bool IsTooMuch(const std::string &bytes);

/// The dictionary in these bytes, provided that they are an XML property list.
StoredList XmlListIn(const std::string &bytes);

/// The integer reading of an entry, nothing when it has none.
std::optional<std::int32_t> StoredInteger(const StoredList &list, const char *key);

/// Whether the list can be read again when written as XML with one more entry: a binary list may be
/// too large or too deep for that.
bool HasXmlForm(const StoredList &list);

/// The first difference between two dictionaries, except for the entry with this key; nothing when
/// there is none. What XML cannot represent may differ: control characters in texts, and fractions
/// of seconds in dates.
std::optional<std::string> Difference(const StoredList &before, const StoredList &after,
                                      const std::string &exceptKey);

}  // namespace trxfuzz
