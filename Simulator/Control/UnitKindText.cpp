#include "UnitKindText.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <string_view>

#include <strings.h>

#include "CommandArguments.h"

namespace trxsim {

namespace {

// More do not fit on the simulated bus together with those that `plug` may add.
constexpr std::uint32_t kMostUnits = 100;

std::optional<UnitKind> ModelNamed(const std::string &word) {
  for (const MixerModel &model : kMixerModels) {
    if (strcasecmp(model.name, word.c_str()) == 0) return model;
  }
  return std::nullopt;
}

std::optional<std::uint16_t> ParseId(const std::string &digits) {
  const std::optional<std::uint32_t> number = ParseNumber(digits, 16, 0xFFFF);
  if (!number || digits.size() != 4) return std::nullopt;
  return static_cast<std::uint16_t>(*number);
}

std::optional<UnitKind> ParseIds(const std::string &word) {
  const std::size_t colon = word.find(':');
  if (colon == std::string::npos) return std::nullopt;
  const std::optional<std::uint16_t> vendor = ParseId(word.substr(0, colon));
  const std::optional<std::uint16_t> product = ParseId(word.substr(colon + 1));
  if (!vendor || !product) return std::nullopt;
  return UsbIds{*vendor, *product};
}

void RequireFit(std::size_t count) {
  if (count > kMostUnits) {
    throw CommandError("at most " + std::to_string(kMostUnits) +
                       " units can be plugged in at once");
  }
}

bool IsCount(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char character) {
    return character >= '0' && character <= '9';
  });
}

}  // namespace

UnitKind ParseUnitKind(const std::string &word) {
  if (const std::optional<UnitKind> model = ModelNamed(word)) return *model;
  if (const std::optional<UnitKind> ids = ParseIds(word)) return *ids;
  throw CommandError(Quoted(word) + " is neither a mixer model (" + ModelNames() +
                     ") nor VENDOR:PRODUCT with four hexadecimal digits each");
}

std::vector<UnitKind> ParseUnits(const std::string &text) {
  if (IsCount(text)) {
    const std::size_t count = ParseNumber(text, 10, kMostUnits).value_or(kMostUnits + 1);
    RequireFit(count);
    return std::vector<UnitKind>(count, kMixerModels.front());
  }
  std::vector<UnitKind> kinds;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    kinds.push_back(ParseUnitKind(text.substr(begin, end - begin)));
    begin = end + 1;
  }
  RequireFit(kinds.size());
  return kinds;
}

std::string ModelNames() {
  std::string names;
  for (const MixerModel &model : kMixerModels) {
    names += (names.empty() ? "" : ", ") + std::string(model.name);
  }
  return names;
}

std::string MakerIdText() {
  char text[8];
  std::snprintf(text, sizeof text, "%04x", static_cast<unsigned>(MAKER_USB_VENDOR_ID));
  return text;
}

}  // namespace trxsim
