#include "MixerStatus.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace client {
namespace {

struct Entry {
  ProductId model;
  StatusKinds kinds;
};

constexpr std::array<Entry, 6> kEntries{{
    {ORV_PRODUCT_TRX_ARDEN, {4, false, false, true}},
    {ORV_PRODUCT_TRX_VOLT, {2, false, false, false}},
    {ORV_PRODUCT_TRX_HALDEN, {4, true, false, true}},
    {ORV_PRODUCT_TRX_LUMEN, {4, true, false, true}},
    {ORV_PRODUCT_TRX_MORROW, {4, true, false, true}},
    {ORV_PRODUCT_TRX_SELVA, {4, true, true, true}},
}};

/// Asks one question of the mixers and notes in the status who answered.
///
/// @return whether the answer counts: the mixer that gave the last one did answer.
template <typename Question>
bool Ask(MixerStatus &status, const std::vector<Mixer> &known, const Question &question) {
  const RequestLog log;
  const bool isGood = question() == ORV_SUCCESS;
  status.answers.Add(DeliveryOf(log, known));
  const auto &requests = log.Requests();
  // One model always answers without a request.
  if (requests.empty()) return isGood;
  const auto last = std::find_if(requests.rbegin(), requests.rend(),
                                 [](const Request &request) { return request.isOpened; });
  return isGood && last != requests.rend() && last->outcome == Outcome::kDone;
}

}  // namespace

const StatusKinds &StatusKindsOf(const Model &model) {
  std::size_t place = 0;
  while (kEntries.at(place).model != model.id) ++place;
  return kEntries.at(place).kinds;
}

MixerStatus AskStatus(const Model &model) {
  constexpr uint32_t kHighestPosition = 7;
  const StatusKinds &kinds = StatusKindsOf(model);
  const std::vector<Mixer> known = ConnectedMixers();
  MixerStatus status;
  uint32_t number = 0;
  const auto ask = [&](const auto &function) {
    return Ask(status, known, [&] { return function(model.id, &number); });
  };
  if (kinds.certifyLevel && ask(ORV_GetMixerCertifyLevel)) status.certifyLevel = number;
  if (kinds.firmware && ask(ORV_GetFirmwareVersionIndex)) status.firmware = number;
  for (uint32_t channel = 0; channel < kinds.selectors; ++channel) {
    number = 0;
    const bool isAnswered = Ask(status, known, [&] {
      // A number that is no position makes it another status, but it is an answer.
      ORV_GetMixerInputSelectorStatus(model.id, channel, &number);
      return ORV_SUCCESS;
    });
    status.selectors.emplace_back();
    if (isAnswered) status.selectors.back() = SelectorPosition{number, number <= kHighestPosition};
  }
  if (kinds.serato && ask(ORV_GetMixerSeratoActiveStatus)) status.serato = number != 0;
  return status;
}

}  // namespace client
