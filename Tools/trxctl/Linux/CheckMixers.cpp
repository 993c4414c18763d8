#include "CheckMixers.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <unistd.h>

#include "CheckAnswer.h"
#include "MixerList.h"
#include "Text.h"
#include "UdevRule.h"
#include "UsbBus.h"

namespace trxctl {
namespace {

constexpr char kDevices[] = "/sys/bus/usb/devices";
constexpr char kReloadRules[] = "sudo udevadm control --reload && sudo udevadm trigger";

Check CheckUsb(std::size_t devices) {
  const std::string name = "USB";
  if (access(kDevices, R_OK | X_OK) != 0) {
    return {name, ExitCode::kFailed,
            std::string(kDevices) + " cannot be read: " + std::strerror(errno),
            "run trxctl on the machine itself; a container needs its /sys and /dev/bus/usb"};
  }
  if (devices == 0) {
    return {
        name, ExitCode::kFailed, "the system shows no USB device at all, not even a hub",
        "see that USB is switched on in the firmware; a virtual machine needs a USB controller"};
  }
  return Well(name, Counted(devices, "USB device") + " seen, hubs included");
}

Check CheckMaker(const std::vector<std::string> &others, bool mixer_there) {
  const std::string name = "maker";
  if (others.empty()) return Well(name, "no other product of the mixers' maker is connected");
  const std::string finding =
      "another product of the mixers' maker is connected: " + Joined(others);
  if (mixer_there) return Well(name, finding);
  return {name, ExitCode::kNoMixer, finding,
          "this product has no settings here; connect a mixer of the TRX-SELVA family"};
}

Check CheckSeen(const std::vector<Mixer> &mixers) {
  if (mixers.empty()) return NoMixer();
  std::vector<std::string> described;
  described.reserve(mixers.size());
  for (const Mixer &mixer : mixers) described.push_back(Describe(mixer));
  return Well("mixer", Joined(described));
}

std::string NodeOf(const Mixer &mixer) {
  std::array<char, 64> path{};
  std::snprintf(path.data(), path.size(), "/dev/bus/usb/%03u/%03u", mixer.bus, mixer.address);
  return path.data();
}

bool IsNodeMissing(const Mixer &mixer) { return access(NodeOf(mixer).c_str(), F_OK) != 0; }

Check CheckNode(const Mixer &mixer) {
  if (!IsNodeMissing(mixer)) return Well("node", NodeOf(mixer));
  return {"node", ExitCode::kNoAccess, NodeOf(mixer) + " of " + Describe(mixer) + " is not there",
          "plug the mixer out and in again; a container needs /dev/bus/usb of the machine"};
}

Check NoPermission(const std::string &finding) {
  const std::string rule(kUdevRule);
  const std::vector<std::string> installed = FoldersWithRule(UdevRuleFolders());
  if (installed.empty()) {
    return {"access", ExitCode::kNoAccess,
            finding + "; the udev rule " + rule + " is not installed",
            "copy " + rule + " to /etc/udev/rules.d, then run: " + kReloadRules};
  }
  return {"access", ExitCode::kNoAccess,
          finding + ", although the udev rule " + rule + " is installed in " + Joined(installed),
          std::string("run: ") + kReloadRules +
              "; the rule serves whoever sits at the machine, not a session from elsewhere"};
}

Check CheckAccess(const Mixer &mixer) {
  if (mixer.accessible()) return Well("access", Describe(mixer) + " may be opened");
  const std::string finding = Describe(mixer) + " may not be opened by this user";
  if (mixer.refusal == EACCES || mixer.refusal == EPERM) return NoPermission(finding);
  if (mixer.refusal == EBUSY) {
    return {"access", ExitCode::kNoAccess, Describe(mixer) + " is held by another program",
            "end the program that holds it; lsof " + NodeOf(mixer) + " names it"};
  }
  return {"access", ExitCode::kNoAccess, finding + ": " + std::strerror(mixer.refusal),
          "plug the mixer out and in again"};
}

}  // namespace

std::vector<Check> CheckMixers() {
  const UsbBus bus = SeenOnUsb();
  std::vector<Check> checks{CheckUsb(bus.devices)};
  if (!checks.front().ok()) return checks;
  const std::vector<Mixer> mixers = ConnectedMixers();
  checks.push_back(CheckMaker(bus.others_of_maker, !mixers.empty()));
  checks.push_back(CheckSeen(mixers));
  for (const Mixer &mixer : mixers) {
    checks.push_back(CheckNode(mixer));
    if (checks.back().ok()) checks.push_back(CheckAccess(mixer));
  }
  if (CountAccessible(mixers) > 0) checks.push_back(CheckAnswer());
  return checks;
}

}  // namespace trxctl
