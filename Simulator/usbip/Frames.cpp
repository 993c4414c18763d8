#include "Frames.h"

#include <cstdio>
#include <optional>

namespace trxsim {

namespace {

constexpr std::size_t kHeaderLength = 48;
constexpr std::uint32_t kLastEndpoint = 15;

// The longest data stage of a control request; the units have only endpoint 0.
constexpr std::uint32_t kLongestData = 0xFFFF;

// Both mean a request that is not isochronous: the protocol uses the second, Linux the first.
constexpr std::uint32_t kNoPackets = 0;
constexpr std::uint32_t kNoPacketsEither = 0xFFFF'FFFF;

enum Command : std::uint32_t { kSubmit = 1, kUnlink, kSubmitReply, kUnlinkReply };

enum Way : std::uint32_t { kOut, kIn };

// Places of the fields in a header. Numbers are sent most significant byte first.
enum Place : std::size_t {
  kCommandPlace = 0,
  kSequencePlace = 4,
  kDirectionPlace = 12,
  kEndpointPlace = 16,
  kVictimPlace = 20,
  kLengthPlace = 24,
  kPacketsPlace = 32,
  kSetupPlace = 40,
};

using Header = std::span<const std::uint8_t, kHeaderLength>;

std::uint32_t NumberAt(Header header, Place place) {
  std::uint32_t number = 0;
  for (const std::uint8_t byte : header.subspan(place, 4)) number = number << 8 | byte;
  return number;
}

// The eight bytes of a setup packet are as on USB, least significant byte first.
ControlRequest SetupOf(Header header) {
  const auto packet = header.subspan(kSetupPlace, 8);
  const auto wordAt = [packet](std::size_t place) {
    return static_cast<std::uint16_t>(packet[place] | packet[place + 1] << 8);
  };
  return {packet[0], packet[1], wordAt(2), wordAt(4), wordAt(6)};
}

std::string CommandError(std::uint32_t command) {
  if (command == kSubmitReply || command == kUnlinkReply) {
    return "a reply where a request belongs";
  }
  char text[32];
  std::snprintf(text, sizeof text, "unknown command 0x%08x", static_cast<unsigned>(command));
  return text;
}

// What is wrong with a submitted request; empty when nothing is.
std::string SubmitError(Header header) {
  const std::uint32_t length = NumberAt(header, kLengthPlace);
  const std::uint32_t packets = NumberAt(header, kPacketsPlace);
  const std::uint32_t endpoint = NumberAt(header, kEndpointPlace);
  const bool isRead = NumberAt(header, kDirectionPlace) == kIn;
  if (length > kLongestData) return "a data stage of " + std::to_string(length) + " bytes";
  if (packets != kNoPackets && packets != kNoPacketsEither) return "an isochronous request";
  // Without a data stage, Linux sends reads as writes.
  if (endpoint == 0 && length > 0 && SetupOf(header).IsRead() != isRead) {
    return "a setup packet of the other direction";
  }
  return {};
}

std::string HeaderError(Header header) {
  const std::uint32_t command = NumberAt(header, kCommandPlace);
  const std::uint32_t direction = NumberAt(header, kDirectionPlace);
  const std::uint32_t endpoint = NumberAt(header, kEndpointPlace);
  if (command != kSubmit && command != kUnlink) return CommandError(command);
  if (direction > kIn) return "unknown direction " + std::to_string(direction);
  if (endpoint > kLastEndpoint) return "endpoint " + std::to_string(endpoint);
  return command == kSubmit ? SubmitError(header) : std::string();
}

SubmitFrame SubmitOf(Header header) {
  SubmitFrame frame;
  frame.sequence = NumberAt(header, kSequencePlace);
  frame.endpoint = NumberAt(header, kEndpointPlace);
  frame.isRead = NumberAt(header, kDirectionPlace) == kIn;
  frame.length = NumberAt(header, kLengthPlace);
  frame.setup = SetupOf(header);
  return frame;
}

// The frame with this valid header; nothing until its data is complete.
std::optional<Frame> FrameOf(Header header, std::span<const std::uint8_t> rest,
                             std::size_t &dataLength) {
  if (NumberAt(header, kCommandPlace) == kUnlink) {
    return UnlinkFrame{NumberAt(header, kSequencePlace), NumberAt(header, kVictimPlace)};
  }
  SubmitFrame frame = SubmitOf(header);
  dataLength = frame.isRead ? 0 : frame.length;
  if (rest.size() < dataLength) return std::nullopt;
  frame.data.assign(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(dataLength));
  return frame;
}

void Put(std::vector<std::uint8_t> &bytes, Place place, std::uint32_t number) {
  for (std::size_t byte = 0; byte < 4; ++byte) {
    bytes[place + byte] = static_cast<std::uint8_t>(number >> (24 - 8 * byte));
  }
}

// In a reply the status is at the place of the victim's number. The other fields have no meaning
// and are 0, as in the replies of the kernel's own device side.
std::vector<std::uint8_t> ReplyHeader(Command command, std::uint32_t sequence,
                                      std::int32_t status) {
  std::vector<std::uint8_t> bytes(kHeaderLength, 0);
  Put(bytes, kCommandPlace, command);
  Put(bytes, kSequencePlace, sequence);
  Put(bytes, kVictimPlace, static_cast<std::uint32_t>(status));
  return bytes;
}

}  // namespace

DecodedFrames DecodeFrames(std::span<const std::uint8_t> bytes) {
  DecodedFrames decoded;
  while (bytes.size() >= kHeaderLength) {
    const Header header = bytes.first<kHeaderLength>();
    decoded.error = HeaderError(header);
    if (!decoded.error.empty()) break;
    std::size_t dataLength = 0;
    std::optional<Frame> frame = FrameOf(header, bytes.subspan(kHeaderLength), dataLength);
    if (!frame) break;
    decoded.frames.push_back(std::move(*frame));
    decoded.used += kHeaderLength + dataLength;
    bytes = bytes.subspan(kHeaderLength + dataLength);
  }
  return decoded;
}

std::vector<std::uint8_t> EncodeSubmitReply(std::uint32_t sequence, std::int32_t status,
                                            std::uint32_t length,
                                            std::span<const std::uint8_t> data) {
  std::vector<std::uint8_t> bytes = ReplyHeader(kSubmitReply, sequence, status);
  Put(bytes, kLengthPlace, length);
  bytes.insert(bytes.end(), data.begin(), data.end());
  return bytes;
}

std::vector<std::uint8_t> EncodeUnlinkReply(std::uint32_t sequence, std::int32_t status) {
  return ReplyHeader(kUnlinkReply, sequence, status);
}

}  // namespace trxsim
