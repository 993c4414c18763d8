#include "PropertyList.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <locale.h>
#include <plist/plist.h>
#include <sys/stat.h>
#include <unistd.h>

#include "File.h"
#include "FileReplacement.h"
#include "IntegerReading.h"
#include "PropertyListLimits.h"

namespace orv {
namespace {

// The parser reads and writes real numbers in the thread's locale; in a host that speaks
// German, 3.5 would come back as 3.
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

// What has no end that can be looked for, such as a pipe in the file's place, is refused: it would
// keep the caller waiting.
std::optional<std::string> ReadContents(const std::string &path) {
  const File file(
      static_cast<int>(TEMP_FAILURE_RETRY(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))));
  const off_t end = file.IsOpen() ? lseek(file.Descriptor(), 0, SEEK_END) : -1;
  if (end < 0 || static_cast<std::uint64_t>(end) > kLargestPropertyList) return std::nullopt;
  std::string contents(static_cast<std::size_t>(end), '\0');
  std::size_t size = 0;
  while (size < contents.size()) {
    const ssize_t part = pread(file.Descriptor(), contents.data() + size, contents.size() - size,
                               static_cast<off_t>(size));
    if (part < 0 && errno == EINTR) continue;
    if (part < 0) return std::nullopt;
    if (part == 0) break;
    size += static_cast<std::size_t>(part);
  }
  contents.resize(size);
  return contents;
}

// Whether a file may well be there and whole when opening it has failed so. The last one says that
// another process holds a lease on it, as file servers do, and has been asked to give it back.
bool SaysNotNow(int error) {
  constexpr std::array kErrors = {EMFILE, ENFILE, ENOMEM, EWOULDBLOCK};
  return std::find(kErrors.begin(), kErrors.end(), error) != kErrors.end();
}

plist_t Parse(const std::string &contents) {
  if (!WithinLimits(contents)) return nullptr;
  const NumbersAsInC locale;
  plist_t root = nullptr;
  plist_from_memory(contents.data(), static_cast<std::uint32_t>(contents.size()), &root);
  return root;
}

std::string_view TextOf(plist_t entry) {
  std::uint64_t length = 0;
  const char *const text = plist_get_string_ptr(entry, &length);
  return text != nullptr ? std::string_view(text, length) : std::string_view();
}

// --- Writing -------------------------------------------------------------------------------------

// XML has no way to write these characters, not even in a roundabout way; a binary list may hold
// them.
bool IsForbiddenInXml(char character) {
  return static_cast<unsigned char>(character) < 0x20 && character != '\t' && character != '\n' &&
         character != '\r';
}

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
    const auto forbidden = std::find_if(rest.begin(), rest.end(), IsForbiddenInXml);
    xml.append(rest.begin(), forbidden);
    if (forbidden == rest.end()) return xml;
    xml += kReplacementCharacter;
    rest.remove_prefix(static_cast<std::size_t>(forbidden - rest.begin()) + 1);
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
  const auto contents = ReadContents(path);
  if (!contents) return std::nullopt;
  PropertyList list(Parse(*contents));
  if (list.root_ == nullptr || plist_get_node_type(list.root_) != PLIST_DICT) return std::nullopt;
  return list;
}

std::optional<PropertyList> PropertyList::ReadFileToChange(const std::string &path) {
  errno = 0;
  if (auto list = ReadFile(path)) return list;
  if (SaysNotNow(errno)) return std::nullopt;
  return PropertyList();
}

bool PropertyList::IsEmpty() const { return plist_dict_get_size(root_) == 0; }

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

bool PropertyList::WriteAtomically(const std::string &path) const {
  const std::string xml = AsXml(root_);
  // What would be refused when it is read again must not take the place of what can be read.
  if (xml.empty() || !WithinLimits(xml)) return false;
  return ReplaceFile(path, xml);
}

}  // namespace orv
