#include "Text.h"

#import "FoundationCall.h"
#include "KeptTexts.h"

namespace orv {
namespace {

class StringObject {
 public:
  explicit StringObject(const std::string &characters)
      : string_(UnlessRaised<NSString *>(nil, [&] { return [StringOf(characters) retain]; })) {}
  StringObject(const StringObject &) = delete;
  StringObject &operator=(const StringObject &) = delete;
  ~StringObject() { [string_ release]; }

  ORVStringRef Reference() const { return reinterpret_cast<ORVStringRef>(string_); }

 private:
  NSString *string_;
};

KeptTexts<StringObject> keptTexts;

}  // namespace

bool UpperCaseContains(ORVStringRef text, const char *upperCase) noexcept {
  return UnlessRaised(false, [&] {
    NSString *const inUpperCase = [reinterpret_cast<NSString *>(text) uppercaseString];
    return [inUpperCase rangeOfString:StringOf(upperCase)].location != NSNotFound;
  });
}

bool IsNumericallyGreater(const std::string &text, const std::string &than) {
  return UnlessRaised(false, [&] {
    return [StringOf(text) compare:StringOf(than) options:NSNumericSearch] == NSOrderedDescending;
  });
}

ORVStringRef KeptText(std::string_view text) { return keptTexts.Keep(text); }

}  // namespace orv
