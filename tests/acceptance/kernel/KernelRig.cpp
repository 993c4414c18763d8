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

// A bus hands out device numbers up to 127 and begins again with 2. No case plugs so often that it
// gets from here to there.
constexpr int kNumberThatIsHigh = 60;

// The device number that was given last, by whichever case.
constexpr const char *kLastNumberFile = "/run/trx-last-device-number";

// The driver of the virtual host controllers, and the first of them, which has the first bus.
constexpr const char *kDriverFolder = "/sys/bus/platform/drivers/vhci_hcd/";
constexpr const char *kFirstController = "vhci_hcd.0";

void Write(const std::string &file, const std::string &text) {
  std::ofstream out(file);
  if (!(out << text).flush()) throw std::runtime_error("cannot write " + file);
}

// A case counts on it that what is plugged in later stands behind what is there. A controller that
// is taken away and comes back counts from the beginning.
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

// The first bus is filled up with strangers and its mixers are moved to the next one, whereupon a
// place on the first bus is made free again.
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

// As an installation's udev rule does for whoever sits at the machine. Without any permission the
// node of a unit has a fault.
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
