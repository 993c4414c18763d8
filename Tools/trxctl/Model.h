#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxctl {

/// One mixer model. Which settings a model has is asked of the library, setting by setting.
struct Model {
  ProductId id;
  std::string_view name;
  /// False for a model that the library knows by name only.
  bool served;
};

/// The model used when the command line names none.
inline constexpr std::string_view kDefaultModel = "TRX-SELVA";

/// All models that the library recognises.
std::span<const Model> Models();

/// The names of the served models.
std::vector<std::string> ServedModelNames();

/// The models that a text may stand for: the one that the library recognises in it, else the served
/// ones whose name begins so, with or without "TRX-", in any case.
std::vector<const Model *> ModelsMatching(const std::string &name);

/// The model that a text stands for. Throws Failure for none, for several, and for one that is not
/// served.
const Model &ModelNamed(const std::string &name);

}  // namespace trxctl
