// The mixer models, their names, and the functions that serve them.
#pragma once

#include <cstdint>
#include <initializer_list>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace orv {

/// ProductIds are below this number: the size of tables indexed by ProductId.
inline constexpr ProductId kProductIdLimit = 12;

/// A set of models, one bit for each ProductId.
class ProductSet {
 public:
  constexpr ProductSet(std::initializer_list<ProductId> products) {
    for (const ProductId product : products) mask_ |= 1U << product;
  }

  constexpr bool Contains(ProductId product) const {
    return product < kProductIdLimit && (mask_ >> product & 1U) != 0;
  }

 private:
  std::uint32_t mask_ = 0;
};

inline constexpr ProductSet kEveryServedModel = {ORV_PRODUCT_TRX_ARDEN,  ORV_PRODUCT_TRX_VOLT,
                                                 ORV_PRODUCT_TRX_HALDEN, ORV_PRODUCT_TRX_LUMEN,
                                                 ORV_PRODUCT_TRX_MORROW, ORV_PRODUCT_TRX_SELVA};
inline constexpr ProductSet kVoltOnly = {ORV_PRODUCT_TRX_VOLT};
inline constexpr ProductSet kSelvaOnly = {ORV_PRODUCT_TRX_SELVA};
inline constexpr ProductSet kNoModel = {};

/// The name of a served model as used in file names, paths and notification names; null for any
/// other ProductId.
const char *ModelDisplayName(ProductId productId) noexcept;

}  // namespace orv
