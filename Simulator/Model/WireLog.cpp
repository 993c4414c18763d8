#include "WireLog.h"

#include <cstdio>

#include "RequestTable.h"

namespace trxsim {

namespace {

// Wide enough for the five bytes of the longest usual reply, so that the names line up.
constexpr std::size_t kResultWidth = 22;

std::string bytesText(const std::vector<std::uint8_t> &data) {
  std::string text = std::to_string(data.size()) + (data.size() == 1 ? " byte" : " bytes");
  for (const std::uint8_t byte : data) {
    char hex[4];
    std::snprintf(hex, sizeof hex, " %02x", static_cast<unsigned>(byte));
    text += hex;
  }
  return text;
}

std::string resultText(const TransferResult &result) {
  switch (result.outcome) {
    case Outcome::Done:
      return bytesText(result.data);
    case Outcome::Stalled:
      return "stalled";
    case Outcome::NoReply:
      return "no reply";
    case Outcome::Unplugged:
    case Outcome::Gone:
      return "unplugged";
  }
  return {};
}

std::string requestName(const ControlRequest &request) {
  const std::optional<RequestId> id = requestFor(request);
  return id ? std::string(requestEntry(*id).text) : "(unknown)";
}

}  // namespace

std::string wireLogLine(int unit, const ControlRequest &request, const TransferResult &result) {
  char setup[96];
  std::snprintf(setup, sizeof setup,
                "unit %d  %-3s  %02x %02x  wValue %04x  wIndex %04x  wLength %u  -> ", unit,
                request.isRead() ? "IN" : "OUT", static_cast<unsigned>(request.requestType),
                static_cast<unsigned>(request.request), static_cast<unsigned>(request.value),
                static_cast<unsigned>(request.index), static_cast<unsigned>(request.length));
  std::string answer = resultText(result);
  if (answer.size() < kResultWidth) answer.resize(kResultWidth, ' ');
  return setup + answer + "  " + requestName(request);
}

void WireLog::add(int unit, const ControlRequest &request, const TransferResult &result) {
  lines_.push_back(wireLogLine(unit, request, result));
  if (sink_) sink_(lines_.back());
}

}  // namespace trxsim
