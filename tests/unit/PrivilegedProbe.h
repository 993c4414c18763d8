// A program that says where the library finds its files when it has more rights than its user.
#pragma once

#include <string>

namespace trxtest {

/// What a program prints.
std::string OutputOf(const std::string &program);

/// A copy of the probe that runs with rights that the user of this test does not have: those of
/// another account for root, of another of their groups for anyone else.
class PrivilegedProbe {
 public:
  PrivilegedProbe();
  PrivilegedProbe(const PrivilegedProbe &) = delete;
  PrivilegedProbe &operator=(const PrivilegedProbe &) = delete;
  ~PrivilegedProbe();

  /// False where the user of this test has no other rights to give.
  bool IsPrivileged() const { return isPrivileged_; }
  const std::string &Path() const { return path_; }

 private:
  bool Mark(unsigned bit);

  std::string path_;
  bool isPrivileged_ = false;
};

}  // namespace trxtest
