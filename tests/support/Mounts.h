// Private mounts for a test: file systems that are full or read-only.
#pragma once

#include <string>

namespace trxtest {

/// Gives this process private mounts: no other process sees what it mounts from now on, and the
/// mounts end with it. Needs no privilege where the system allows user namespaces; throws where it
/// does not. Cannot be undone. The process must have one thread only.
void HaveOwnMounts();

/// A mount that ends with its object, in a process with private mounts. Throws when the system
/// refuses.
class Mount {
 public:
  ~Mount();
  Mount(Mount &&other) noexcept;

  /// A file system in memory over a folder, for example with the options "size=16k".
  static Mount Memory(const std::string &folder, const std::string &options);

  /// An empty ext4 file system in a file of its own in memory. Needs root and loop devices.
  static Mount NewDisk(const std::string &folder);

  /// An overlay over the folder: shows what is there, and keeps what is written in memory.
  static Mount Overlay(const std::string &folder);

  /// The folder itself, but read-only, for root too.
  static Mount ReadOnly(const std::string &folder);

 private:
  explicit Mount(std::string folder) : Mount(std::move(folder), "") {}
  Mount(std::string folder, std::string store)
      : folder_(std::move(folder)), store_(std::move(store)) {}

  std::string folder_;
  std::string store_;  // a folder of its own, in memory as well; may be empty
};

}  // namespace trxtest
