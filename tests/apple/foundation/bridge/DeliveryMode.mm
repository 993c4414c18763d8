// On macOS a distributed notification is delivered while the receiver's run loop runs in its
// default mode. GNUstep asks its daemon through a connection, and delivers what comes in while it
// waits for the daemon's answer too, that is, in the middle of an observation being added.
#import <Foundation/Foundation.h>
#include <objc/runtime.h>

@interface NSDistributedNotificationCenter (DeliveryInDefaultMode)
- (void)deliverInDefaultMode:(NSString *)name
                      object:(NSString *)object
                    userInfo:(NSData *)userInfo
                    selector:(NSString *)selector
                          to:(uint64_t)observer;
@end

@implementation NSDistributedNotificationCenter (DeliveryInDefaultMode)

// Changes places with the operation that the daemon calls. What comes in another mode is put off:
// calls put off for one mode are made in their order.
- (void)deliverInDefaultMode:(NSString *)name
                      object:(NSString *)object
                    userInfo:(NSData *)userInfo
                    selector:(NSString *)selector
                          to:(uint64_t)observer {
  NSMethodSignature *const signature = [self methodSignatureForSelector:_cmd];
  NSInvocation *const delivery = [NSInvocation invocationWithMethodSignature:signature];
  [delivery setTarget:self];
  [delivery setSelector:@selector(deliverInDefaultMode:object:userInfo:selector:to:)];
  [delivery setArgument:&name atIndex:2];
  [delivery setArgument:&object atIndex:3];
  [delivery setArgument:&userInfo atIndex:4];
  [delivery setArgument:&selector atIndex:5];
  [delivery setArgument:&observer atIndex:6];
  [delivery retainArguments];
  [delivery performSelector:@selector(invoke)
                 withObject:nil
                 afterDelay:0
                    inModes:[NSArray arrayWithObject:NSDefaultRunLoopMode]];
}

+ (void)load {
  method_exchangeImplementations(
      class_getInstanceMethod([NSDistributedNotificationCenter class],
                              @selector(postNotificationName:object:userInfo:selector:to:)),
      class_getInstanceMethod([NSDistributedNotificationCenter class],
                              @selector(deliverInDefaultMode:object:userInfo:selector:to:)));
}

@end
