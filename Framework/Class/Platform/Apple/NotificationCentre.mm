#include "NotificationCentre.h"

#import "FoundationCall.h"
#include "ReceivedNotification.h"

namespace orv {
namespace {

NSDictionary *DictionaryOf(const UserInfo &userInfo) {
  NSMutableDictionary *const dictionary = [NSMutableDictionary dictionary];
  for (const auto &[key, value] : userInfo.Entries()) {
    [dictionary setObject:[NSNumber numberWithInt:value] forKey:StringOf(key)];
  }
  return dictionary;
}

}  // namespace

// The two forms of delivery are two messages. With the plain one, a suspended receiver decides when
// it gets the notification.
void PostNotification(const std::string &name, const UserInfo &userInfo,
                      Delivery delivery) noexcept {
  WhileNothingIsRaised([&] {
    NSDistributedNotificationCenter *const centre = [NSDistributedNotificationCenter defaultCenter];
    if (delivery == Delivery::kImmediately) {
      [centre postNotificationName:StringOf(name)
                            object:nil
                          userInfo:DictionaryOf(userInfo)
                deliverImmediately:YES];
    } else {
      [centre postNotificationName:StringOf(name) object:nil userInfo:DictionaryOf(userInfo)];
    }
  });
}

void AddObserver(const std::string &name, NotificationHandler handler) noexcept {
  WhileNothingIsRaised([&] {
    [[NSDistributedNotificationCenter defaultCenter] addObserver:handler.observer
                                                        selector:handler.operation
                                                            name:StringOf(name)
                                                          object:nil];
  });
}

// Other programs may add entries of their own, of any type.
bool ReadUserInfo(id notification, std::span<const char *const> keys, UserInfo &userInfo) {
  return UnlessRaised(false, [&] {
    NSDictionary *const carried = [static_cast<NSNotification *>(notification) userInfo];
    for (const char *key : keys) {
      NSNumber *const value = [carried objectForKey:StringOf(key)];
      if (value == nil) continue;
      if (![value isKindOfClass:[NSNumber class]]) return false;
      userInfo.Set(key, [value intValue]);
    }
    return true;
  });
}

}  // namespace orv
