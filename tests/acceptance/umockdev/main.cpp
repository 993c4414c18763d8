// The rig over umockdev's simulated sysfs and usbfs.
#include "../linux/SimulatorRig.h"
#include "../simulated/CaseRunner.h"

std::unique_ptr<trxtest::Rig> trxtest::MakeRig() {
  return std::make_unique<SimulatorRig>(PrivateFolder());
}

int main(int argc, char **argv) { return trxtest::RunCases(argc, argv, {}); }
