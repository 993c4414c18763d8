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
  Mount(Mount &&) = delete;

  /// A file system in memory over a folder, for example with the options "size=16k".
  static Mount Memory(const std::string &folder, const std::string &options);

  /// The folder itself, but read-only, for root too.
  static Mount ReadOnly(const std::string &folder);

 private:
  explicit Mount(std::string folder) : folder_(std::move(folder)) {}

  std::string folder_;
};

}  // namespace trxtest
