#include "BusWalk.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <optional>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include "USBDevice.h"

namespace orv {
namespace {

constexpr const char *kDevicesFolder = "/sys/bus/usb/devices";

// The folder of devices. Every call that reaches a mixer reads it, and opendir would also get the
// status of the folder and allocate 32 KiB each time.
class Folder {
 public:
  Folder() : descriptor_(open(kDevicesFolder, O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
  Folder(const Folder &) = delete;
  Folder &operator=(const Folder &) = delete;
  ~Folder() {
    if (descriptor_ >= 0) close(descriptor_);
  }

  int Descriptor() const { return descriptor_; }

  /// The next entry; null when there is none. Valid until the next call.
  const dirent64 *Next() {
    if (next_ == end_) {
      end_ = std::max(getdents64(descriptor_, entries_.data(), entries_.size()), ssize_t{0});
      next_ = 0;
      if (end_ == 0) return nullptr;
    }
    const auto *entry = reinterpret_cast<const dirent64 *>(entries_.data() + next_);
    next_ += entry->d_reclen;
    return entry;
  }

 private:
  int descriptor_;
  ssize_t next_ = 0;
  ssize_t end_ = 0;
  alignas(dirent64) std::array<char, 8192> entries_;
};

// Interfaces have a colon in their name ("1-2:1.0"); root hubs are called "usb1" and so on. Neither
// can be a mixer. Knowing it from the name saves opening their files.
bool MayBeUnit(std::string_view name) {
  return !name.starts_with('.') && !name.starts_with("usb") &&
         name.find(':') == std::string_view::npos;
}

// The kernel's summary of a device, one KEY=VALUE on each line: ids and address in a single read.
// No attribute is larger than this.
using Summary = std::array<char, 4096>;

std::string_view ReadSummary(int folder, const char *name, Summary &summary) {
  std::array<char, NAME_MAX + sizeof "/uevent"> path;
  const std::size_t length = std::strlen(name);
  std::memcpy(path.data(), name, length);
  std::memcpy(path.data() + length, "/uevent", sizeof "/uevent");
  const int file = openat(folder, path.data(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return {};
  const ssize_t size = read(file, summary.data(), summary.size());
  close(file);
  return size > 0 ? std::string_view(summary.data(), static_cast<std::size_t>(size))
                  : std::string_view();
}

std::string_view ValueOf(std::string_view key, std::string_view summary) {
  for (std::size_t at = summary.find(key); at != summary.npos; at = summary.find(key, at + 1)) {
    const bool beginsLine = at == 0 || summary[at - 1] == '\n';
    const std::string_view rest = summary.substr(at + key.size());
    if (beginsLine && rest.starts_with('=')) return rest.substr(1, rest.find('\n') - 1);
  }
  return {};
}

// Removes a number from the front of the text, and the separator after it if there is one.
std::optional<std::uint16_t> TakeNumber(std::string_view &text, int base, char separator) {
  std::uint16_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  if (!text.empty()) {
    if (text.front() != separator) return std::nullopt;
    text.remove_prefix(1);
  }
  return number;
}

// PRODUCT=4f52/1f/100: vendor, product and release, hexadecimal without leading zeros.
bool IsMixer(std::string_view product) {
  return TakeNumber(product, 16, '/') == kMakerUsbVendorId &&
         TakeNumber(product, 16, '/') == MIXER_USB_PRODUCT_ID;
}

std::optional<UnitAddress> UnitBehind(int folder, const char *name) {
  Summary buffer;
  const std::string_view summary = ReadSummary(folder, name, buffer);
  if (!IsMixer(ValueOf("PRODUCT", summary))) return std::nullopt;
  std::string_view busText = ValueOf("BUSNUM", summary);
  std::string_view deviceText = ValueOf("DEVNUM", summary);
  const auto bus = TakeNumber(busText, 10, '\n');
  const auto device = TakeNumber(deviceText, 10, '\n');
  if (!bus || !device) return std::nullopt;
  return UnitAddress{*bus, *device};
}

}  // namespace

BusLook LookAtBus() {
  BusLook units;
  Folder folder;
  while (const dirent64 *entry = folder.Next()) {
    if (!MayBeUnit(entry->d_name)) continue;
    if (const auto unit = UnitBehind(folder.Descriptor(), entry->d_name)) units.push_back(*unit);
  }
  std::sort(units.begin(), units.end());
  return units;
}

}  // namespace orv
