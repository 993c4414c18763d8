// For Objective-C++ only.
#pragma once

#include <optional>
#include <string>

#import <Foundation/Foundation.h>

namespace client {

/// An autorelease pool as long as its scope; the program has no other.
class AutoreleasePool {
 public:
  AutoreleasePool() : pool_([[NSAutoreleasePool alloc] init]) {}
  AutoreleasePool(const AutoreleasePool &) = delete;
  AutoreleasePool &operator=(const AutoreleasePool &) = delete;
  ~AutoreleasePool() { [pool_ drain]; }

 private:
  NSAutoreleasePool *pool_;
};

/// The characters of a string object in UTF-8; nothing for nil.
inline std::optional<std::string> CharactersOf(NSString *string) {
  const char *const characters = [string UTF8String];
  if (characters == nullptr) return std::nullopt;
  return characters;
}

}  // namespace client
