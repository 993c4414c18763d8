// A folder for the length of one test.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <unistd.h>

namespace trxtest {

/// Makes an empty folder and removes it with all that is in it at the end. Lies in memory where the
/// system offers that: the library makes every write durable, which takes a disk its time.
class TemporaryFolder {
 public:
  TemporaryFolder() : TemporaryFolder(access("/dev/shm", W_OK | X_OK) == 0 ? "/dev/shm" : "/tmp") {}
  explicit TemporaryFolder(const std::string &place) {
    std::string path = place + "/trx-test-XXXXXX";
    if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = path;
  }
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string &Path() const { return path_; }

  /// The path of something in the folder.
  std::string operator/(const std::string &name) const { return path_ + "/" + name; }

  /// The names of all that is in the folder, hidden files included, in alphabetical order.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  /// How many files and folders are inside, at any depth.
  std::size_t Entries() const {
    const std::filesystem::recursive_directory_iterator all(path_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

 private:
  std::string path_;
};

/// Makes a file of these bytes.
inline void WriteBytes(const std::string &path, const std::string &bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

/// The bytes of a file; none when there is no file.
inline std::string ReadBytes(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace trxtest
