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

// The two forms are two messages: the plain one leaves to the receiver what it does while it is
// suspended.
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

bool ReadUserInfo(id notification, UserInfo &userInfo) {
  return UnlessRaised(false, [&] {
    NSDictionary *const carried = [notification userInfo];
    for (NSString *key in carried) {
      NSNumber *const value = [carried objectForKey:key];
      if (![key isKindOfClass:[NSString class]] || ![value isKindOfClass:[NSNumber class]]) {
        return false;
      }
      const auto name = CharactersOf(key);
      if (!name) return false;
      userInfo.Set(*name, [value intValue]);
    }
    return true;
  });
}

}  // namespace orv
