// On macOS the notification server is the system's, and always there. A process over GNUstep that
// finds none starts a daemon, which outlives the test: here only tests start one.
#import <Foundation/Foundation.h>

@implementation NSTask (NoDaemonOfItsOwn)

+ (NSString *)launchPathForTool:(NSString *)name {
  (void)name;
  return nil;
}

@end
