#include "LibraryText.h"

namespace trxctl {

std::optional<std::string> CharactersOf(ORVStringRef text) {
  if (text == nullptr) return std::nullopt;
  return text;
}

std::optional<ProductId> ModelRecognisedIn(const std::string &name) {
  ProductId id = 0;
  if (ORV_GetProductId(name.c_str(), &id) != ORV_SUCCESS) return std::nullopt;
  return id;
}

}  // namespace trxctl
