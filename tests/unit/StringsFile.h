// A strings file as seen by a reader that shares no code with the library.
#pragma once

#include <string>
#include <vector>

namespace orv {

/// One entry with the comment before it, which is for the translator.
struct StringsEntry {
  std::string comment;  // without the marks around it
  std::string key;
  std::string text;
};

/// The entries of an XML property list of texts, in the order of the file. Throws when the file is
/// not well-formed UTF-8 and XML, or holds anything but a dictionary of texts.
std::vector<StringsEntry> ReadStringsFile(const std::string &path);

}  // namespace orv
