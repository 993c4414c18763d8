#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace client {

/// One mixer model. Which settings a model has is asked of the library, setting by setting.
struct Model {
  ProductId id;
  std::string_view name;
  /// False for a model that the library knows by name only.
  bool served;
};

/// All models that the library recognises.
std::span<const Model> Models();

/// The models that have settings.
std::vector<const Model *> ServedModels();

/// The model that is meant when nothing says which.
const Model &DefaultModel();

/// The model that the library recognises in a name, such as the product name of a mixer; null for
/// none.
const Model *ModelRecognisedIn(const std::string &name);

/// The models that a text may stand for: the one that the library recognises in it, else the served
/// ones whose name begins so, with or without "TRX-", in any case.
std::vector<const Model *> ModelsMatching(const std::string &text);

}  // namespace client
