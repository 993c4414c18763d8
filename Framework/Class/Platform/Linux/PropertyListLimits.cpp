#include "PropertyListLimits.h"

#include <cstdint>
#include <vector>

namespace orv {
namespace {

constexpr int kDeepestNesting = 128;
// About as many objects as fit into the largest XML file.
constexpr std::size_t kMostObjects = 200'000;

// --- XML -----------------------------------------------------------------------------------------

// Removes the text up to and including `end` from the front. Returns false when `end` is missing.
bool SkipPast(std::string_view end, std::string_view &text) {
  const std::size_t found = text.find(end);
  if (found == std::string_view::npos) return false;
  text.remove_prefix(found + end.size());
  return true;
}

// The length of a tag up to its '>'; one inside quotes does not count. npos when the tag does not
// end.
std::size_t TagLength(std::string_view text) {
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '>' && !quoted) return i;
    quoted ^= text[i] == '"';
  }
  return text.npos;
}

Extent ExtentIf(bool hasEnd) { return hasEnd ? Extent::kWithinLimits : Extent::kNoList; }

// Removes what follows "<!" or "<?" from the front. A document type with internal declarations is
// refused: no program writes one into a property list, and it could declare entities that grow
// without bound.
Extent SkipDeclaration(std::string_view &text) {
  if (text.starts_with("!--")) {
    text.remove_prefix(3);
    return ExtentIf(SkipPast("-->", text));
  }
  if (text.starts_with("![CDATA[")) return ExtentIf(SkipPast("]]>", text));
  const std::size_t length = TagLength(text);
  if (length == text.npos) return Extent::kNoList;
  const std::string_view content = text.substr(0, length);
  text.remove_prefix(length + 1);
  if (content.starts_with('?')) {
    // The parser would continue to the next "?>".
    return content.ends_with('?') ? Extent::kWithinLimits : Extent::kBeyondLimits;
  }
  if (!content.starts_with("!DOCTYPE")) return Extent::kNoList;
  return content.find('[') == content.npos ? Extent::kWithinLimits : Extent::kBeyondLimits;
}

// The beginning of almost every property list in XML.
constexpr std::string_view kUsualHead =
    R"(<?xml version="1.0" encoding="UTF-8"?>)"
    "\n"
    R"(<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">)"
    "\n";

// Checks only tags, as the parser sees them. Every getter uses this, so the usual beginning is
// recognised at once, and one comparison separates plain tags from declarations.
Extent ExtentOfXml(std::string_view text) {
  int depth = 0;
  if (text.starts_with(kUsualHead)) text.remove_prefix(kUsualHead.size());
  for (std::size_t tag = text.find('<'); tag != text.npos; tag = text.find('<')) {
    text.remove_prefix(tag + 1);
    if (text.starts_with('!') || text.starts_with('?')) {
      const Extent extent = SkipDeclaration(text);
      if (extent != Extent::kWithinLimits) return extent;
      continue;
    }
    const std::size_t length = TagLength(text);
    if (length == text.npos) return Extent::kNoList;
    if (text.front() == '/') {
      --depth;
    } else if (!text.substr(0, length).ends_with('/') && ++depth > kDeepestNesting) {
      return Extent::kBeyondLimits;
    }
    text.remove_prefix(length + 1);
  }
  return Extent::kWithinLimits;
}

// --- Binary --------------------------------------------------------------------------------------

constexpr std::string_view kBinaryMagic = "bplist00";
constexpr std::size_t kTrailerSize = 32;

// The tree of objects in a binary property list: containers and their members only.
class BinaryTree {
 public:
  explicit BinaryTree(std::string_view contents)
      : contents_(contents),
        trailer_(contents.size() - kTrailerSize),
        offsetSize_(Byte(trailer_ + 6)),
        referenceSize_(Byte(trailer_ + 7)),
        objectCount_(Number(trailer_ + 8, 8)),
        root_(Number(trailer_ + 16, 8)),
        offsetTable_(Number(trailer_ + 24, 8)) {}

