// File systems of a test's own, as full or as closed as the test wants them.
#pragma once

#include <string>

namespace trxtest {

/// Gives this process mounts of its own: what it mounts from now on, nobody else sees, and it goes
/// with the process. Needs no privilege where the system lets users have name spaces; throws where
/// it does not. There is no way back. The process must have one thread only.
void HaveOwnMounts();

/// A mount for the length of its object, in a process that has mounts of its own. Throws when the
/// system does not do its part.
class Mount {
 public:
  ~Mount();
  Mount(Mount &&) = delete;

  /// A file system in memory in the place of a folder, such as one with the options "size=16k".
  static Mount Memory(const std::string &folder, const std::string &options);

  /// The folder as it is, but read-only, for root too.
  static Mount ReadOnly(const std::string &folder);

 private:
  explicit Mount(std::string folder) : folder_(std::move(folder)) {}

  std::string folder_;
};

}  // namespace trxtest
