// A folder for one test.
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

/// Makes an empty folder and removes it with its contents at the end. It is in memory if possible:
/// the library makes every write durable, which is slow on a disk.
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

  /// The names in the folder, including hidden files, in alphabetical order.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  /// The number of files and folders inside, at any depth.
  std::size_t Entries() const {
    const std::filesystem::recursive_directory_iterator all(path_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

 private:
  std::string path_;
};

/// Makes a file with these bytes.
inline void WriteBytes(const std::string &path, const std::string &bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

/// The bytes of a file; empty when there is no file.
inline std::string ReadBytes(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace trxtest
