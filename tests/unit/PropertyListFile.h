// Property lists as other programs write them, and as an independent reader sees them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orv {

/// An XML property list with these entries, each a <key> and its value, in its root dictionary.
std::string XmlList(const std::string &entries);

/// Sets "MaxLevel" in a list in a file, as the library sets any value. Returns whether it did.
bool SetMaxLevel(const std::string &path, std::int32_t value);

/// The bytes of a number, most significant first.
std::string BigEndian(std::uint64_t number, unsigned size);

/// The bytes of a real number in a binary property list.
std::string BigEndianReal(double real);

/// Builds a binary property list, object by object. References to objects have four bytes.
class BinaryList {
 public:
  using Reference = std::uint32_t;

  /// Adds an object with these bytes, including the marker.
  Reference Add(std::string bytes);

  Reference AddText(std::string_view ascii);
  Reference AddInteger(std::uint64_t number, unsigned size = 8);
  Reference AddArray(const std::vector<Reference> &members);
  /// Takes keys and values in turn.
  Reference AddDictionary(const std::vector<Reference> &keysAndValues);

  /// The reference that the next object will have.
  Reference Next() const { return static_cast<Reference>(objects_.size()); }

  /// The whole file.
  std::string File(Reference root) const;

 private:
  std::vector<std::string> objects_;
};

/// A binary list with one entry, "a", whose value is an object of these bytes.
std::string BinaryListOf(const std::string &object);

/// The entries of an XML property list as an independent reader sees them, each as "key: type
/// value" in the order of the keys; one line with the error when it cannot read the file.
std::vector<std::string> ShownEntries(const std::string &path);

}  // namespace orv
