// The constants of the header, in the types in which functions take and return them.
#pragma once

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxtest {

inline constexpr ProductId kArden = ORV_PRODUCT_TRX_ARDEN;
inline constexpr ProductId kVolt = ORV_PRODUCT_TRX_VOLT;
inline constexpr ProductId kBrisk = ORV_PRODUCT_TRX_BRISK;
inline constexpr ProductId kFenno = ORV_PRODUCT_TRC_FENNO;
inline constexpr ProductId kCirrus = ORV_PRODUCT_TRX_CIRRUS;
inline constexpr ProductId kHalden = ORV_PRODUCT_TRX_HALDEN;
inline constexpr ProductId kLumen = ORV_PRODUCT_TRX_LUMEN;
inline constexpr ProductId kMorrow = ORV_PRODUCT_TRX_MORROW;
inline constexpr ProductId kSelva = ORV_PRODUCT_TRX_SELVA;

inline constexpr StatusCode kSuccess = ORV_SUCCESS;
inline constexpr StatusCode kSuccessWithWarning = ORV_SUCCESS_WITH_WARNING;
inline constexpr StatusCode kBadArgument = ORV_BAD_ARGUMENT;
inline constexpr StatusCode kConnected = ORV_CONNECTED;
inline constexpr StatusCode kNotConnected = ORV_NOT_CONNECTED;

}  // namespace trxtest
