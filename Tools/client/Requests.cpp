#include "Requests.h"

namespace client {
namespace {

thread_local RequestListener *currentListener = nullptr;

Outcome OutcomeOf(int32_t outcome) {
  switch (outcome) {
    case ORV_OUTCOME_DONE:
    // A mixer with fewer channels than the model has answers with less.
    case ORV_OUTCOME_SHORT_REPLY:
      return Outcome::kDone;
    case ORV_OUTCOME_REFUSED:
      return Outcome::kRefused;
    case ORV_OUTCOME_NO_ANSWER:
      return Outcome::kNoAnswer;
    case ORV_OUTCOME_GONE:
      return Outcome::kGone;
    case ORV_OUTCOME_NO_PERMISSION:
      return Outcome::kNoPermission;
    case ORV_OUTCOME_BUSY:
      return Outcome::kBusy;
    default:
      return Outcome::kFailed;
  }
}

}  // namespace

void SetRequestListener(RequestListener *listener) { currentListener = listener; }

RequestLog::RequestLog() { ORV_ObserveRequests(Observe, this); }

RequestLog::~RequestLog() { ORV_ObserveRequests(nullptr, nullptr); }

void RequestLog::Observe(const ORVRequestReport *report, void *log) {
  const Request request{report->bus, report->address, report->location,
                        report->kind != ORV_REQUEST_OPEN, OutcomeOf(report->outcome)};
  static_cast<RequestLog *>(log)->requests_.push_back(request);
  if (currentListener != nullptr) currentListener->Ended(request);
}

}  // namespace client
