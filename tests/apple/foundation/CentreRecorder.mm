#include "CentreRecorder.h"

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

namespace {

std::vector<std::string> messages;
std::vector<const void *> observers;
bool isRaising = false;

void RaiseIfAsked() {
  if (isRaising) [NSException raise:NSGenericException format:@"the centre takes nothing"];
}

std::string Shown(NSString *text) {
  return text != nil ? "\"" + std::string([text UTF8String]) + "\"" : "nil";
}

std::string Shown(NSDictionary *dictionary) {
  if (dictionary == nil) return "nil";
  std::string shown = "{";
  for (NSString *key in [[dictionary allKeys] sortedArrayUsingSelector:@selector(compare:)]) {
    if (shown.size() > 1) shown += ", ";
    NSNumber *const value = [dictionary objectForKey:key];
    shown += std::string([key UTF8String]) + " " + [value objCType] + " " +
             [[value stringValue] UTF8String];
  }
  return shown + "}";
}

}  // namespace

// Change places with the operations of the same name without "recorded".
@interface NSDistributedNotificationCenter (Recorded)
@end

@implementation NSDistributedNotificationCenter (Recorded)

- (void)recordedPostNotificationName:(NSString *)name
                              object:(NSString *)object
                            userInfo:(NSDictionary *)userInfo
                  deliverImmediately:(BOOL)deliverImmediately {
  messages.push_back("postNotificationName:" + Shown(name) + " object:" + Shown(object) +
                     " userInfo:" + Shown(userInfo) +
                     " deliverImmediately:" + (deliverImmediately ? "YES" : "NO"));
  RaiseIfAsked();
}

- (void)recordedPostNotificationName:(NSString *)name
                              object:(NSString *)object
                            userInfo:(NSDictionary *)userInfo {
  messages.push_back("postNotificationName:" + Shown(name) + " object:" + Shown(object) +
                     " userInfo:" + Shown(userInfo));
  RaiseIfAsked();
}

- (void)recordedAddObserver:(id)observer
                   selector:(SEL)selector
                       name:(NSString *)name
                     object:(NSString *)object {
  messages.push_back("addObserver:" + std::string(class_getName([observer class])) +
                     " selector:" + [NSStringFromSelector(selector) UTF8String] +
                     " name:" + Shown(name) + " object:" + Shown(object));
  observers.push_back(observer);
  RaiseIfAsked();
}

@end

namespace orv {
namespace {

void ChangePlaces(SEL operation, SEL recorded) {
  Class centre = [NSDistributedNotificationCenter class];
  method_exchangeImplementations(class_getInstanceMethod(centre, operation),
                                 class_getInstanceMethod(centre, recorded));
}

void ChangePlaces() {
  ChangePlaces(@selector(postNotificationName:object:userInfo:deliverImmediately:),
               @selector(recordedPostNotificationName:object:userInfo:deliverImmediately:));
  ChangePlaces(@selector(postNotificationName:object:userInfo:),
               @selector(recordedPostNotificationName:object:userInfo:));
  ChangePlaces(@selector(addObserver:selector:name:object:),
               @selector(recordedAddObserver:selector:name:object:));
}

}  // namespace

CentreRecorder::CentreRecorder() { ChangePlaces(); }

CentreRecorder::~CentreRecorder() {
  ChangePlaces();
  isRaising = false;
  messages.clear();
  observers.clear();
}

void CentreRecorder::Raise() { isRaising = true; }

const std::vector<std::string> &CentreRecorder::Messages() const { return messages; }

const std::vector<const void *> &CentreRecorder::Observers() const { return observers; }

}  // namespace orv
