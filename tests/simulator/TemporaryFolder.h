#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include <stdlib.h>

/// A new empty folder that goes away with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    char name[] = "/tmp/simulator-test-XXXXXX";
    if (mkdtemp(name) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;

  /// Path of `name` inside.
  std::string operator/(const std::string &name) const { return path_ + '/' + name; }

  /// Its own path.
  const std::string &path() const { return path_; }

  /// How many files are inside, at any depth.
  std::size_t entries() const {
    const std::filesystem::recursive_directory_iterator all(path_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

 private:
  std::string path_;
};
