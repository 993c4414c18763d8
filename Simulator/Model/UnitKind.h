#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <variant>

namespace trxsim {

/// A model of the mixers. All models have the same USB ids and answer the same requests.
struct MixerModel {
  const char *name;       ///< The product name that the mixer gives.
  std::size_t selectors;  ///< How many input selectors it reports.
};

/// All models. The first one is plugged in when none is named.
inline constexpr std::array<MixerModel, 6> kMixerModels{{
    {"TRX-SELVA", 4},
    {"TRX-Arden", 4},
    {"TRX-VOLT", 2},
    {"TRX-HALDEN", 4},
    {"TRX-LUMEN", 4},
    {"TRX-MORROW", 4},
}};

/// The ids of a USB device that is no mixer.
struct UsbIds {
  std::uint16_t vendor;
  std::uint16_t product;
};

/// What can be plugged in: a mixer, or any other device.
using UnitKind = std::variant<MixerModel, UsbIds>;

}  // namespace trxsim
