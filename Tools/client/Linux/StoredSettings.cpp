#include "StoredSettings.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string_view>
#include <type_traits>

#include <fcntl.h>
#include <plist/plist.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace client {
namespace {

/// The library reads no larger file.
constexpr std::uintmax_t kLargestRead = std::uintmax_t{4} << 20;

/// The parser descends once a level, and copies an object of a binary list as often as the list
/// names it. So it gets what is binary or much larger than settings in a process of its own, with
/// bounds for memory and for time.
constexpr std::size_t kLargestParsedHere = 65536;
constexpr rlim_t kMostMemory = rlim_t{256} << 20;
constexpr rlim_t kMostSeconds = 5;

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

FileState Parsed(const std::string &contents) {
  FileState state{.exists = true};
  plist_t root = nullptr;
  plist_from_memory(contents.data(), static_cast<uint32_t>(contents.size()), &root);
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

/// A state as bytes: the problem, then each key with a zero byte at its end.
std::string Packed(const FileState &state) {
  std::string bytes(1, static_cast<char>(state.problem));
  for (const std::string &key : state.keys.value_or(std::vector<std::string>()))
    bytes += key + '\0';
  return bytes;
}

FileState Unpacked(const std::string &bytes) {
  FileState state{true, static_cast<FileProblem>(bytes.front())};
  if (state.problem != FileProblem::kNone) return state;
  state.keys.emplace();
  for (std::size_t at = 1; at < bytes.size(); at += state.keys->back().size() + 1) {
    state.keys->emplace_back(bytes.c_str() + at);
  }
  return state;
}

void BoundThisProcess() {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  const rlim_t memory = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + kMostMemory;
  const rlimit most{memory, memory};
  const rlimit seconds{kMostSeconds, kMostSeconds};
  const rlimit noDump{0, 0};
  setrlimit(RLIMIT_AS, &most);
  setrlimit(RLIMIT_CPU, &seconds);
  setrlimit(RLIMIT_CORE, &noDump);
}

/// The most memory that this process has had so far, in KiB.
long MemoryTaken() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

[[noreturn]] void ParseInThisProcess(const std::string &contents, int result) {
  BoundThisProcess();
  const long before = MemoryTaken();
  const std::string bytes = Packed(Parsed(contents));
  // A parser without memory says that there is no list.
  if (MemoryTaken() - before > static_cast<long>(kMostMemory >> 11)) _exit(1);
  const ssize_t size = write(result, bytes.data(), bytes.size());
  _exit(size == static_cast<ssize_t>(bytes.size()) ? 0 : 1);
}

std::string ReadToEnd(int descriptor) {
  std::string bytes;
  std::array<char, 4096> part;
  for (ssize_t size; (size = TEMP_FAILURE_RETRY(read(descriptor, part.data(), part.size()))) > 0;) {
    bytes.append(part.data(), static_cast<std::size_t>(size));
  }
  return bytes;
}

FileState ParsedElsewhere(const std::string &contents) {
  std::array<int, 2> pipe{};
  if (pipe2(pipe.data(), O_CLOEXEC) != 0) return {.exists = true};
  const pid_t child = fork();
  if (child == 0) ParseInThisProcess(contents, pipe[1]);
  close(pipe[1]);
  const std::string bytes = ReadToEnd(pipe[0]);
  close(pipe[0]);
  int end = 0;
  const bool isWhole =
      child > 0 && TEMP_FAILURE_RETRY(waitpid(child, &end, 0)) == child && end == 0;
  return isWhole ? Unpacked(bytes) : FileState{true, FileProblem::kTooLarge};
}

FileState StateOfContents(const std::string &contents) {
  // The parser would take a binary list without a trailer for text.
  const bool isBinary = contents.starts_with(kBinaryMagic);
  if (isBinary && contents.size() < kSmallestBinary) return {true, FileProblem::kNoList};
  const bool isSmall = !isBinary && contents.size() <= kLargestParsedHere;
  return isSmall ? Parsed(contents) : ParsedElsewhere(contents);
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
