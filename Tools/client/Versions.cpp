#include "Versions.h"

#include <array>

#include "LibraryText.h"

namespace client {
namespace {

struct Source {
  StatusCode (*version)(ProductId, ORVStringRef *text);
  /// Whether each model has its own; the others go by the name of one model.
  bool isOfModel;
};

// In the order of InstalledPiece.
constexpr std::array<Source, 4> kSources{{
    {ORV_GetPkgVersionText, false},
    {ORV_GetDriverVersionText, true},
    {ORV_GetUtilityVersionText, true},
    {ORV_GetLibraryVersionText, false},
}};

}  // namespace

std::optional<std::string> VersionOf(InstalledPiece piece, const Model &model) {
  const Source &source = kSources.at(static_cast<std::size_t>(piece));
  ORVStringRef text = nullptr;
  source.version(source.isOfModel ? model.id : ProductId{ORV_PRODUCT_TRX_SELVA}, &text);
  return CharactersOf(text);
}

}  // namespace client
