#include "RunLoopTurn.h"

#import <Foundation/Foundation.h>

namespace trxtest {

void TakeRunLoopTurn(std::chrono::milliseconds limit) {
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  const NSTimeInterval seconds = static_cast<double>(limit.count()) / 1000;
  [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                           beforeDate:[NSDate dateWithTimeIntervalSinceNow:seconds]];
  [pool drain];
}

// Observing waits for the daemon's answer, and so for everything sent before.
void PassThroughDaemon() {
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  NSObject *const nobody = [[NSObject alloc] init];
  NSDistributedNotificationCenter *const centre = [NSDistributedNotificationCenter defaultCenter];
  [centre addObserver:nobody selector:@selector(description) name:@"never posted" object:nil];
  [centre removeObserver:nobody];
  [nobody release];
  [pool drain];
}

}  // namespace trxtest
