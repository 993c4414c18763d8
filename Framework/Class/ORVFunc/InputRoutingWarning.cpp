// The warning that a host shows when an input routing was sent but may have no effect.
#include <array>
#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ConnectedUnits.h"
#include "LocalizedStrings.h"
#include "OutOfMemory.h"
#include "Product.h"
#include "SystemPath.h"
#include "SystemVersion.h"

using namespace orv;

namespace {

struct Warned {
  ProductSet models;
  std::int32_t channels;
  bool dependsOnPort;  // the warning depends on the unit's port; else there is one for all cases
};

constexpr std::array<Warned, 4> kWarned = {{
    {{ORV_PRODUCT_TRX_ARDEN}, 4, false},
    {{ORV_PRODUCT_TRX_VOLT}, 3, false},
    {{ORV_PRODUCT_TRX_HALDEN}, 5, true},
    {{ORV_PRODUCT_TRX_LUMEN, ORV_PRODUCT_TRX_MORROW, ORV_PRODUCT_TRX_SELVA}, 4, true},
}};

const Warned *RowFor(ProductId productId, std::int32_t channel) {
  for (const Warned &row : kWarned) {
    if (row.models.Contains(productId)) {
      return channel >= 0 && channel < row.channels ? &row : nullptr;
    }
  }
  return nullptr;
}

constexpr const char *kWithoutUnit = "WARNING1";
constexpr std::uint32_t kPortWithOwnWarning = 1;

// The port of the first unit; 0 when it cannot be read. For a model whose warning does not depend
// on the port, the unit is opened but not asked: docs/compatibility.md.
std::uint32_t PortOfFirstUnit(const ConnectedUnits &units, const Warned &row) {
  std::uint32_t port = 0;
  VisitFirstUnit(units, [&](DeviceHandle unit) {
    if (!row.dependsOnPort) return;
    std::array<std::uint8_t, 2> reply = {};
    GetPortInfo(unit, reply.data(), reply.size());
    port = reply[0] + reply[1] * 256U;
  });
  return port;
}

const char *ChooseKey(const ConnectedUnits &units, const Warned &row) {
  const std::uint32_t port = PortOfFirstUnit(units, row);
  if (!row.dependsOnPort) return "WARNING";
  if (units.Count() == 0) return kWithoutUnit;
  return port == kPortWithOwnWarning ? "WARNING3" : "WARNING2";
}

constexpr std::int32_t kSystemLanguage = 99;

// Indexed by language number.
constexpr std::array<const char *, 12> kLanguageFolders = {
    "English", "Japanese", "French", "German", "Italian", "Dutch",
    "Spanish", "ru",       "pt",     "zh_CN",  "zh_TW",   "ko"};

bool IsNamed(std::int32_t language) {
  return language >= 0 && static_cast<std::size_t>(language) < kLanguageFolders.size();
}

std::string BundlePath() {
  return SystemPath(SystemMinorVersionAbove10()
                        ? "/Library/Frameworks/TRX-SELVASetup.framework"
                        : "/System/Library/Frameworks/TRX-SELVASetup.framework");
}

// Without a unit the text is in the system's language, whichever is named:
// docs/compatibility.md.
ORVStringRef WarningText(const std::string &bundlePath, const std::string &key,
                         std::int32_t language) {
  if (language == kSystemLanguage || key == kWithoutUnit) {
    return LocalizedString(bundlePath, key.c_str());
  }
  return StringInLanguage(bundlePath, kLanguageFolders[static_cast<std::size_t>(language)],
                          key.c_str());
}

}  // namespace

// The bundle is looked for even for a language that is then refused: docs/compatibility.md.
StatusCode ORV_GetWarningTextForSetUSBAudioInput(ProductId productId, int32_t channel,
                                                 StatusCode status, int32_t language,
                                                 ORVStringRef *text) {
  if (text == nullptr) return ORV_BAD_ARGUMENT;
  const Warned *const row = RowFor(productId, channel);
  if (row == nullptr || status != ORV_SUCCESS_WITH_WARNING) return ORV_BAD_ARGUMENT;
  const char *const key = ChooseKey(ConnectedUnits(productId), *row);
  return UnlessOutOfMemory<StatusCode>(ORV_BAD_ARGUMENT, [&]() -> StatusCode {
    const std::string bundlePath = BundlePath();
    if (language != kSystemLanguage && !IsNamed(language)) return ORV_BAD_ARGUMENT;
    *text = WarningText(bundlePath, key, language);
    return ORV_SUCCESS;
  });
}
