#include "RequestTable.h"

#include <algorithm>
#include <array>

namespace trxsim {

namespace {

constexpr std::uint8_t kVendorRead = 0xC0;
constexpr std::uint8_t kVendorWrite = 0x40;
constexpr std::uint8_t kRead = 0;
constexpr std::uint8_t kWrite = 3;

// One wIndex can be two requests: 0x8002 reads the input selectors and writes the mixer output.
constexpr auto kRequests = std::to_array<RequestEntry>({
    {kVendorRead, kRead, 0x8001, "firmware", "firmware version"},
    {kVendorRead, kRead, 0x8002, "selectors", "input selectors"},
    {kVendorRead, kRead, 0x8004, "serato", "Serato activity"},
    {kVendorRead, kRead, 0x8006, "port", "port state"},
    {kVendorRead, kRead, 0x8007, "certify", "certify level"},
    {kVendorWrite, kWrite, 0x8002, "mixer-output", "mixer output"},
    {kVendorWrite, kWrite, 0x8003, "usb-output-level", "USB output level"},
    {kVendorWrite, kWrite, 0x8004, "midi-channel", "MIDI channel"},
    {kVendorWrite, kWrite, 0x8005, "midi-key-mode", "MIDI key mode"},
    {kVendorWrite, kWrite, 0x8016, "mixer-input", "mixer input"},
});

template <typename Predicate>
std::optional<RequestId> FindRequest(Predicate matches) {
  const auto found = std::find_if(kRequests.begin(), kRequests.end(), matches);
  if (found == kRequests.end()) return std::nullopt;
  return static_cast<RequestId>(found - kRequests.begin());
}

}  // namespace

std::span<const RequestEntry> RequestTable() { return kRequests; }

const RequestEntry &EntryOf(RequestId id) { return kRequests[static_cast<std::size_t>(id)]; }

std::optional<RequestId> RequestFor(const ControlRequest &request) {
  return FindRequest([&request](const RequestEntry &entry) {
    return entry.requestType == request.requestType && entry.request == request.request &&
           entry.index == request.index &&
           (entry.IsRead() ? request.value == 0 : request.length == 0);
  });
}

std::optional<RequestId> RequestNamed(std::string_view word) {
  return FindRequest([word](const RequestEntry &entry) { return entry.word == word; });
}

}  // namespace trxsim
