#include "StoredSettings.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string_view>
#include <type_traits>

#include <plist/plist.h>

namespace client {
namespace {

/// The library reads no larger file.
constexpr std::uintmax_t kLargestRead = std::uintmax_t{4} << 20;

/// The parser descends once a level, so what is much larger than settings are is not given to it.
constexpr std::size_t kLargestParsed = 65536;

/// Nor does it read a list with more levels than this: of its tags, which may be 128 deep, <plist>
/// and an innermost key are none.
constexpr int kDeepestRead = 126;

constexpr std::string_view kBinaryMagic = "bplist00";

/// The first bytes of a binary list and its trailer, with an object and its offset between them.
constexpr std::size_t kSmallestBinary = 8 + 2 + 32;

struct PlistFree {
  void operator()(void *node) const { plist_free(node); }
};

/// Whether the library takes a value for a number.
bool IsNumber(plist_t value) {
  switch (plist_get_node_type(value)) {
    case PLIST_BOOLEAN:
    case PLIST_UINT:
    case PLIST_REAL:
      return true;
    case PLIST_STRING:
      break;
    default:
      return false;
  }
  const std::string text = plist_get_string_ptr(value, nullptr);
  char *end = nullptr;
  std::strtoll(text.c_str(), &end, 10);
  return !text.empty() && *end == '\0';
}

std::vector<std::string> NumberKeysOf(plist_t dictionary) {
  std::vector<std::string> keys;
  plist_dict_iter iterator = nullptr;
  plist_dict_new_iter(dictionary, &iterator);
  for (;;) {
    char *key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(dictionary, iterator, &key, &value);
    if (value == nullptr) break;
    if (IsNumber(value)) keys.emplace_back(key);
    std::free(key);
  }
  std::free(iterator);
  return keys;
}

struct Free {
  void operator()(void *memory) const { std::free(memory); }
};

bool IsDeeperThan(int levels, plist_t node);

bool HasMemberDeeperThan(int levels, plist_t dictionary) {
  plist_dict_iter raw = nullptr;
  plist_dict_new_iter(dictionary, &raw);
  const std::unique_ptr<void, Free> iterator(raw);
  for (;;) {
    plist_t value = nullptr;
    plist_dict_next_item(dictionary, raw, nullptr, &value);
    if (value == nullptr) return false;
    if (IsDeeperThan(levels, value)) return true;
  }
}

/// Whether dictionaries and arrays are nested in more levels.
bool IsDeeperThan(int levels, plist_t node) {
  if (plist_get_node_type(node) == PLIST_DICT) {
    return plist_dict_get_size(node) != 0 && (levels == 0 || HasMemberDeeperThan(levels - 1, node));
  }
  if (plist_get_node_type(node) != PLIST_ARRAY) return false;
  const uint32_t size = plist_array_get_size(node);
  if (size != 0 && levels == 0) return true;
  for (uint32_t index = 0; index < size; ++index) {
    if (IsDeeperThan(levels - 1, plist_array_get_item(node, index))) return true;
  }
  return false;
}

/// As far as it can be told without risk.
FileState StateOfContents(const std::string &contents) {
  FileState state{.exists = true};
  // A binary list can name an object many times over, and the parser would copy it each time.
  if (contents.starts_with(kBinaryMagic)) {
    if (contents.size() < kSmallestBinary) state.problem = FileProblem::kNoList;
    return state;
  }
  if (contents.size() > kLargestParsed) return state;
  plist_t root = nullptr;
  plist_from_xml(contents.data(), static_cast<uint32_t>(contents.size()), &root);
  const std::unique_ptr<std::remove_pointer_t<plist_t>, PlistFree> owner(root);
  if (root == nullptr || plist_get_node_type(root) != PLIST_DICT) {
    state.problem = FileProblem::kNoList;
  } else if (IsDeeperThan(kDeepestRead, root)) {
    state.problem = FileProblem::kTooDeep;
  } else {
    state.keys = NumberKeysOf(root);
  }
  return state;
}

}  // namespace

FileState StateOfFile(const std::string &file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) return {};
  if (!std::filesystem::is_regular_file(status)) return {true, FileProblem::kNoFile};
  if (std::filesystem::file_size(file, error) > kLargestRead) return {true, FileProblem::kTooLarge};
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return {true, FileProblem::kUnreadable, errno};
  return StateOfContents({std::istreambuf_iterator<char>(stream), {}});
}

}  // namespace client
