#include "Product.h"

#include <array>

#include "Text.h"

namespace orv {
namespace {

struct Model {
  ProductId productId;
  const char *matchText;
  const char *displayName;  // null: known by name, refused by every function
};

// In the order in which names are tested.
constexpr std::array<Model, 9> kModels = {{
    {ORV_PRODUCT_TRX_ARDEN, "TRX-ARDEN", "TRX-Arden"},
    {ORV_PRODUCT_TRX_VOLT, "TRX-VOLT", "TRX-VOLT"},
    {ORV_PRODUCT_TRX_BRISK, "TRX-BRISK", nullptr},
    {ORV_PRODUCT_TRC_FENNO, "TRC-FENNO", nullptr},
    {ORV_PRODUCT_TRX_CIRRUS, "TRX-CIRRUS", nullptr},
    {ORV_PRODUCT_TRX_HALDEN, "TRX-HALDEN", "TRX-HALDEN"},
    {ORV_PRODUCT_TRX_LUMEN, "TRX-LUMEN", "TRX-LUMEN"},
    {ORV_PRODUCT_TRX_MORROW, "TRX-MORROW", "TRX-MORROW"},
    {ORV_PRODUCT_TRX_SELVA, "TRX-SELVA", "TRX-SELVA"},
}};

}  // namespace

const char *ModelDisplayName(ProductId productId) noexcept {
  for (const Model &model : kModels) {
    if (model.productId == productId) return model.displayName;
  }
  return nullptr;
}

}  // namespace orv

StatusCode ORV_GetProductId(ORVStringRef name, ProductId *productId) {
  if (name == nullptr || productId == nullptr) return ORV_BAD_ARGUMENT;
  for (const orv::Model &model : orv::kModels) {
    if (orv::UpperCaseContains(name, model.matchText)) {
      *productId = model.productId;
      return ORV_SUCCESS;
    }
  }
  return ORV_BAD_ARGUMENT;
}
