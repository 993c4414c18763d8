#include "PlatformStatus.h"

#include <array>
#include <cerrno>

namespace orv {
namespace {

struct Namesake {
  int error;
  PlatformStatus status;
};

constexpr std::array<Namesake, 17> kNamesakes = {{
    {EBUSY, kIOReturnExclusiveAccess},
    {EPIPE, kIOUSBPipeStalled},
    {ETIMEDOUT, kIOUSBTransactionTimeout},
    {ENODEV, kIOReturnNoDevice},
    {ESHUTDOWN, kIOReturnNoDevice},
    {ENOENT, kIOReturnNoDevice},
    {ENXIO, kIOReturnNoDevice},
    {EACCES, kIOReturnNotPermitted},
    {EPERM, kIOReturnNotPermitted},
    // The same by different host controllers.
    {EPROTO, kIOReturnNotResponding},
    {EILSEQ, kIOReturnNotResponding},
    {ETIME, kIOReturnNotResponding},
    {EOVERFLOW, kIOReturnOverrun},
    {ENOMEM, kIOReturnNoMemory},
    {EMFILE, kIOReturnNoResources},
    {EINVAL, kIOReturnBadArgument},
    {EIO, kIOReturnIOError},
}};

}  // namespace

PlatformStatus PlatformStatusFromErrno(int error) noexcept {
  for (const Namesake &namesake : kNamesakes) {
    if (namesake.error == error) return namesake.status;
  }
  return kIOReturnError;
}

}  // namespace orv
