#include "WireLog.h"

#include <cstdio>

#include "RequestTable.h"

namespace trxsim {

namespace {

// Wide enough for the longest usual reply, five bytes, so that the names are in one column.
constexpr std::size_t kResultWidth = 22;

std::string BytesText(const std::vector<std::uint8_t> &data) {
  std::string text = std::to_string(data.size()) + (data.size() == 1 ? " byte" : " bytes");
  for (const std::uint8_t byte : data) {
    char hex[4];
    std::snprintf(hex, sizeof hex, " %02x", static_cast<unsigned>(byte));
    text += hex;
  }
  return text;
}

std::string ResultText(const TransferResult &result) {
  switch (result.outcome) {
    case Outcome::kDone:
      return BytesText(result.data);
    case Outcome::kStalled:
      return "stalled";
    case Outcome::kNoReply:
      return "no reply";
    case Outcome::kUnplugged:
    case Outcome::kGone:
      return "unplugged";
  }
  return {};
}

std::string RequestName(const ControlRequest &request) {
  const std::optional<RequestId> id = RequestFor(request);
  return id ? std::string(EntryOf(*id).text) : "(unknown)";
}

}  // namespace

std::string WireLogLine(int unit, const ControlRequest &request, const TransferResult &result) {
  char setup[96];
  std::snprintf(setup, sizeof setup,
                "unit %d  %-3s  %02x %02x  wValue %04x  wIndex %04x  wLength %u  -> ", unit,
                request.IsRead() ? "IN" : "OUT", static_cast<unsigned>(request.requestType),
                static_cast<unsigned>(request.request), static_cast<unsigned>(request.value),
                static_cast<unsigned>(request.index), static_cast<unsigned>(request.length));
  std::string answer = ResultText(result);
  if (answer.size() < kResultWidth) answer.resize(kResultWidth, ' ');
  return setup + answer + "  " + RequestName(request);
}

void WireLog::Add(int unit, const ControlRequest &request, const TransferResult &result) {
  lines_.push_back(WireLogLine(unit, request, result));
  if (sink_) sink_(lines_.back());
}

}  // namespace trxsim
