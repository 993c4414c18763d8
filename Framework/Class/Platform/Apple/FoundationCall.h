// What every operation over Foundation needs: a pool of its own, and its strings as the library's.
// For Objective-C++ only. Any thread.
#pragma once

#if defined(__has_feature)
#if __has_feature(objc_arc)
#error "References are counted by hand here: compile with -fno-objc-arc."
#endif
#endif

#include <optional>
#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace orv {

/// An autorelease pool as long as its scope: the host may have none, and one that it has may last
/// as long as the host. Where there is no memory for it, what it would have taken goes to the
/// host's.
class AutoreleasePool {
 public:
  AutoreleasePool() noexcept {
    @try {
      pool_ = [[NSAutoreleasePool alloc] init];
    } @catch (NSException *) {
      pool_ = nil;
    }
  }
  AutoreleasePool(const AutoreleasePool &) = delete;
  AutoreleasePool &operator=(const AutoreleasePool &) = delete;
  ~AutoreleasePool() { [pool_ drain]; }

 private:
  NSAutoreleasePool *pool_ = nil;
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
