// The version texts of the installed package, driver, setup application and library.
#include <optional>
#include <string>
#include <utility>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "OutOfMemory.h"
#include "Product.h"
#include "PropertyList.h"
#include "SystemPath.h"
#include "SystemVersion.h"
#include "Text.h"

using namespace orv;

namespace {

constexpr const char *kPackageReceipt =
    "/private/var/db/receipts/com.orvikaudio.TRX-SELVA.pkg.plist";
constexpr const char *kLibraryInfo =
    "/Frameworks/TRX-SELVASetup.framework/Versions/A/Resources/Info.plist";

std::optional<PropertyList> ReadInstalled(const std::string &path) {
  return PropertyList::ReadFile(SystemPath(path));
}

// Newer systems have the audio driver as a plug-in or as a kernel extension; older ones only as a
// kernel extension.
std::optional<PropertyList> ReadDriverInfo(const std::string &model, bool isLaterSystem) {
  const std::string extension = "/Extensions/" + model + " USBAudio.kext/Contents/Info.plist";
  if (!isLaterSystem) return ReadInstalled("/System/Library" + extension);
  auto plugIn = ReadInstalled("/Library/Audio/Plug-Ins/HAL/" + model +
                              " USBAudio.driver/Contents/Info.plist");
  return plugIn ? std::move(plugIn) : ReadInstalled("/Library" + extension);
}

StatusCode HandOut(const std::optional<PropertyList> &list, const char *key, ORVStringRef *text) {
  if (!list) return ORV_BAD_ARGUMENT;
  const auto value = list->TextForKey(key);
  if (!value) return ORV_BAD_ARGUMENT;
  *text = KeptText(*value);
  return ORV_SUCCESS;
}

}  // namespace

StatusCode ORV_GetPkgVersionText(ProductId productId, ORVStringRef *text) {
  if (text == nullptr || !kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  return UnlessOutOfMemory<StatusCode>(ORV_BAD_ARGUMENT, [&] {
    return HandOut(ReadInstalled(kPackageReceipt), "PackageVersion", text);
  });
}

// The system's version is read even for a model that is then refused: docs/compatibility.md.
StatusCode ORV_GetDriverVersionText(ProductId productId, ORVStringRef *text) {
  if (text == nullptr) return ORV_BAD_ARGUMENT;
  return UnlessOutOfMemory<StatusCode>(ORV_BAD_ARGUMENT, [&]() -> StatusCode {
    const bool isLaterSystem = SystemMinorVersionAbove10();
    if (!kEveryServedModel.Contains(productId)) return ORV_BAD_ARGUMENT;
    return HandOut(ReadDriverInfo(ModelDisplayName(productId), isLaterSystem),
                   "CFBundleShortVersionString", text);
  });
}

StatusCode ORV_GetUtilityVersionText(ProductId productId, ORVStringRef *text) {
  if (text == nullptr || !kEveryServedModel.Contains(productId)) return ORV_BAD_ARGUMENT;
  return UnlessOutOfMemory<StatusCode>(ORV_BAD_ARGUMENT, [&] {
    const std::string model = ModelDisplayName(productId);
    const std::string path =
        "/Applications/Orvik/" + model + "/" + model + " Setup.app/Contents/Info.plist";
    return HandOut(ReadInstalled(path), "CFBundleVersion", text);
  });
}

StatusCode ORV_GetLibraryVersionText(ProductId productId, ORVStringRef *text) {
  if (text == nullptr || !kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  return UnlessOutOfMemory<StatusCode>(ORV_BAD_ARGUMENT, [&] {
    const std::string library = SystemMinorVersionAbove10() ? "/Library" : "/System/Library";
    return HandOut(ReadInstalled(library + kLibraryInfo), "CFBundleVersion", text);
  });
}
