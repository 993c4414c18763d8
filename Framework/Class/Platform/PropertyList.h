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

  /// The dictionary in a file, in any encoding that the platform reads; nothing when the file is
  /// missing, cannot be read, or is no property list with a dictionary at its root.
  static std::optional<PropertyList> ReadFile(const std::string &path);

  /// Changes the dictionary in a file: reads it, or makes an empty one where ReadFile gives
  /// nothing, lets `change` change it, and writes it as an XML property list in place of the file,
  /// in one step: a reader sees the old file or the new one, and a failure leaves the old one.
  /// Returns whether it was written.
  ///
  /// On Linux nothing is lost that other programs write at the same time: when the file has changed
  /// since it was read, `change` is called again with what is there now. A file is left alone that
  /// cannot be read at the moment or is more than can be read; one that this process may not read
  /// is kept beside the new one. See FileReplacement.h. Elsewhere whoever writes last wins.
  static bool ChangeFile(const std::string &path,
                         const std::function<void(PropertyList &)> &change);

  /// The integer reading of an entry: an integer's low 32 bits, 0 or 1 for a boolean, a real
  /// without its fraction, a text that spells an integer and nothing else. Nothing when the entry
  /// is missing or anything else.
  std::optional<std::int32_t> IntegerForKey(const char *key) const;

  /// The text of an entry; nothing when the entry is missing or no text. A number is no text: a
  /// host could do nothing with a number in a text's place.
  std::optional<std::string> TextForKey(const char *key) const;

  /// Sets an entry to an integer, in place of what the key held before.
  void SetInteger(const char *key, std::int32_t value);

 private:
  explicit PropertyList(void *root);

  void *root_;
};

}  // namespace orv
