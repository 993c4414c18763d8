// What every call of Foundation needs: an autorelease pool, and conversion of strings. For
// Objective-C++ only. Any thread.
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

/// An autorelease pool for one scope: the host may have none, or one that is never drained. When
/// there is no memory for it, the host's pool takes the objects.
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

/// Calls Foundation for a result. An Objective-C exception ends here and gives the other result; a
/// C++ exception passes.
template <typename Result, typename Action>
Result UnlessRaised(Result otherwise, Action action) {
  const AutoreleasePool pool;
  @try {
    return action();
  } @catch (NSException *) {
    return otherwise;
  }
}

/// Calls Foundation without a result. An Objective-C exception ends here.
template <typename Action>
void WhileNothingIsRaised(Action action) {
  const AutoreleasePool pool;
  @try {
    action();
  } @catch (NSException *) {
    return;
  }
}

/// A text as a string object that belongs to the pool; nil when the text is not UTF-8.
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
