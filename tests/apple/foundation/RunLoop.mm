#include "RunLoop.h"

#import <Foundation/Foundation.h>

namespace orv {

bool RunLoopUntil(const std::function<bool()> &condition) {
  constexpr NSTimeInterval kPatience = 20;
  constexpr NSTimeInterval kTurn = 0.02;
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  NSDate *const deadline = [NSDate dateWithTimeIntervalSinceNow:kPatience];
  while (!condition() && [deadline timeIntervalSinceNow] > 0) {
    NSAutoreleasePool *const turn = [[NSAutoreleasePool alloc] init];
    [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                             beforeDate:[NSDate dateWithTimeIntervalSinceNow:kTurn]];
    [turn drain];
  }
  [pool drain];
  return condition();
}

}  // namespace orv
