#include "SystemVersion.h"

#include <string>

#include "PropertyList.h"
#include "SystemPath.h"
#include "Text.h"

namespace orv {
namespace {

constexpr const char *kSystemVersionFile = "/System/Library/CoreServices/SystemVersion.plist";

std::string SecondComponent(const std::string &version) {
  const std::size_t start = version.find('.');
  if (start == std::string::npos) return {};
  return version.substr(start + 1, version.find('.', start + 1) - start - 1);
}

}  // namespace

bool SystemMinorVersionAbove10() {
  const auto system = PropertyList::ReadFile(SystemPath(kSystemVersionFile));
  if (!system) return false;
  const auto version = system->TextForKey("ProductVersion");
  return version && IsNumericallyGreater(SecondComponent(*version), "10");
}

}  // namespace orv