  Extent Look() { return Visit(root_, 0); }

 private:
  static constexpr std::uint8_t kCount = 0x10;  // an integer of 1, 2, 4 or 8 bytes
  static constexpr std::uint8_t kData = 0x40;
  static constexpr std::uint8_t kAsciiText = 0x50;
  static constexpr std::uint8_t kUnicodeText = 0x60;
  static constexpr std::uint8_t kArray = 0xA0;
  static constexpr std::uint8_t kSet = 0xC0;
  static constexpr std::uint8_t kDictionary = 0xD0;

  // Bytes and numbers past the end read as 0. The parser's work on such a file is still bounded,
  // because every visit is counted.
  std::uint8_t Byte(std::uint64_t position) const {
    return position < contents_.size() ? static_cast<std::uint8_t>(contents_[position])
                                       : std::uint8_t{0};
  }

  std::uint64_t Number(std::uint64_t position, unsigned size) const {
    std::uint64_t number = 0;
    for (unsigned i = 0; i < size; ++i) number = number << 8 | Byte(position + i);
    return number;
  }

  // The number of bytes, characters or members of an object; too many when it is malformed.
  std::uint64_t CountAt(std::uint64_t &position, std::uint8_t marker) const {
    const std::uint64_t inMarker = marker & 0x0F;
    if (inMarker != 0x0F) return inMarker;
    const std::uint8_t countMarker = Byte(position++);
    if ((countMarker & 0xFC) != kCount) return UINT64_MAX;
    const unsigned size = 1U << (countMarker & 0x03);
    const std::uint64_t count = Number(position, size);
    position += size;
    return count;
  }

  // The parser copies a leaf for each reference to it, so each reference counts.
  Extent TakeLeaf(std::uint64_t bytes) {
    if (bytes > contents_.size()) return Extent::kNoList;
    leafBytes_ += bytes;
    return leafBytes_ > kLargestPropertyList ? Extent::kBeyondLimits : Extent::kWithinLimits;
  }

  Extent Visit(std::uint64_t object, int depth) {
    if (depth > kDeepestNesting || ++visited_ > kMostObjects) return Extent::kBeyondLimits;
    if (object >= objectCount_) return Extent::kWithinLimits;
    std::uint64_t position = Number(offsetTable_ + object * offsetSize_, offsetSize_);
    const std::uint8_t marker = Byte(position++);
    const std::uint8_t kind = marker & 0xF0;
    if (kind == kData || kind == kAsciiText || kind == kUnicodeText) {
      return TakeLeaf(CountAt(position, marker));
    }
    if (kind != kArray && kind != kSet && kind != kDictionary) return Extent::kWithinLimits;
    std::uint64_t members = CountAt(position, marker);
    if (members > contents_.size()) return Extent::kNoList;
    if (members > kMostObjects) return Extent::kBeyondLimits;
    if (kind == kDictionary) members *= 2;  // keys, then values
    for (std::uint64_t i = 0; i < members; ++i) {
      const Extent extent = Visit(Number(position + i * referenceSize_, referenceSize_), depth + 1);
      if (extent != Extent::kWithinLimits) return extent;
    }
    return Extent::kWithinLimits;
  }

  std::string_view contents_;
  std::uint64_t trailer_;
  std::uint8_t offsetSize_;
  std::uint8_t referenceSize_;
  std::uint64_t objectCount_;
  std::uint64_t root_;
  std::uint64_t offsetTable_;
  std::size_t visited_ = 0;
  std::uint64_t leafBytes_ = 0;
};

}  // namespace

Extent ExtentOf(std::string_view contents) {
  if (contents.size() > kLargestPropertyList) return Extent::kBeyondLimits;
  if (!contents.starts_with(kBinaryMagic)) return ExtentOfXml(contents);
  if (contents.size() < kBinaryMagic.size() + kTrailerSize) return Extent::kNoList;
  return BinaryTree(contents).Look();
}

}  // namespace orv
