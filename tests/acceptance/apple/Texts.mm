#include "../Texts.h"

#include <map>

#import <Foundation/Foundation.h>

namespace trxtest {

ORVStringRef TextOf(const std::string &characters) {
  static std::map<std::string, ORVStringRef> texts;
  const auto [place, isNew] = texts.emplace(characters, nullptr);
  if (isNew) {
    NSString *const text = [[NSString alloc] initWithUTF8String:characters.c_str()];
    place->second = reinterpret_cast<ORVStringRef>(text);
  }
  return place->second;
}

std::string CharactersOf(ORVStringRef text) {
  if (text == nullptr) return "(null)";
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  const std::string characters =
      [reinterpret_cast<NSString *>(const_cast<__CFString *>(text)) UTF8String];
  [pool drain];
  return characters;
}

}  // namespace trxtest
