// The programs trx-mixer-sim and trx-mixer-ctl as their users meet them.

#include <csignal>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "MakerIds.h"
#include "SimulatorRun.h"

namespace {

using Words = std::vector<std::string>;
using trxtest::TemporaryFolder;

Words Simulate(Words arguments) {
  arguments.insert(arguments.begin(), TRX_MIXER_SIM);
  return arguments;
}

Words Control(Words arguments) {
  arguments.insert(arguments.begin(), TRX_MIXER_CTL);
  return arguments;
}

TEST(SimulatorProgram, TheSimulatorExitsAsTheCommandDoes) {
  const TemporaryFolder folder;
  EXPECT_EQ(Program(Simulate({"--", "true"}), folder).Finish(), 0);
  EXPECT_EQ(Program(Simulate({"--", "sh", "-c", "exit 7"}), folder).Finish(), 7);
  EXPECT_EQ(Program(Simulate({"--", "sh", "-c", "kill -9 $$"}), folder).Finish(), 128 + SIGKILL);
}

TEST(SimulatorProgram, TheSimulatorSaysWhenTheCommandCannotRun) {
  const TemporaryFolder folder;
  Program missing(Simulate({"--", "/no/such/program"}), folder);
  EXPECT_EQ(missing.Finish(), 127);
  EXPECT_EQ(missing.Errors(),
            "trx-mixer-sim: cannot run /no/such/program: No such file or directory\n");
  EXPECT_EQ(Program(Simulate({"--", folder.Path()}), folder).Finish(), 126);
}

TEST(SimulatorProgram, TheSimulatorPassesOnTheArgumentsAsTheyAre) {
  const TemporaryFolder folder;
  Program program(Simulate({"--units", "0", "--", "printf", "%s|", "--units", "a b", "", "--"}),
                  folder);
  EXPECT_EQ(program.Rest(), "--units|a b||--|");
  EXPECT_EQ(program.Finish(), 0);
}

TEST(SimulatorProgram, WithoutACommandExplainsItself) {
  const TemporaryFolder folder;
  for (const Words &arguments : {Words{}, Words{"--units", "2"}, Words{"--"}}) {
    Program program(Simulate(arguments), folder);
    EXPECT_EQ(program.Finish(), 2);
    EXPECT_NE(program.Errors().find("trx-mixer-sim --units 2 -- bash"), std::string::npos);
  }
}

TEST(SimulatorProgram, TheSimulatorRefusesBadOptions) {
  const TemporaryFolder folder;
  EXPECT_EQ(Program(Simulate({"--units", "-1", "--", "true"}), folder).Finish(), 2);
  EXPECT_EQ(Program(Simulate({"--units", "101", "--", "true"}), folder).Finish(), 2);
  Program program(Simulate({"--units", "TRX-BOLT", "--", "true"}), folder);
  EXPECT_EQ(program.Finish(), 2);
  EXPECT_NE(program.Errors().find("--units: \"TRX-BOLT\" is neither a mixer model (TRX-SELVA, "),
            std::string::npos)
      << program.Errors();
}

TEST(SimulatorProgram, HelpTeachesWithExamples) {
  const TemporaryFolder folder;
  Program program(Simulate({"--help"}), folder);
  EXPECT_NE(program.Rest().find("trx-mixer-sim --units 2 -- bash"), std::string::npos);
  EXPECT_EQ(program.Finish(), 0);
}

TEST(SimulatorProgram, WithoutRootSaysWhatTheRunningKernelNeeds) {
  // Another user must get at it, wherever the build is. Not every system runs what lies in memory.
  const TemporaryFolder folder("/tmp");
  std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
  std::filesystem::copy_file(TRX_MIXER_SIM, folder / "trx-mixer-sim");
  Words words{folder / "trx-mixer-sim", "--usbip", "--control", folder / "control.sock"};
  if (geteuid() == 0) {
    const Words asNobody{"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
    words.insert(words.begin(), asNobody.begin(), asNobody.end());
  }
  Program program(words, folder);
  EXPECT_EQ(program.Finish(), 125);
  EXPECT_EQ(program.Errors(),
            "trx-mixer-sim: plugging mixers into the running kernel needs root: try again with "
            "sudo. Without --usbip no privileges are needed\n");
  EXPECT_EQ(folder.Entries(), 1u);
}

TEST(SimulatorProgram, TheSimulatorRefusesToRunACommandThatWouldSeeNoMixers) {
  const TemporaryFolder folder;
  const std::string library = folder / "libumockdev-preload.so.0";
  std::ofstream(library) << "not a library";
  Program program({"env", "LD_LIBRARY_PATH=" + folder.Path(), TRX_MIXER_SIM, "--", "echo", "run"},
                  folder);
  EXPECT_EQ(program.Rest(), "");
  EXPECT_EQ(program.Finish(), 125);
  EXPECT_EQ(program.Errors(), "trx-mixer-sim: no command could see the mixers: " + library +
                                  ": file too short; it comes with the package libumockdev0\n");
  EXPECT_EQ(folder.Entries(), 1u);
}

TEST(SimulatorProgram, TheSimulatorLeavesNothingBehind) {
  const TemporaryFolder folder;
  EXPECT_EQ(Program(Simulate({"--units", "2", "--", "true"}), folder).Finish(), 0);
  EXPECT_EQ(folder.Entries(), 0u);
}

class SimulatorSignals : public testing::TestWithParam<int> {};

TEST_P(SimulatorSignals, SignalsEndTheCommandAndLeaveNothingBehind) {
  SimulatorRun run(1);
  EXPECT_GT(run.folder.Entries(), 1u);
  run.Client().Signal(GetParam());
  run.Client().Rest();
  EXPECT_EQ(run.Client().Finish(), 128 + GetParam());
  EXPECT_EQ(run.folder.Entries(), 0u);
}

INSTANTIATE_TEST_SUITE_P(AllThatAskForTheEnd, SimulatorSignals,
                         testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(SimulatorProgram, TheSimulatorEndsCleanlyInMidRequest) {
  SimulatorRun run(1);
  run.Control("fault 1 no-reply");
  const std::string handle = run.Open("/dev/bus/usb/001/002");
  run.Client().Tell("control " + handle + " c0 0 0 8001 2 300");
  run.WaitForRequest();
  run.Client().Signal(SIGTERM);
  run.Client().Rest();
  EXPECT_EQ(run.Client().Finish(), 128 + SIGTERM);
  EXPECT_EQ(run.Client().Errors(), "");
  EXPECT_EQ(run.folder.Entries(), 0u);
}

TEST(SimulatorProgram, TheSimulatorWritesTheWireLogToAFile) {
  const TemporaryFolder folder;
  const std::string path = folder / "wire.txt";
  Program program(Simulate({"--wire-log", path, "--", USB_CLIENT}), folder);
  const std::string handle = program.Ask("open /dev/bus/usb/001/002");
  program.Ask("control " + handle + " 40 3 0300 8003 0 1000");
  std::string line;
  std::getline(std::ifstream(path) >> std::ws, line);
  EXPECT_EQ(line,
            "unit 1  OUT  40 03  wValue 0300  wIndex 8003  wLength 0  "
            "-> 0 bytes                 USB output level");
  EXPECT_EQ(program.Finish(), 0);
}

TEST(SimulatorProgram, TheSimulatorSaysWhenTheWireLogCannotBeWritten) {
  const TemporaryFolder folder;
  Program program(Simulate({"--wire-log", folder / "none/wire.txt", "--", "true"}), folder);
  EXPECT_EQ(program.Finish(), 125);
  EXPECT_NE(program.Errors().find("cannot write the wire log"), std::string::npos);
  EXPECT_EQ(folder.Entries(), 0u);
}

TEST(SimulatorProgram, SecondOneTakesAPrivateSocketAndSaysSo) {
  const TemporaryFolder folder;
  Program first(Simulate({"--", USB_CLIENT}), folder);
  EXPECT_EQ(first.Ask("variable TRX_MIXER_SIM_CONTROL"), folder / "trx-mixer-sim.sock");
  Program second(Simulate({"--units", "2", "--", USB_CLIENT}), folder);
  const std::string own = second.Ask("variable TRX_MIXER_SIM_CONTROL");
  EXPECT_EQ(second.Errors(),
            "trx-mixer-sim: another simulator has the usual control socket; this one listens at " +
                own + '\n');
  EXPECT_EQ(trxsim::ControlClient(own).Ask("units").size(), 2u);
  EXPECT_EQ(trxsim::ControlClient(folder / "trx-mixer-sim.sock").Ask("units").size(), 1u);
  EXPECT_EQ(second.Finish(), 0);
  EXPECT_FALSE(std::filesystem::exists(own));
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(own).parent_path()));
  EXPECT_EQ(first.Finish(), 0);
  EXPECT_EQ(folder.Entries(), 0u);
}

TEST(SimulatorProgram, TheSimulatorRefusesASocketThatIsInUse) {
  SimulatorRun run(1);
  Program second(Simulate({"--control", run.socket, "--", "true"}), run.folder);
  EXPECT_EQ(second.Finish(), 125);
  EXPECT_EQ(second.Errors(), "trx-mixer-sim: another simulator listens at " + run.socket + '\n');
  EXPECT_EQ(run.Control("units").size(), 1u);
}

TEST(SimulatorProgram, TheSimulatorWorksBelowALongTemporaryFolder) {
  const TemporaryFolder folder;
  const std::string longFolder = folder / std::string(90, 'x');
  std::filesystem::create_directory(longFolder);
  Program program({"env", "TMPDIR=" + longFolder, TRX_MIXER_SIM, "--", USB_CLIENT}, folder);
  EXPECT_EQ(program.Ask("list"), "1-1=001/002 usb1=001/001");
  EXPECT_EQ(program.Finish(), 0);
}

TEST(SimulatorProgram, TheSimulatorKeepsTheListsThatTheEnvironmentHas) {
  const TemporaryFolder folder;
  Program program({"env", "ASAN_OPTIONS=detect_leaks=0", TRX_MIXER_SIM, "--", USB_CLIENT}, folder);
  EXPECT_EQ(program.Ask("variable ASAN_OPTIONS"), "detect_leaks=0:verify_asan_link_order=0");
  EXPECT_EQ(program.Finish(), 0);
}

TEST(ControlProgram, TheControlProgramPrintsTheReply) {
  SimulatorRun run(1);
  Program program(Control({"--control", run.socket, "units"}), run.folder);
  EXPECT_EQ(program.Rest(), "1  TRX-SELVA " + VendorId() + ":001f  plugged 001/002  faults none\n");
  EXPECT_EQ(program.Finish(), 0);
}

TEST(ControlProgram, TheControlProgramHelpsWithoutASimulator) {
  const TemporaryFolder folder;
  Program program(Control({"help"}), folder);
  const std::string help = program.Rest();
  EXPECT_EQ(program.Finish(), 0);
  EXPECT_TRUE(help.starts_with("Commands:\n  units ")) << help;
  EXPECT_EQ(program.Errors(), "");
}

TEST(ControlProgram, TheControlProgramFindsTheUsualSocketByItself) {
  const TemporaryFolder folder;
  Program simulator(Simulate({"--", USB_CLIENT}), folder);
  simulator.Ask("list");
  Program program(Control({"set", "1", "serato", "1"}), folder);
  EXPECT_EQ(program.Finish(), 0);
  const std::string handle = simulator.Ask("open /dev/bus/usb/001/002");
  EXPECT_EQ(simulator.Ask("control " + handle + " c0 0 0 8004 2 1000"), "2 01 00");
}

TEST(ControlProgram, TheControlProgramExitsWithOneWhenRefused) {
  SimulatorRun run(1);
  Program program(Control({"--control", run.socket, "unplug", "7"}), run.folder);
  EXPECT_EQ(program.Finish(), 1);
  EXPECT_EQ(program.Errors(), "trx-mixer-ctl: there is no unit 7; `units` lists them\n");
}

TEST(ControlProgram, TheControlProgramExitsWithTwoWithoutACommand) {
  const TemporaryFolder folder;
  for (const Words &arguments : {Words{}, Words{"run"}, Words{"run", "--"}, Words{"--control"}}) {
    EXPECT_EQ(Program(Control(arguments), folder).Finish(), 2);
  }
}

TEST(ControlProgram, TheControlProgramExitsWithThreeWhenNobodyIsThere) {
  const TemporaryFolder folder;
  Program program(Control({"units"}), folder);
  EXPECT_EQ(program.Finish(), 3);
  EXPECT_NE(program.Errors().find("no simulator answers at " + (folder / "trx-mixer-sim.sock")),
            std::string::npos);
  EXPECT_NE(program.Errors().find("Hint: "), std::string::npos);
}

TEST(ControlProgram, TheControlProgramRunsAProgramOnTheSameDesk) {
  SimulatorRun run(1);
  Program second(run.FurtherClient(), run.folder);
  EXPECT_EQ(second.Ask("list"), "1-1=001/002 usb1=001/001");
  EXPECT_EQ(second.Ask("variable TRX_MIXER_SIM_CONTROL"), run.socket);
  second.Tell("exit 9");
  EXPECT_EQ(second.Finish(), 9);
}

TEST(ControlProgram, TheControlProgramSaysWhenTheProgramCannotRun) {
  SimulatorRun run(1);
  EXPECT_EQ(
      Program(Control({"--control", run.socket, "run", "--", "/no/such"}), run.folder).Finish(),
      127);
}

}  // namespace
