// A program with more rights than its user that prints where the library finds its files.
#pragma once

#include <string>

namespace trxtest {

/// The output of a program; the arguments are words for the shell.
std::string OutputOf(const std::string &program, const std::string &arguments = "");

/// A copy of the probe that runs with rights that the user of this test does not have: for root,
/// those of another account; for other users, those of another of their groups.
class PrivilegedProbe {
 public:
  PrivilegedProbe();
  PrivilegedProbe(const PrivilegedProbe &) = delete;
  PrivilegedProbe &operator=(const PrivilegedProbe &) = delete;
  ~PrivilegedProbe();

  /// False when the user of this test cannot give it such rights.
  bool IsPrivileged() const { return isPrivileged_; }
  const std::string &Path() const { return path_; }

 private:
  bool Mark(unsigned bit);

  std::string path_;
  bool isPrivileged_ = false;
};

}  // namespace trxtest
