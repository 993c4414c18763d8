#include "StoredList.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <map>

#include "PropertyListLimits.h"
#include "XmlEncoding.h"

namespace trxfuzz {
namespace {

struct FreeText {
  void operator()(char *text) const { std::free(text); }
};
using OwnedText = std::unique_ptr<char, FreeText>;

constexpr std::size_t kRoomForOneMoreEntry = 200;

StoredList DictionaryOf(plist_t root) {
  StoredList list(root);
  return root != nullptr && plist_get_node_type(root) == PLIST_DICT ? std::move(list) : nullptr;
}

// As in XML, which cannot represent control characters.
std::string InXml(const std::string &text) {
  std::string result;
  for (const char character : text) {
    const bool isForbidden = static_cast<unsigned char>(character) < 0x20 && character != '\t' &&
                             character != '\n' && character != '\r';
    result += isForbidden ? std::string("\uFFFD") : std::string(1, character);
  }
  return result;
}

std::string RawXmlOf(const StoredList &list) {
  char *xml = nullptr;
  std::uint32_t size = 0;
  plist_to_xml(list.get(), &xml, &size);
  const OwnedText owner(xml);
  return xml != nullptr ? std::string(xml, size) : std::string();
}

std::string TextOf(plist_t node) {
  std::uint64_t size = 0;
  const char *const text = plist_get_string_ptr(node, &size);
  return text != nullptr ? std::string(text, size) : std::string();
}

std::string DataOf(plist_t node) {
  std::uint64_t size = 0;
  const char *const data = plist_get_data_ptr(node, &size);
  return data != nullptr ? std::string(data, size) : std::string();
}

std::map<std::string, plist_t> EntriesOf(plist_t dictionary) {
  std::map<std::string, plist_t> entries;
  plist_dict_iter position = nullptr;
  plist_dict_new_iter(dictionary, &position);
  for (;;) {
    char *key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(dictionary, position, &key, &value);
    const OwnedText owner(key);
    if (value == nullptr) break;
    entries[InXml(key)] = value;
  }
  std::free(position);
  return entries;
}

std::optional<std::string> NodeDifference(plist_t before, plist_t after);

std::optional<std::string> EntriesDifference(const std::map<std::string, plist_t> &before,
                                             std::map<std::string, plist_t> after) {
  for (const auto &[key, value] : before) {
    const auto found = after.find(key);
    if (found == after.end()) return "the entry " + key + " is lost";
    if (auto difference = NodeDifference(value, found->second)) return key + ": " + *difference;
    after.erase(found);
  }
  if (!after.empty()) return "the entry " + after.begin()->first + " came from nowhere";
  return std::nullopt;
}

std::optional<std::string> ArrayDifference(plist_t before, plist_t after) {
  const std::uint32_t size = plist_array_get_size(before);
  if (plist_array_get_size(after) != size) return "an array has another size";
  for (std::uint32_t i = 0; i < size; ++i) {
    auto difference =
        NodeDifference(plist_array_get_item(before, i), plist_array_get_item(after, i));
    if (difference) return std::to_string(i) + ": " + *difference;
  }
  return std::nullopt;
}

double RealOf(plist_t node) {
  double real = 0;
  plist_get_real_val(node, &real);
  return real;
}

std::int64_t SecondsOf(plist_t node) {
  std::int32_t seconds = 0;
  std::int32_t microseconds = 0;
  plist_get_date_val(node, &seconds, &microseconds);
  return seconds;
}

std::uint64_t IntegerOf(plist_t node) {
  std::uint64_t number = 0;
  plist_get_uint_val(node, &number);
  return number;
}

// The XML form of a reference to an object is a dictionary with this one entry.
bool IsReferenceInXml(plist_t node, std::uint64_t object) {
  plist_t entry = plist_get_node_type(node) == PLIST_DICT && plist_dict_get_size(node) == 1
                      ? plist_dict_get_item(node, "CF$UID")
                      : nullptr;
  return plist_get_node_type(entry) == PLIST_UINT && IntegerOf(entry) == object;
}

std::uint64_t ObjectOf(plist_t reference) {
  std::uint64_t object = 0;
  plist_get_uid_val(reference, &object);
  return object;
}

bool FlagOf(plist_t node) {
  std::uint8_t flag = 0;
  plist_get_bool_val(node, &flag);
  return flag != 0;
}

bool IsSameReal(double before, double after) {
  return before == after || (std::isnan(before) && std::isnan(after)) ||
         std::abs(before - after) <= 1e-6 * std::abs(before);
}

std::optional<std::string> NodeDifference(plist_t before, plist_t after) {
  const plist_type type = plist_get_node_type(before);
  if (type == PLIST_UID && IsReferenceInXml(after, ObjectOf(before))) return std::nullopt;
  if (plist_get_node_type(after) != type) {
    return "type " + std::to_string(type) + " became " + std::to_string(plist_get_node_type(after));
  }
  const auto unless = [](bool isSame, const std::string &difference) {
    return isSame ? std::nullopt : std::optional(difference);
  };
  switch (type) {
    case PLIST_DICT:
      return EntriesDifference(EntriesOf(before), EntriesOf(after));
    case PLIST_ARRAY:
      return ArrayDifference(before, after);
    case PLIST_STRING:
      return unless(InXml(TextOf(before)) == TextOf(after), "a text differs");
    case PLIST_DATA:
      return unless(DataOf(before) == DataOf(after), "data differ");
    case PLIST_REAL:
      return unless(IsSameReal(RealOf(before), RealOf(after)), "a real differs");
    case PLIST_DATE:
      return unless(std::abs(SecondsOf(before) - SecondsOf(after)) <= 1, "a date differs");
    case PLIST_BOOLEAN:
      return unless(FlagOf(before) == FlagOf(after), "a boolean differs");
    case PLIST_UINT:
      return unless(IntegerOf(before) == IntegerOf(after), "an integer differs");
    default:
      return std::nullopt;
  }
}

// The whole text as a decimal integer, without blanks; its low 32 bits.
std::optional<std::int32_t> SpelledInteger(const std::string &text) {
  const std::size_t digits = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  if (digits == text.size() || text.find_first_not_of("0123456789", digits) != text.npos) {
    return std::nullopt;
  }
  errno = 0;
  const long long number = std::strtoll(text.c_str(), nullptr, 10);
  if (errno == ERANGE) return std::nullopt;
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

std::optional<std::int32_t> WholePart(double real) {
  if (!(real > -2147483649.0 && real < 2147483648.0)) return std::nullopt;
  return static_cast<std::int32_t>(real);
}

}  // namespace

bool IsTooMuch(const std::string &bytes) {
  if (bytes.size() > orv::kLargestPropertyList) return true;
  const auto text = orv::InUtf8(bytes);
  return text && orv::ExtentOf(*text) == orv::Extent::kBeyondLimits;
}

StoredList ListIn(const std::string &bytes) {
  const auto text = orv::InUtf8(bytes);
  if (!text || !orv::WithinLimits(*text)) return nullptr;
  plist_t root = nullptr;
  plist_from_memory(text->data(), static_cast<std::uint32_t>(text->size()), &root);
  return DictionaryOf(root);
}

StoredList XmlListIn(const std::string &bytes) {
  if (!bytes.starts_with("<?xml ") || !orv::WithinLimits(bytes)) return nullptr;
  plist_t root = nullptr;
  plist_from_xml(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
  return DictionaryOf(root);
}

std::optional<std::int32_t> StoredInteger(const StoredList &list, const char *key) {
  plist_t entry = list ? plist_dict_get_item(list.get(), key) : nullptr;
  switch (plist_get_node_type(entry)) {
    case PLIST_UINT:
      return static_cast<std::int32_t>(static_cast<std::uint32_t>(IntegerOf(entry)));
    case PLIST_BOOLEAN:
      return FlagOf(entry) ? 1 : 0;
    case PLIST_REAL:
      return WholePart(RealOf(entry));
    case PLIST_STRING:
      return SpelledInteger(TextOf(entry));
    default:
      return std::nullopt;
  }
}

bool HasXmlForm(const StoredList &list) {
  const std::string xml = InXml(RawXmlOf(list));
  // A carriage return takes five characters.
  const auto returns = static_cast<std::size_t>(std::count(xml.begin(), xml.end(), '\r'));
  return orv::WithinLimits(xml + std::string(kRoomForOneMoreEntry + 4 * returns, ' '));
}

std::optional<std::string> Difference(const StoredList &before, const StoredList &after,
                                      const std::string &exceptKey) {
  // The parser aborts on a key with a zero byte in it.
  if (before && RawXmlOf(before).find('\0') != std::string::npos) return std::nullopt;
  auto entriesBefore = before ? EntriesOf(before.get()) : std::map<std::string, plist_t>();
  auto entriesAfter = EntriesOf(after.get());
  entriesBefore.erase(exceptKey);
  entriesAfter.erase(exceptKey);
  return EntriesDifference(entriesBefore, std::move(entriesAfter));
}

}  // namespace trxfuzz
