#include "RequestTable.h"

#include <algorithm>

namespace trxsim {

namespace {

constexpr std::uint8_t kVendorRead = 0xC0;
constexpr std::uint8_t kVendorWrite = 0x40;
constexpr std::uint8_t kRead = 0;
constexpr std::uint8_t kWrite = 3;

// Reads and writes share numbers with different meanings, and the mixer input is 0x8016.
constexpr std::array<RequestEntry, 10> kRequests{{
    {RequestId::Firmware, kVendorRead, kRead, 0x8001, "firmware", "firmware version"},
    {RequestId::Selectors, kVendorRead, kRead, 0x8002, "selectors", "input selectors"},
    {RequestId::Serato, kVendorRead, kRead, 0x8004, "serato", "Serato activity"},
    {RequestId::Port, kVendorRead, kRead, 0x8006, "port", "port state"},
    {RequestId::Certify, kVendorRead, kRead, 0x8007, "certify", "certify level"},
    {RequestId::MixerOutput, kVendorWrite, kWrite, 0x8002, "mixer-output", "mixer output"},
    {RequestId::UsbOutputLevel, kVendorWrite, kWrite, 0x8003, "usb-output-level",
     "USB output level"},
    {RequestId::MidiChannel, kVendorWrite, kWrite, 0x8004, "midi-channel", "MIDI channel"},
    {RequestId::MidiKeyMode, kVendorWrite, kWrite, 0x8005, "midi-key-mode", "MIDI key mode"},
    {RequestId::MixerInput, kVendorWrite, kWrite, 0x8016, "mixer-input", "mixer input"},
}};

template <typename Predicate>
std::optional<RequestId> findRequest(Predicate matches) {
  const auto found = std::find_if(kRequests.begin(), kRequests.end(), matches);
  return found == kRequests.end() ? std::nullopt : std::optional(found->id);
}

}  // namespace

const std::array<RequestEntry, 10> &requestTable() { return kRequests; }

const RequestEntry &requestEntry(RequestId id) { return kRequests[static_cast<std::size_t>(id)]; }

std::optional<RequestId> requestFor(const ControlRequest &request) {
  return findRequest([&request](const RequestEntry &entry) {
    return entry.requestType == request.requestType && entry.request == request.request &&
           entry.index == request.index &&
           (entry.isRead() ? request.value == 0 : request.length == 0);
  });
}

std::optional<RequestId> requestNamed(std::string_view word) {
  return findRequest([word](const RequestEntry &entry) { return entry.word == word; });
}

}  // namespace trxsim
