#pragma once

#include <cstdio>
#include <string>

/// The maker's vendor id of this build as four hexadecimal digits.
inline std::string VendorId() {
  char text[8];
  std::snprintf(text, sizeof text, "%04x", static_cast<unsigned>(MAKER_USB_VENDOR_ID));
  return text;
}

/// The same without leading zeros, as the kernel writes it in PRODUCT.
inline std::string VendorIdInProduct() {
  char text[8];
  std::snprintf(text, sizeof text, "%x", static_cast<unsigned>(MAKER_USB_VENDOR_ID));
  return text;
}

/// The same in capitals, as the kernel writes it in MODALIAS.
inline std::string VendorIdInModalias() {
  char text[8];
  std::snprintf(text, sizeof text, "%04X", static_cast<unsigned>(MAKER_USB_VENDOR_ID));
  return text;
}
