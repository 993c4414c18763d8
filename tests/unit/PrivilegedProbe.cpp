#include "PrivilegedProbe.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace trxtest {
namespace {

constexpr uid_t kNobody = 65534;

std::optional<gid_t> AnotherGroup() {
  std::vector<gid_t> groups(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
  const int count = getgroups(static_cast<int>(groups.size()), groups.data());
  for (int i = 0; i < count; ++i) {
    if (groups[static_cast<std::size_t>(i)] != getgid()) return groups[static_cast<std::size_t>(i)];
  }
  return std::nullopt;
}

}  // namespace

std::string OutputOf(const std::string &program, const std::string &arguments) {
  const auto close = [](FILE *stream) { return pclose(stream); };
  const std::string command = "'" + program + "' " + arguments;
  const std::unique_ptr<FILE, decltype(close)> stream(popen(command.c_str(), "r"), close);
  if (stream == nullptr) return "cannot be run";
  std::string output;
  std::array<char, 512> part = {};
  while (const std::size_t size = fread(part.data(), 1, part.size(), stream.get())) {
    output.append(part.data(), size);
  }
  return output;
}

PrivilegedProbe::PrivilegedProbe() : path_(PRIVILEGE_PROBE "-" + std::to_string(getpid())) {
  std::filesystem::copy_file(PRIVILEGE_PROBE, path_);
  if (geteuid() == 0) {
    isPrivileged_ = chown(path_.c_str(), kNobody, kNobody) == 0 && Mark(S_ISUID);
  } else if (const auto group = AnotherGroup()) {
    isPrivileged_ = chown(path_.c_str(), static_cast<uid_t>(-1), *group) == 0 && Mark(S_ISGID);
  }
}

PrivilegedProbe::~PrivilegedProbe() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

bool PrivilegedProbe::Mark(unsigned bit) { return chmod(path_.c_str(), bit | 0755) == 0; }

}  // namespace trxtest
