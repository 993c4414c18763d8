#include "PropertyList.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <locale.h>
#include <plist/plist.h>

#include "FileReading.h"
#include "FileReplacement.h"
#include "IntegerReading.h"
#include "PropertyListLimits.h"
#include "XmlEncoding.h"

namespace orv {
namespace {

// The parser uses the thread's locale for real numbers: in a host with a German locale, 3.5 would
// become 3.
class NumbersAsInC {
 public:
  NumbersAsInC() : c_(newlocale(LC_ALL_MASK, "C", nullptr)), before_(uselocale(c_)) {}
  NumbersAsInC(const NumbersAsInC &) = delete;
  NumbersAsInC &operator=(const NumbersAsInC &) = delete;
  ~NumbersAsInC() {
    uselocale(before_);
    if (c_ != nullptr) freelocale(c_);
  }

 private:
  locale_t c_;
  locale_t before_;
};

struct FreeText {
  void operator()(char *text) const { std::free(text); }
};
using Text = std::unique_ptr<char, FreeText>;

// --- Reading -------------------------------------------------------------------------------------

// The result of parsing a file's contents.
struct Parsed {
  plist_t root = nullptr;  // if it is a dictionary
  bool isTooMuch = false;  // it may be one, but is too large or too deep to read
};

bool IsDictionary(plist_t root) {
  return root != nullptr && plist_get_node_type(root) == PLIST_DICT;
}

Parsed Parse(std::string contents) {
  const auto text = InUtf8(std::move(contents));
  if (!text) return {};
  const Extent extent = ExtentOf(*text);
  if (extent != Extent::kWithinLimits) return {nullptr, extent == Extent::kBeyondLimits};
  const NumbersAsInC locale;
  plist_t root = nullptr;
  plist_from_memory(text->data(), static_cast<std::uint32_t>(text->size()), &root);
  if (IsDictionary(root)) return {root};
  plist_free(root);
  return {};
}

std::string_view TextOf(plist_t entry) {
  std::uint64_t length = 0;
  const char *const text = plist_get_string_ptr(entry, &length);
  return text != nullptr ? std::string_view(text, length) : std::string_view();
}

// --- Writing -------------------------------------------------------------------------------------

// XML cannot represent most control characters, not even escaped; a binary list may contain them. A
// carriage return must be escaped: XML readers turn a plain one into a line feed.
constexpr auto kIsSpecialInXml = [](char character) {
  return static_cast<unsigned char>(character) < 0x20 && character != '\t' && character != '\n';
};

constexpr const char *kCarriageReturn = "&#13;";
constexpr const char *kReplacementCharacter = "\uFFFD";

std::string AsXml(plist_t root) {
  const NumbersAsInC locale;
  char *written = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(root, &written, &length);
  const Text text(written);
  std::string_view rest(written, written != nullptr ? length : 0);
  std::string xml;
  for (;;) {
    const auto special = std::find_if(rest.begin(), rest.end(), kIsSpecialInXml);
    xml.append(rest.begin(), special);
    if (special == rest.end()) return xml;
    xml += *special == '\r' ? kCarriageReturn : kReplacementCharacter;
    rest.remove_prefix(static_cast<std::size_t>(special - rest.begin()) + 1);
  }
}

}  // namespace

PropertyList::PropertyList() : root_(plist_new_dict()) {}

PropertyList::PropertyList(void *root) : root_(root) {}

PropertyList::PropertyList(PropertyList &&other) noexcept
    : root_(std::exchange(other.root_, nullptr)) {}

PropertyList &PropertyList::operator=(PropertyList &&other) noexcept {
  std::swap(root_, other.root_);
  return *this;
}

PropertyList::~PropertyList() { plist_free(root_); }

std::optional<PropertyList> PropertyList::ReadFile(const std::string &path) {
  FileReading reading = orv::ReadFile(AT_FDCWD, path, kLargestPropertyList);
  if (reading.outcome != ReadOutcome::kRead) return std::nullopt;
  const Parsed parsed = Parse(std::move(reading.contents));
  if (parsed.root == nullptr) return std::nullopt;
  return PropertyList(parsed.root);
}

bool PropertyList::ChangeFile(const std::string &path,
                              const std::function<void(PropertyList &)> &change) {
  return ChangeFileContents(
      path, kLargestPropertyList,
      [&](const std::optional<std::string> &old) -> std::optional<std::string> {
        const Parsed parsed = old ? Parse(*old) : Parsed();
        if (parsed.isTooMuch) return std::nullopt;
        PropertyList list = parsed.root != nullptr ? PropertyList(parsed.root) : PropertyList();
        change(list);
        std::string xml = AsXml(list.root_);
        // A list that could not be read again must not replace one that can.
        if (xml.empty() || !WithinLimits(xml)) return std::nullopt;
        return xml;
      });
}

std::optional<std::int32_t> PropertyList::IntegerForKey(const char *key) const {
  plist_t entry = plist_dict_get_item(root_, key);
  switch (plist_get_node_type(entry)) {
    case PLIST_UINT: {
      std::uint64_t number = 0;
      plist_get_uint_val(entry, &number);
      return LowBits(number);
    }
    case PLIST_BOOLEAN: {
      std::uint8_t flag = 0;
      plist_get_bool_val(entry, &flag);
      return flag != 0 ? 1 : 0;
    }
    case PLIST_REAL: {
      double real = 0;
      plist_get_real_val(entry, &real);
      return IntegerOfReal(real);
    }
    case PLIST_STRING:
      return IntegerOfText(TextOf(entry));
    default:
      return std::nullopt;
  }
}

std::optional<std::string> PropertyList::TextForKey(const char *key) const {
  plist_t entry = plist_dict_get_item(root_, key);
  if (plist_get_node_type(entry) != PLIST_STRING) return std::nullopt;
  return std::string(TextOf(entry));
}

void PropertyList::SetInteger(const char *key, std::int32_t value) {
  plist_dict_set_item(root_, key, plist_new_uint(static_cast<std::uint64_t>(std::int64_t{value})));
}

}  // namespace orv
