#include "MixerWatch.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <tuple>

#include <sys/inotify.h>
#include <unistd.h>

namespace client {
namespace {

// The folders of the device files, one a bus.
constexpr char kNodes[] = "/dev/bus/usb";

constexpr std::uint32_t kEvents = IN_CREATE | IN_DELETE | IN_MOVE | IN_ATTRIB;

/// Watches the folder of each bus; watching one twice changes nothing.
void WatchFolders(int descriptor) {
  inotify_add_watch(descriptor, kNodes, kEvents);
  std::error_code error;
  for (const auto &bus : std::filesystem::directory_iterator(kNodes, error)) {
    inotify_add_watch(descriptor, bus.path().c_str(), kEvents);
  }
}

void Drain(int descriptor) {
  alignas(inotify_event) std::array<char, 4096> events;
  while (read(descriptor, events.data(), events.size()) > 0) {
  }
}

/// The mixers that can be opened: the kernel makes the file of a device after the device, and takes
/// it away before.
std::vector<Mixer> MixersWithNodes() {
  std::vector<Mixer> mixers = ConnectedMixers();
  std::erase_if(mixers, [](const Mixer &mixer) { return access(mixer.node.c_str(), F_OK) != 0; });
  return mixers;
}

bool HasPlace(const Mixer &left, const Mixer &right) {
  return std::tie(left.bus, left.address) == std::tie(right.bus, right.address);
}

/// Adds an event for each mixer that only the first list has.
void AddMissing(std::vector<PlugEvent> &events, bool isPlugged, const std::vector<Mixer> &mixers,
                const std::vector<Mixer> &others) {
  for (const Mixer &mixer : mixers) {
    const bool isThere = std::any_of(others.begin(), others.end(), [&mixer](const Mixer &other) {
      return HasPlace(mixer, other);
    });
    if (!isThere) events.push_back({isPlugged, mixer});
  }
}

}  // namespace

MixerWatch::MixerWatch() : descriptor_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
  WatchFolders(descriptor_);
  mixers_ = MixersWithNodes();
}

MixerWatch::~MixerWatch() {
  if (descriptor_ >= 0) close(descriptor_);
}

std::vector<PlugEvent> MixerWatch::Take() {
  Drain(descriptor_);
  // A bus that is new brings a folder of its own.
  WatchFolders(descriptor_);
  std::vector<Mixer> now = MixersWithNodes();
  std::vector<PlugEvent> events;
  AddMissing(events, false, mixers_, now);
  AddMissing(events, true, now, mixers_);
  mixers_ = std::move(now);
  return events;
}

}  // namespace client
