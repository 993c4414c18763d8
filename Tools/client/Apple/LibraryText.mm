#include "LibraryText.h"

#import "FoundationStrings.h"

namespace client {

std::optional<std::string> CharactersOf(ORVStringRef text) {
  const AutoreleasePool pool;
  return CharactersOf(reinterpret_cast<NSString *>(const_cast<__CFString *>(text)));
}

std::optional<ProductId> ProductRecognisedIn(const std::string &name) {
  const AutoreleasePool pool;
  NSString *const text = [NSString stringWithUTF8String:name.c_str()];
  ProductId model = 0;
  if (text == nil ||
      ORV_GetProductId(reinterpret_cast<ORVStringRef>(text), &model) != ORV_SUCCESS) {
    return std::nullopt;
  }
  return model;
}

}  // namespace client
