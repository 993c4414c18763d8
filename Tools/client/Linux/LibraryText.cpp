#include "LibraryText.h"

namespace client {

std::optional<std::string> CharactersOf(ORVStringRef text) {
  if (text == nullptr) return std::nullopt;
  return text;
}

std::optional<ProductId> ProductRecognisedIn(const std::string &name) {
  ProductId id = 0;
  if (ORV_GetProductId(name.c_str(), &id) != ORV_SUCCESS) return std::nullopt;
  return id;
}

}  // namespace client
