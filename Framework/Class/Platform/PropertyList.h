// Property lists whose root is a dictionary, as files. One object belongs to one thread at a time;
// different objects may be used on several threads at once.
#pragma once

#include <cstdint>
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

  /// The dictionary to change and write back: that in the file, or an empty one where ReadFile
  /// gives nothing. Nothing when the file may well be in order and only this process cannot read it
  /// now, for want of descriptors or memory, where the platform tells: it must not be replaced
  /// then.
  static std::optional<PropertyList> ReadFileToChange(const std::string &path);

  /// Whether there is no entry.
  bool IsEmpty() const;

  /// The integer reading of an entry: an integer's low 32 bits, 0 or 1 for a boolean, a real
  /// without its fraction, a text that spells an integer and nothing else. Nothing when the entry
  /// is missing or anything else.
  std::optional<std::int32_t> IntegerForKey(const char *key) const;

  /// The text of an entry; nothing when the entry is missing or no text. A number is no text: a
  /// host could do nothing with a number in a text's place.
  std::optional<std::string> TextForKey(const char *key) const;

  /// Sets an entry to an integer, in place of what the key held before.
  void SetInteger(const char *key, std::int32_t value);

  /// Writes the dictionary as an XML property list in place of the file, in one step: a reader sees
  /// the old file or the new one, and a failure leaves the old one. Returns whether it was written.
  bool WriteAtomically(const std::string &path) const;

 private:
  explicit PropertyList(void *root);

  void *root_;
};

}  // namespace orv
