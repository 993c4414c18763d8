// What every operation over Foundation needs: a pool of its own, and its strings as the library's.
// For Objective-C++ only. Any thread.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace orv {

/// An autorelease pool as long as its scope: the host may have none, and one that it has may last
/// as long as the host.
class AutoreleasePool {
 public:
  AutoreleasePool() : pool_([[NSAutoreleasePool alloc] init]) {}
  AutoreleasePool(const AutoreleasePool &) = delete;
  AutoreleasePool &operator=(const AutoreleasePool &) = delete;
  ~AutoreleasePool() { [pool_ drain]; }

 private:
  NSAutoreleasePool *pool_;
};

/// Asks Foundation for something. What it raises ends here, and the result is another; a C++
/// exception passes.
template <typename Result, typename Action>
Result UnlessRaised(Result otherwise, Action action) {
  const AutoreleasePool pool;
  @try {
    return action();
  } @catch (NSException *) {
    return otherwise;
  }
}

/// Tells Foundation to do something. What it raises ends here.
template <typename Action>
void WhileNothingIsRaised(Action action) {
  const AutoreleasePool pool;
  @try {
    action();
  } @catch (NSException *) {
    return;
  }
}

/// A text as a string object, which belongs to the pool; nil when the text is not UTF-8.
inline NSString *StringOf(std::string_view text) {
  return [[[NSString alloc] initWithBytes:text.data()
                                   length:text.size()
                                 encoding:NSUTF8StringEncoding] autorelease];
}

/// The characters of a string object; nothing for nil.
inline std::optional<std::string> CharactersOf(NSString *string) {
  const char *const characters = [string UTF8String];
  if (characters == nullptr) return std::nullopt;
  return std::string(characters, [string lengthOfBytesUsingEncoding:NSUTF8StringEncoding]);
}

}  // namespace orv
