#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ChangeKinds.h"
#include "Observer.h"
#include "OutOfMemory.h"

using namespace orv;

namespace {

// Registering again is not told from registering: each call adds an observation, and with it a
// delivery.
template <typename Callback>
StatusCode Register(const ChangeKind<Callback> &kind, ProductId productId, Callback callback,
                    void *context) {
  if (!kind.models.Contains(productId)) return ORV_BAD_ARGUMENT;
  MakeObserver();
  kind.lastPosted.Empty();
  WhileMemoryLasts(
      [&] { Observe(std::string(ModelDisplayName(productId)) + kind.nameEnding, kind.operation); });
  kind.callbacks[productId] = callback;
  kind.contexts[productId] = context;
  return ORV_SUCCESS;
}

// The observation stays: what arrives from now on finds no callback and is dropped.
template <typename Callback>
StatusCode Unregister(const ChangeKind<Callback> &kind, ProductId productId) {
  if (!kind.models.Contains(productId)) return ORV_BAD_ARGUMENT;
  kind.callbacks[productId] = nullptr;
  return ORV_SUCCESS;
}

}  // namespace

StatusCode ORV_RegisterInputAudioChangedCallback(ProductId productId, ChannelIndexCallback callback,
                                                 void *context) {
  return Register(kInputAudioChange, productId, callback, context);
}

StatusCode ORV_UnregisterInputAudioChangedCallback(ProductId productId,
                                                   ChannelIndexCallback /*callback*/) {
  return Unregister(kInputAudioChange, productId);
}

StatusCode ORV_RegisterOutputAudioChangedCallback(ProductId productId,
                                                  ChannelIndexCallback callback, void *context) {
  return Register(kOutputAudioChange, productId, callback, context);
}

StatusCode ORV_UnregisterOutputAudioChangedCallback(ProductId productId,
                                                    ChannelIndexCallback /*callback*/) {
  return Unregister(kOutputAudioChange, productId);
}

StatusCode ORV_RegisterBoostLevelChangedCallback(ProductId productId, IndexCallback callback,
                                                 void *context) {
  return Register(kBoostLevelChange, productId, callback, context);
}

StatusCode ORV_UnregisterBoostLevelChangedCallback(ProductId productId,
                                                   IndexCallback /*callback*/) {
  return Unregister(kBoostLevelChange, productId);
}

StatusCode ORV_RegisterMidiChannelChangedCallback(ProductId productId, IndexCallback callback,
                                                  void *context) {
  return Register(kMidiChannelChange, productId, callback, context);
}

StatusCode ORV_UnregisterMidiChannelChangedCallback(ProductId productId,
                                                    IndexCallback /*callback*/) {
  return Unregister(kMidiChannelChange, productId);
}

StatusCode ORV_RegisterMidiKeyModeChangedCallback(ProductId productId, IndexCallback callback,
                                                  void *context) {
  return Register(kMidiKeyModeChange, productId, callback, context);
}

StatusCode ORV_UnregisterMidiKeyModeChangedCallback(ProductId productId,
                                                    IndexCallback /*callback*/) {
  return Unregister(kMidiKeyModeChange, productId);
}
