#pragma once

#include <vector>

#include "Mixers.h"

namespace client {

/// A mixer that was plugged in or unplugged.
struct PlugEvent {
  bool isPlugged;
  Mixer mixer;
};

/// Notices mixers that are plugged in and out. On macOS it never notices anything.
class MixerWatch {
 public:
  MixerWatch();
  MixerWatch(const MixerWatch &) = delete;
  MixerWatch &operator=(const MixerWatch &) = delete;
  ~MixerWatch();

  /// Readable when something may have happened; -1 where there is no such descriptor.
  int Descriptor() const { return descriptor_; }

  /// What has happened since the last call, by bus and address. Never blocks.
  std::vector<PlugEvent> Take();

 private:
  int descriptor_ = -1;
  std::vector<Mixer> mixers_;
};

}  // namespace client
