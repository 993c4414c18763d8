// Property lists whose root is a dictionary, as files. One object belongs to one thread at a time;
// different objects may be used on several threads at once.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace orv {

class PropertyList {
 public:
  /// An empty dictionary.
  PropertyList();
  PropertyList(PropertyList &&other) noexcept;
  PropertyList &operator=(PropertyList &&other) noexcept;
  ~PropertyList();

  /// The dictionary in a file, in any format that the platform reads; nothing when the file is
  /// missing, cannot be read, or is not a property list with a dictionary at its root.
  static std::optional<PropertyList> ReadFile(const std::string &path);

  /// Changes the dictionary in a file: reads it, or starts with an empty one when ReadFile gives
  /// nothing, calls `change`, and replaces the file by an XML property list in one step. A reader
  /// sees the old file or the new one, and a failure leaves the old one. Returns whether it was
  /// written.
  ///
  /// On Linux, changes that other programs make at the same time are kept: when the file has
  /// changed since it was read, `change` is called again with the new contents. A file that cannot
  /// be read at the moment, or is too large or too deep, is left alone. One that this process may
  /// not read is kept beside the new one. See FileReplacement.h. Elsewhere the last writer wins.
  static bool ChangeFile(const std::string &path,
                         const std::function<void(PropertyList &)> &change);

  /// The integer reading of an entry: an integer's low 32 bits, 0 or 1 for a boolean, a real
  /// without its fraction, a text that spells an integer and nothing else. Nothing when the entry
  /// is missing or anything else.
  std::optional<std::int32_t> IntegerForKey(const char *key) const;

  /// The text of an entry; nothing when the entry is missing or not a text. A number is not a text.
  std::optional<std::string> TextForKey(const char *key) const;

  /// Sets an entry to an integer and replaces the previous value.
  void SetInteger(const char *key, std::int32_t value);

 private:
  explicit PropertyList(void *root);

  void *root_;
};

}  // namespace orv
