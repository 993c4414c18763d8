#include "KernelRig.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "../simulated/CaseRunner.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;

// A bus gives out device numbers up to 127 and then starts again at 2. No case plugs in so many
// units that it gets from this number to 127.
constexpr int kNumberThatIsHigh = 60;

// The device number that was given last, in any case.
constexpr const char *kLastNumberFile = "/run/trx-last-device-number";

// The driver of the virtual host controllers, and the first of them, which has the first bus.
constexpr const char *kDriverFolder = "/sys/bus/platform/drivers/vhci_hcd/";
constexpr const char *kFirstController = "vhci_hcd.0";

void Write(const std::string &file, const std::string &text) {
  std::ofstream out(file);
  if (!(out << text).flush()) throw std::runtime_error("cannot write " + file);
}

// Cases rely on a unit that is plugged in later coming after the others. A controller that is
// removed and added again starts to count from the beginning.
void BeginDeviceNumbersAfreshIfHigh() {
  int last = 0;
  std::ifstream(kLastNumberFile) >> last;
  if (last < kNumberThatIsHigh) return;
  Write(std::string(kDriverFolder) + "unbind", kFirstController);
  Write(std::string(kDriverFolder) + "bind", kFirstController);
  Write(kLastNumberFile, "1");
}

}  // namespace

std::unique_ptr<Rig> MakeRig() { return std::make_unique<KernelRig>(PrivateFolder()); }

KernelRig::KernelRig(const std::string &folder) : SimulatorRig(folder) {
  BeginDeviceNumbersAfreshIfHigh();
}

int KernelRig::PlugMixer() {
  const int unit = SimulatorRig::PlugMixer();
  NoteArrival(unit);
  return unit;
}

// Fills the first bus with strangers, moves its mixers to the next bus, and then frees a place on
// the first one.
int KernelRig::PlugMixerInFront() {
  const std::vector<int> present = PluggedInTheOrderOfTheBus();
  if (present.empty()) return PlugMixer();
  const int firstBus = BusNumberOf(present.at(0));
  int stranger = PlugStranger(Stranger::kUnrelated);
  while (BusNumberOf(stranger) == firstBus) stranger = PlugStranger(Stranger::kUnrelated);
  Unplug(stranger);
  for (const int unit : present) {
    Unplug(unit);
    stranger = PlugStranger(Stranger::kUnrelated);
    Replug(unit);
  }
  Unplug(stranger);
  return PlugMixer();
}

int KernelRig::PlugStranger(Stranger kind) {
  const int unit = SimulatorRig::PlugStranger(kind);
  NoteArrival(unit);
  return unit;
}

void KernelRig::Unplug(int unit) {
  SimulatorRig::Unplug(unit);
  plugged_.erase(unit);
}

void KernelRig::Replug(int unit) {
  SimulatorRig::Replug(unit);
  NoteArrival(unit);
}

void KernelRig::ClearFaults(int unit) {
  SimulatorRig::ClearFaults(unit);
  if (plugged_.contains(unit)) LetEverybodyIn(unit);
}

void KernelRig::NoteArrival(int unit) {
  plugged_.insert(unit);
  Write(kLastNumberFile, std::to_string(DeviceNumberOf(unit)));
  LetEverybodyIn(unit);
}

// Does what an installation's udev rule does for the user at the machine. A node without any
// permission has a fault.
void KernelRig::LetEverybodyIn(int unit) {
  const fs::path node = "/dev/bus/usb/" + AddressOf(unit);
  if (fs::status(node).permissions() == fs::perms::none) return;
  fs::permissions(node, static_cast<fs::perms>(0666));
}

std::vector<int> KernelRig::PluggedInTheOrderOfTheBus() {
  std::vector<std::pair<std::string, int>> places;
  for (const int unit : plugged_) places.emplace_back(AddressOf(unit), unit);
  std::sort(places.begin(), places.end());
  std::vector<int> units;
  for (const auto &[address, unit] : places) units.push_back(unit);
  return units;
}

}  // namespace trxtest
