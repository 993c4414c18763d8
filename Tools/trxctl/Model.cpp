#include "Model.h"

#include <algorithm>
#include <array>
#include <optional>

#include "Failure.h"
#include "LibraryText.h"
#include "Nearest.h"
#include "Text.h"

namespace trxctl {
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

std::string WithoutFamily(std::string_view name) {
  return std::string(name.substr(kFamily.size()));
}

bool BeginsSo(const Model &model, const std::string &begun) {
  const std::string name = Lower(model.name);
  return name.starts_with(begun) || WithoutFamily(name).starts_with(begun);
}

/// The served model that the user most likely meant, with or without the name of the family.
std::optional<std::string> NearestModel(const std::string &name) {
  std::vector<std::string> names = ServedModelNames();
  if (auto nearest = Nearest(name, names)) return nearest;
  std::transform(names.begin(), names.end(), names.begin(), WithoutFamily);
  auto nearest = Nearest(name, names);
  if (nearest) nearest->insert(0, kFamily);
  return nearest;
}

[[noreturn]] void Refuse(const std::string &message, const std::string &lead) {
  const std::vector<std::string> served = ServedModelNames();
  throw Failure{ExitCode::kRefused, message, lead + "choose one of " + Joined(served), served};
}

[[noreturn]] void RefuseSeveral(const std::string &name,
                                const std::vector<const Model *> &matching) {
  std::vector<std::string> names;
  names.reserve(matching.size());
  for (const Model *model : matching) names.emplace_back(model->name);
  throw Failure{ExitCode::kRefused, Quoted(name) + " could be more than one mixer model",
                "write a little more of it: " + Joined(names), names};
}

}  // namespace

std::span<const Model> Models() { return kModels; }

std::vector<std::string> ServedModelNames() {
  std::vector<std::string> names;
  for (const Model &model : kModels) {
    if (model.served) names.emplace_back(model.name);
  }
  return names;
}

std::vector<const Model *> ModelsMatching(const std::string &name) {
  const std::optional<ProductId> recognised = ModelRecognisedIn(name);
  const std::string begun = Lower(name);
  std::vector<const Model *> matching;
  for (const Model &model : kModels) {
    const bool matches = recognised ? model.id == *recognised
                                    : !begun.empty() && model.served && BeginsSo(model, begun);
    if (matches) matching.push_back(&model);
  }
  return matching;
}

const Model &ModelNamed(const std::string &name) {
  const std::vector<const Model *> matching = ModelsMatching(name);
  if (matching.size() > 1) RefuseSeveral(name, matching);
  if (matching.empty()) {
    const auto nearest = NearestModel(name);
    Refuse(Quoted(name) + " names no mixer model",
           nearest ? "did you mean " + *nearest + "? Otherwise " : "");
  }
  const Model &model = *matching.front();
  if (!model.served)
    Refuse(std::string(model.name) + " is known by name only; it has no settings here", "");
  return model;
}

}  // namespace trxctl
