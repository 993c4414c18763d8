#include "SystemCallFilter.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <system_error>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

namespace trxtest {
namespace {

// The bit that only O_TMPFILE has.
constexpr std::uint32_t kUnnamedBit = O_TMPFILE & ~O_DIRECTORY;

constexpr std::uint32_t kOffsetOfNumber = offsetof(seccomp_data, nr);
// The third argument; on these little-endian machines its lower half comes first.
constexpr std::uint32_t kOffsetOfFlags = offsetof(seccomp_data, args) + 2 * sizeof(std::uint64_t);

// Makes each call of this number fail that has one of these flags in its third argument; without
// flags, each call.
void Refuse(std::uint32_t number, std::uint32_t flags, int error) {
  const std::uint8_t skipFlags = flags != 0 ? 0 : 2;
  sock_filter program[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kOffsetOfNumber),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 4),
      BPF_JUMP(BPF_JMP | BPF_JA | BPF_K, skipFlags, 0, 0),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kOffsetOfFlags),
      BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, flags, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error)),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog filter = {sizeof program / sizeof program[0], program};
  if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
      prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0) {
    throw std::system_error(errno, std::generic_category(), "filter system calls");
  }
}

}  // namespace

void GiveUpUnnamedFiles() { Refuse(SYS_openat, kUnnamedBit, EOPNOTSUPP); }

void GiveUpNamingFilesLater() { Refuse(SYS_linkat, 0, ENOENT); }

void GiveUpExchange() { Refuse(SYS_renameat2, 0, EINVAL); }

void FailToOpen(int flags, int error) {
  Refuse(SYS_openat, static_cast<std::uint32_t>(flags), error);
}

void FailToRead(int error) { Refuse(SYS_pread64, 0, error); }

}  // namespace trxtest
