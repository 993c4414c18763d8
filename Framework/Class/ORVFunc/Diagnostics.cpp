// For programs that report to a person: an observer of requests, and the settings file's path.
#include <TRX-SELVASetup/Diagnostics.h>

#include "OutOfMemory.h"
#include "Product.h"
#include "RequestObserver.h"
#include "SettingsFile.h"
#include "Text.h"

using namespace orv;

StatusCode ORV_ObserveRequests(ORVRequestObserver observer, void *context) {
  SetRequestObserver(observer, context);
  return ORV_SUCCESS;
}

StatusCode ORV_GetSettingsFilePath(ProductId productId, ORVStringRef *path) {
  if (path == nullptr || !kEveryServedModel.Contains(productId)) return ORV_BAD_ARGUMENT;
  return UnlessOutOfMemory<StatusCode>(ORV_BAD_ARGUMENT, [&]() -> StatusCode {
    const auto file = SettingsFilePath(ModelDisplayName(productId));
    const ORVStringRef text = file ? KeptText(*file) : nullptr;
    if (text == nullptr) return ORV_BAD_ARGUMENT;
    *path = text;
    return ORV_SUCCESS;
  });
}
