// The input is two bytes, and then the bytes that a kernel sends to one unit over USB/IP. The two
// bytes are the unit's fault and the length of the pieces in which the rest arrives (0: all at
// once).
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "Model/Desk.h"
#include "Promise.h"
#include "RecordingFrontEnd.h"
#include "usbip/DeviceSession.h"
#include "usbip/Frames.h"

namespace trxfuzz {
namespace {

using trxsim::ControlRequest;
using trxsim::DecodedFrames;
using trxsim::Desk;
using trxsim::DeviceSession;
using trxsim::RequestFaultKind;
using trxsim::SubmitFrame;
using trxsim::UnlinkFrame;

using Bytes = std::vector<std::uint8_t>;
using Input = std::span<const std::uint8_t>;

constexpr std::size_t kHeaderLength = 48;

enum Trouble : std::uint8_t { kNone, kStall, kShort, kNoReply, kVanish, kStranger, kTroubles };

/// One unit with its fault, and the device side of its connection.
class Device {
 public:
  explicit Device(Trouble trouble) {
    if (trouble == kStranger) {
      desk_.Plug(trxsim::UsbIds{0x1234, 0x5678});
    } else {
      desk_.Plug();
    }
    constexpr RequestFaultKind kKinds[] = {RequestFaultKind::kStall, RequestFaultKind::kShort,
                                           RequestFaultKind::kNoReply, RequestFaultKind::kVanish};
    if (trouble >= kStall && trouble <= kVanish) {
      desk_.SetFault(1, std::nullopt, {kKinds[trouble - kStall], 1});
    }
  }

  /// The replies to these bytes, arriving in pieces of this length.
  Bytes Converse(Input bytes, std::size_t piece) {
    Bytes replies;
    while (!bytes.empty()) {
      const Input next = bytes.first(std::min(piece, bytes.size()));
      const bool wasOver = session_.IsOver();
      const Bytes more = session_.Receive(next);
      Promise(more.empty() || !wasOver, "nothing is answered once the conversation is over");
      replies.insert(replies.end(), more.begin(), more.end());
      bytes = bytes.subspan(next.size());
    }
    return replies;
  }

  const DeviceSession &Session() const { return session_; }
  std::size_t LoggedRequests() const { return desk_.Log().size(); }

 private:
  RecordingFrontEnd frontEnd_;
  Desk desk_{frontEnd_};
  DeviceSession session_{
      trxsim::UsbIdentity{0x4F52, 0x001F, true, "Maker", "Mixer", "1"},
      [this](const ControlRequest &request) { return desk_.Transfer(1, request); }};
};

std::uint32_t NumberAt(Input bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (const std::uint8_t byte : bytes.subspan(place, 4)) number = number << 8 | byte;
  return number;
}

/// Checks a conversation frame by frame, as the kernel does.
class Kernel {
 public:
  Kernel(Trouble trouble, Input replies) : trouble_(trouble), replies_(replies) {}

  void Check(const DecodedFrames &decoded) {
    for (const trxsim::Frame &frame : decoded.frames) {
      if (isUnplugged_) break;
      std::visit([this](const auto &one) { Check(one); }, frame);
    }
    Promise(replies_.empty(), "there is no reply without a request");
  }

 private:
  void Check(const SubmitFrame &frame) {
    const bool isForMixer = frame.endpoint == 0 && !trxsim::IsStandard(frame.setup);
    if (isForMixer && trouble_ == kVanish) {
      isUnplugged_ = true;
      return;
    }
    if (isForMixer && trouble_ == kNoReply) {
      waiting_.insert(frame.sequence);
      return;
    }
    const Input header = TakeHeader(3, frame.sequence);
    const auto status = static_cast<std::int32_t>(NumberAt(header, 20));
    const std::uint32_t length = NumberAt(header, 24);
    Promise(status == 0 || status == -EPIPE, "a request is done or stalls");
    Promise(status == 0 || length == 0, "a request that stalls transfers nothing");
    Promise(length <= frame.length, "no more is transferred than was asked for");
    if (isForMixer && (trouble_ == kStall || trouble_ == kStranger)) {
      Promise(status == -EPIPE, "a unit that stalls does so at every request");
    }
    if (frame.isRead) Take(length);
  }

  void Check(const UnlinkFrame &frame) {
    const Input header = TakeHeader(4, frame.sequence);
    const std::int32_t expected = waiting_.erase(frame.victim) != 0 ? -ECONNRESET : 0;
    Promise(static_cast<std::int32_t>(NumberAt(header, 20)) == expected,
            "a request can be taken back while it waits");
    Promise(NumberAt(header, 24) == 0, "nothing is transferred for a request taken back");
  }

  Input Take(std::size_t size) {
    Promise(replies_.size() >= size, "every request has a whole reply");
    const Input taken = replies_.first(size);
    replies_ = replies_.subspan(size);
    return taken;
  }

  Input TakeHeader(std::uint32_t command, std::uint32_t sequence) {
    const Input header = Take(kHeaderLength);
    Promise(NumberAt(header, 0) == command, "a reply is of its request's kind");
    Promise(NumberAt(header, 4) == sequence, "replies have their requests' numbers and order");
    return header;
  }

  Trouble trouble_;
  Input replies_;
  std::set<std::uint32_t> waiting_;
  bool isUnplugged_ = false;
};

void CheckDecoded(Input bytes, const DecodedFrames &decoded) {
  std::size_t length = 0;
  for (const trxsim::Frame &frame : decoded.frames) {
    length += kHeaderLength;
    if (const auto *const submit = std::get_if<SubmitFrame>(&frame)) {
      Promise(submit->data.size() == (submit->isRead ? 0 : submit->length),
              "a write has all of its data, a read none");
      length += submit->data.size();
    }
  }
  Promise(decoded.used == length && length <= bytes.size(), "frames are taken whole");
  const std::size_t left = bytes.size() - length;
  Promise(!decoded.error.empty() || left < kHeaderLength + 0xFFFF,
          "what waits for its end is not longer than a frame");
}

void Run(Input input) {
  if (input.size() < 2) return;
  const auto trouble = static_cast<Trouble>(input[0] % kTroubles);
  const std::size_t piece = input[1] == 0 ? input.size() : input[1];
  const Input bytes = input.subspan(2);

  const DecodedFrames decoded = trxsim::DecodeFrames(bytes);
  CheckDecoded(bytes, decoded);

  Device device(trouble);
  const Bytes replies = device.Converse(bytes, bytes.size());
  Kernel(trouble, replies).Check(decoded);
  Promise(device.LoggedRequests() <= decoded.frames.size(), "only requests are logged");

  Device slowDevice(trouble);
  Promise(slowDevice.Converse(bytes, piece) == replies,
          "the replies are the same in whatever pieces the bytes arrive");
  Promise(slowDevice.Session().IsOver() == device.Session().IsOver(),
          "so is whether the conversation is over");
  Promise(device.Session().IsOver() ||
              slowDevice.Session().IsInMidFrame() == device.Session().IsInMidFrame(),
          "so is whether a frame has begun");
}

}  // namespace
}  // namespace trxfuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  trxfuzz::Run({data, size});
  return 0;
}
