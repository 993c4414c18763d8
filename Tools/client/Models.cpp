#include "Models.h"

#include <algorithm>
#include <array>

#include "LibraryText.h"

namespace client {
namespace {

constexpr std::array<Model, 9> kModels{{
    {ORV_PRODUCT_TRX_ARDEN, "TRX-Arden", true},
    {ORV_PRODUCT_TRX_VOLT, "TRX-VOLT", true},
    {ORV_PRODUCT_TRX_BRISK, "TRX-BRISK", false},
    {ORV_PRODUCT_TRC_FENNO, "TRC-FENNO", false},
    {ORV_PRODUCT_TRX_CIRRUS, "TRX-CIRRUS", false},
    {ORV_PRODUCT_TRX_HALDEN, "TRX-HALDEN", true},
    {ORV_PRODUCT_TRX_LUMEN, "TRX-LUMEN", true},
    {ORV_PRODUCT_TRX_MORROW, "TRX-MORROW", true},
    {ORV_PRODUCT_TRX_SELVA, "TRX-SELVA", true},
}};

/// What the names of all served models begin with.
constexpr std::string_view kFamily = "TRX-";

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool BeginsWith(std::string_view name, std::string_view text) {
  return name.size() >= text.size() &&
         std::equal(text.begin(), text.end(), name.begin(),
                    [](char left, char right) { return Lower(left) == Lower(right); });
}

bool MayBe(const Model &model, std::string_view text) {
  return !text.empty() && model.served &&
         (BeginsWith(model.name, text) || BeginsWith(model.name.substr(kFamily.size()), text));
}

}  // namespace

std::span<const Model> Models() { return kModels; }

std::vector<const Model *> ServedModels() {
  std::vector<const Model *> served;
  for (const Model &model : kModels) {
    if (model.served) served.push_back(&model);
  }
  return served;
}

const Model &DefaultModel() { return kModels.back(); }

const Model *ModelRecognisedIn(const std::string &name) {
  const std::optional<ProductId> id = ProductRecognisedIn(name);
  const auto found = std::find_if(kModels.begin(), kModels.end(),
                                  [&id](const Model &model) { return model.id == id; });
  return found == kModels.end() ? nullptr : &*found;
}

std::vector<const Model *> ModelsMatching(const std::string &text) {
  if (const Model *recognised = ModelRecognisedIn(text)) return {recognised};
  std::vector<const Model *> matching;
  for (const Model &model : kModels) {
    if (MayBe(model, text)) matching.push_back(&model);
  }
  return matching;
}

}  // namespace client
