#include "RequestObserver.h"

#include <array>

namespace orv {
namespace {

struct Observer {
  ORVRequestObserver call = nullptr;
  void *context = nullptr;
  bool isRunning = false;
};

constinit thread_local Observer observer;

struct Meaning {
  PlatformStatus status;
  std::int32_t outcome;
};

}  // namespace

void SetRequestObserver(ORVRequestObserver call, void *context) noexcept {
  observer.call = call;
  observer.context = context;
}

bool IsObserved() noexcept { return observer.call != nullptr; }

void Report(const ObservedRequest &request, const UnitPlace &place, std::int32_t outcome) noexcept {
  if (observer.isRunning) return;
  const ORVRequestReport report = {.size = sizeof report,
                                   .bus = place.bus,
                                   .address = place.address,
                                   .location = place.location,
                                   .kind = request.kind,
                                   .outcome = outcome,
                                   .index = request.index,
                                   .value = request.value};
  static_assert(sizeof report == 28);
  observer.isRunning = true;
  observer.call(&report, observer.context);
  observer.isRunning = false;
}

std::int32_t OutcomeOf(PlatformStatus status) noexcept {
  constexpr std::array<Meaning, 7> kMeanings = {{
      {kIOReturnSuccess, ORV_OUTCOME_DONE},
      {kIOUSBPipeStalled, ORV_OUTCOME_REFUSED},
      {kIOUSBTransactionTimeout, ORV_OUTCOME_NO_ANSWER},
      {kIOReturnNotResponding, ORV_OUTCOME_NO_ANSWER},
      {kIOReturnNoDevice, ORV_OUTCOME_GONE},
      {kIOReturnNotPermitted, ORV_OUTCOME_NO_PERMISSION},
      {kIOReturnExclusiveAccess, ORV_OUTCOME_BUSY},
  }};
  for (const Meaning &meaning : kMeanings) {
    if (meaning.status == status) return meaning.outcome;
  }
  return ORV_OUTCOME_FAILED;
}

}  // namespace orv
