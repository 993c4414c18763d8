#include "MixerChecks.h"

#include <cerrno>

#include <unistd.h>

#include "UdevRule.h"

namespace client {
namespace {

Check CheckUsb(const UsbBus &bus) {
  Check check{.part = CheckedPart::kUsb, .count = bus.devices};
  if (!bus.visible) {
    check.finding = Finding::kUsbHidden;
    check.path = "/sys/bus/usb/devices";
    check.reason = bus.reason;
  } else if (bus.devices == 0) {
    check.finding = Finding::kNoUsbDevice;
  }
  return check;
}

Check CheckMaker(const UsbBus &bus, bool isMixerThere) {
  const bool onlyOthers = !bus.othersOfMaker.empty() && !isMixerThere;
  return {.part = CheckedPart::kMaker,
          .finding = onlyOthers ? Finding::kOnlyOtherProducts : Finding::kGood,
          .names = bus.othersOfMaker};
}

Check CheckSeen(const std::vector<Mixer> &mixers) {
  return {.part = CheckedPart::kMixer,
          .finding = mixers.empty() ? Finding::kNoMixer : Finding::kGood,
          .mixers = mixers,
          .count = mixers.size()};
}

Check CheckNode(const Mixer &mixer) {
  const bool isThere = access(mixer.node.c_str(), F_OK) == 0;
  return {.part = CheckedPart::kNode,
          .finding = isThere ? Finding::kGood : Finding::kNodeMissing,
          .mixers = {mixer},
          .path = mixer.node};
}

Check CheckAccess(const Mixer &mixer, int refusal) {
  Check check{.part = CheckedPart::kAccess, .mixers = {mixer}, .reason = refusal};
  if (refusal == EACCES || refusal == EPERM) {
    check.names = FoldersWithRule(UdevRuleFolders());
    check.path = RuleBesideProgram();
    check.finding = check.names.empty() ? Finding::kNoRule : Finding::kRuleWithoutEffect;
  } else if (refusal == EBUSY) {
    check.finding = Finding::kHeld;
  } else if (refusal != 0) {
    check.finding = Finding::kNotOpened;
  }
  return check;
}

}  // namespace

std::vector<Check> CheckMixers() {
  const UsbBus bus = SeenOnUsb();
  std::vector<Check> checks{CheckUsb(bus)};
  if (!checks.front().IsGood()) return checks;
  const std::vector<Mixer> mixers = ConnectedMixers();
  checks.push_back(CheckMaker(bus, !mixers.empty()));
  checks.push_back(CheckSeen(mixers));
  bool canBeAsked = false;
  for (const Mixer &mixer : mixers) {
    checks.push_back(CheckNode(mixer));
    const int refusal = RefusalToOpen(mixer);
    if (checks.back().IsGood()) checks.push_back(CheckAccess(mixer, refusal));
    canBeAsked = canBeAsked || refusal == 0;
  }
  if (!canBeAsked) return checks;
  const std::vector<Check> answers = CheckAnswers();
  checks.insert(checks.end(), answers.begin(), answers.end());
  return checks;
}

}  // namespace client
