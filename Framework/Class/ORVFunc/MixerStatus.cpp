// Status queries. Each call reads from the units and uses no file and no announcement. The status
// of a request is ignored: the contents of the buffer decide.
#include <array>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ConnectedUnits.h"
#include "Product.h"

using namespace orv;

namespace {

constexpr ProductSet kCertifiedModels = {ORV_PRODUCT_TRX_HALDEN, ORV_PRODUCT_TRX_LUMEN,
                                         ORV_PRODUCT_TRX_MORROW, ORV_PRODUCT_TRX_SELVA};

// TRX-HALDEN is accepted but not asked: its level is always 0, docs/compatibility.md.
constexpr ProductSet kModelsAskedForCertifyLevel = {ORV_PRODUCT_TRX_LUMEN, ORV_PRODUCT_TRX_MORROW,
                                                    ORV_PRODUCT_TRX_SELVA};

constexpr std::uint32_t kSelectorPositions = 8;
constexpr std::uint32_t kSeratoStates = 2;

std::uint32_t MostSignificantFirst(const std::array<std::uint8_t, 4> &bytes) {
  return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
         std::uint32_t{bytes[2]} << 8 | std::uint32_t{bytes[3]};
}

struct SelectorQuery {
  ProductSet models;
  std::int32_t channels;
  std::uint16_t length;  // of the requested reply
};

constexpr std::array<SelectorQuery, 3> kSelectorQueries = {{
    {{ORV_PRODUCT_TRX_ARDEN}, 4, 5},
    {{ORV_PRODUCT_TRX_VOLT}, 3, 3},
    {{ORV_PRODUCT_TRX_HALDEN, ORV_PRODUCT_TRX_LUMEN, ORV_PRODUCT_TRX_MORROW, ORV_PRODUCT_TRX_SELVA},
     5,
     5},
}};

const SelectorQuery *SelectorQueryFor(ProductId productId, std::int32_t channel) {
  for (const SelectorQuery &query : kSelectorQueries) {
    if (query.models.Contains(productId)) {
      return channel >= 0 && channel < query.channels ? &query : nullptr;
    }
  }
  return nullptr;
}

}  // namespace

StatusCode ORV_GetMixerCertifyLevel(ProductId productId, uint32_t *level) {
  if (level == nullptr || !kCertifiedModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  *level = 0;
  VisitUnits(ConnectedUnits(productId), [&](DeviceHandle unit) {
    if (kModelsAskedForCertifyLevel.Contains(productId)) {
      std::array<std::uint8_t, 4> reply = {};
      GetCertifyLevel(unit, reply.data(), reply.size());
      *level = MostSignificantFirst(reply);
    }
    return Visit::kNext;
  });
  return ORV_SUCCESS;
}

StatusCode ORV_GetFirmwareVersionIndex(ProductId productId, uint32_t *version) {
  if (version == nullptr) return ORV_BAD_ARGUMENT;
  *version = 0;
  if (!kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  VisitFirstUnit(ConnectedUnits(productId), [&](DeviceHandle unit) {
    std::array<std::uint8_t, 2> reply = {};
    GetFirmwareVersionNumber(unit, reply.data(), reply.size());
    *version = reply[0] + reply[1] * 256U;
  });
  return ORV_SUCCESS;
}

StatusCode ORV_GetMixerInputSelectorStatus(ProductId productId, uint32_t channel,
                                           uint32_t *selector) {
  if (selector == nullptr) return ORV_BAD_ARGUMENT;
  const SelectorQuery *const query = SelectorQueryFor(productId, static_cast<int32_t>(channel));
  if (query == nullptr) return ORV_BAD_ARGUMENT;
  StatusCode status = ORV_SUCCESS;
  VisitUnits(ConnectedUnits(productId), [&](DeviceHandle unit) {
    std::array<std::uint8_t, 6> reply = {};  // one more than is ever read
    GetInputSelectorInfo(unit, reply.data(), query->length);
    *selector = reply[channel + 1];
    if (*selector >= kSelectorPositions) status = ORV_BAD_ARGUMENT;
    return status == ORV_SUCCESS ? Visit::kNext : Visit::kStop;
  });
  return status;
}

StatusCode ORV_GetMixerSeratoActiveStatus(ProductId productId, uint32_t *active) {
  if (active == nullptr || !kEveryServedModel.Contains(productId)) return ORV_BAD_ARGUMENT;
  StatusCode status = ORV_SUCCESS;
  VisitUnits(ConnectedUnits(productId), [&](DeviceHandle unit) {
    std::array<std::uint8_t, 2> reply = {0xFF, 0xFF};
    // TRX-VOLT has no Serato status: it is refused once a unit opens, docs/compatibility.md.
    if (!kVoltOnly.Contains(productId)) GetSeratoActiveInfo(unit, reply.data(), reply.size());
    if (reply[0] >= kSeratoStates) {
      status = ORV_BAD_ARGUMENT;
      return Visit::kStop;
    }
    *active = reply[0];
    return Visit::kNext;
  });
  return status;
}
