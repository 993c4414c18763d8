#include "PlugEvent.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <dispatch/dispatch.h>
#include <xpc/xpc.h>

#import "FoundationStrings.h"

namespace client {
namespace {

/// The entry of the registry that launchd matched; 0 when it does not say in time.
uint64_t MatchedEntry() {
  constexpr int64_t kPatience = 10 * static_cast<int64_t>(NSEC_PER_SEC);
  __block uint64_t entry = 0;
  const dispatch_semaphore_t taken = dispatch_semaphore_create(0);
  xpc_set_event_stream_handler("com.apple.iokit.matching",
                               dispatch_get_global_queue(QOS_CLASS_DEFAULT, 0),
                               ^(xpc_object_t event) {
                                 entry = xpc_dictionary_get_uint64(event, "IOMatchLaunchServiceID");
                                 dispatch_semaphore_signal(taken);
                               });
  const bool isInTime =
      dispatch_semaphore_wait(taken, dispatch_time(DISPATCH_TIME_NOW, kPatience)) == 0;
  return isInTime ? entry : 0;
}

}  // namespace

std::optional<std::string> ProductOfPlugEvent() {
  const uint64_t entry = MatchedEntry();
  if (entry == 0) return std::nullopt;
  const AutoreleasePool pool;
  const io_service_t mixer =
      IOServiceGetMatchingService(kIOMasterPortDefault, IORegistryEntryIDMatching(entry));
  if (mixer == IO_OBJECT_NULL) return std::nullopt;
  NSString *const name = [(NSString *)IORegistryEntryCreateCFProperty(
      mixer, CFSTR("USB Product Name"), kCFAllocatorDefault, 0) autorelease];
  IOObjectRelease(mixer);
  return CharactersOf(name);
}

}  // namespace client
