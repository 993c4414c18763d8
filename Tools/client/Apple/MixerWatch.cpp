#include "MixerWatch.h"

namespace client {

// Mixers cannot be told apart here, so there is nothing to compare.
MixerWatch::MixerWatch() = default;

MixerWatch::~MixerWatch() = default;

std::vector<PlugEvent> MixerWatch::Take() { return {}; }

}  // namespace client
