#include "CentreGate.h"

#include <condition_variable>
#include <mutex>

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

namespace {

std::mutex mutex;
std::condition_variable opened;
bool isShut = false;
std::chrono::seconds mostPatience;

void PassGate() {
  std::unique_lock lock(mutex);
  opened.wait_for(lock, mostPatience, [] { return !isShut; });
}

}  // namespace

// Replaces the one operation that all forms of posting call.
@interface NSDistributedNotificationCenter (BehindGate)
- (void)postBehindGate:(NSString *)name
                object:(NSString *)object
              userInfo:(NSDictionary *)userInfo
    deliverImmediately:(BOOL)deliverImmediately;
@end

@implementation NSDistributedNotificationCenter (BehindGate)

- (void)postBehindGate:(NSString *)name
                object:(NSString *)object
              userInfo:(NSDictionary *)userInfo
    deliverImmediately:(BOOL)deliverImmediately {
  PassGate();
  [self postBehindGate:name object:object userInfo:userInfo deliverImmediately:deliverImmediately];
}

+ (void)load {
  Class centre = [NSDistributedNotificationCenter class];
  method_exchangeImplementations(
      class_getInstanceMethod(centre, @selector(postNotificationName:
                                                              object:userInfo:deliverImmediately:)),
      class_getInstanceMethod(centre, @selector(postBehindGate:
                                                        object:userInfo:deliverImmediately:)));
}

@end

namespace trxtest {

void ShutCentreGate(std::chrono::seconds patience) {
  const std::lock_guard lock(mutex);
  isShut = true;
  mostPatience = patience;
}

void OpenCentreGate() {
  const std::lock_guard lock(mutex);
  isShut = false;
  opened.notify_all();
}

}  // namespace trxtest
