#include <cstdint>

#include <grp.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "../Rights.h"

namespace trxtest {
namespace {

constexpr uid_t kNobody = 65534;

}  // namespace

std::string GiveUpAdmin() {
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct sets[_LINUX_CAPABILITY_U32S_3] = {};
  if (syscall(SYS_capget, &header, sets) != 0) return "failed";
  constexpr std::uint32_t kBit = 1U << CAP_SYS_ADMIN;
  sets[0].effective &= ~kBit;
  sets[0].permitted &= ~kBit;
  return syscall(SYS_capset, &header, sets) == 0 ? "done" : "failed";
}

std::string GiveUpRoot() {
  if (geteuid() != 0) return "done";
  const bool isDone = setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
  return isDone ? "done" : "failed";
}

}  // namespace trxtest
