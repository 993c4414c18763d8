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

Words simulate(Words arguments) {
  arguments.insert(arguments.begin(), TRX_MIXER_SIM);
  return arguments;
}

Words control(Words arguments) {
  arguments.insert(arguments.begin(), TRX_MIXER_CTL);
  return arguments;
}

TEST(SimulatorProgram, ExitsAsTheCommandDoes) {
  const TemporaryFolder folder;
  EXPECT_EQ(Program(simulate({"--", "true"}), folder).finish(), 0);
  EXPECT_EQ(Program(simulate({"--", "sh", "-c", "exit 7"}), folder).finish(), 7);
  EXPECT_EQ(Program(simulate({"--", "sh", "-c", "kill -9 $$"}), folder).finish(), 128 + SIGKILL);
}

TEST(SimulatorProgram, SaysWhenTheCommandCannotRun) {
  const TemporaryFolder folder;
  Program missing(simulate({"--", "/no/such/program"}), folder);
  EXPECT_EQ(missing.finish(), 127);
  EXPECT_EQ(missing.errors(),
            "trx-mixer-sim: cannot run /no/such/program: No such file or directory\n");
  EXPECT_EQ(Program(simulate({"--", folder.Path()}), folder).finish(), 126);
}

TEST(SimulatorProgram, PassesOnTheArgumentsAsTheyAre) {
  const TemporaryFolder folder;
  Program program(simulate({"--units", "0", "--", "printf", "%s|", "--units", "a b", "", "--"}),
                  folder);
  EXPECT_EQ(program.rest(), "--units|a b||--|");
  EXPECT_EQ(program.finish(), 0);
}

TEST(SimulatorProgram, WithoutACommandExplainsItself) {
  const TemporaryFolder folder;
  for (const Words &arguments : {Words{}, Words{"--units", "2"}, Words{"--"}}) {
    Program program(simulate(arguments), folder);
    EXPECT_EQ(program.finish(), 2);
    EXPECT_NE(program.errors().find("trx-mixer-sim --units 2 -- bash"), std::string::npos);
  }
}

TEST(SimulatorProgram, RefusesBadOptions) {
  const TemporaryFolder folder;
  EXPECT_EQ(Program(simulate({"--units", "-1", "--", "true"}), folder).finish(), 2);
  EXPECT_EQ(Program(simulate({"--units", "101", "--", "true"}), folder).finish(), 2);
  EXPECT_EQ(Program(simulate({"--units", "x", "--", "true"}), folder).finish(), 2);
}

TEST(SimulatorProgram, HelpTeachesWithExamples) {
  const TemporaryFolder folder;
  Program program(simulate({"--help"}), folder);
  EXPECT_NE(program.rest().find("trx-mixer-sim --units 2 -- bash"), std::string::npos);
  EXPECT_EQ(program.finish(), 0);
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
  EXPECT_EQ(program.finish(), 125);
  EXPECT_EQ(program.errors(),
            "trx-mixer-sim: plugging mixers into the running kernel needs root: try again with "
            "sudo. Without --usbip no privileges are needed\n");
  EXPECT_EQ(folder.Entries(), 1u);
}

TEST(SimulatorProgram, RefusesToRunACommandThatWouldSeeNoMixers) {
  const TemporaryFolder folder;
  const std::string library = folder / "libumockdev-preload.so.0";
  std::ofstream(library) << "not a library";
  Program program({"env", "LD_LIBRARY_PATH=" + folder.Path(), TRX_MIXER_SIM, "--", "echo", "run"},
                  folder);
  EXPECT_EQ(program.rest(), "");
  EXPECT_EQ(program.finish(), 125);
  EXPECT_EQ(program.errors(), "trx-mixer-sim: no command could see the mixers: " + library +
                                  ": file too short; it comes with the package libumockdev0\n");
  EXPECT_EQ(folder.Entries(), 1u);
}

TEST(SimulatorProgram, LeavesNothingBehind) {
  const TemporaryFolder folder;
  EXPECT_EQ(Program(simulate({"--units", "2", "--", "true"}), folder).finish(), 0);
  EXPECT_EQ(folder.Entries(), 0u);
}

class SimulatorSignals : public testing::TestWithParam<int> {};

TEST_P(SimulatorSignals, EndTheCommandAndLeaveNothingBehind) {
  SimulatorRun run(1);
  EXPECT_GT(run.folder.Entries(), 1u);
  run.client().signal(GetParam());
  run.client().rest();
  EXPECT_EQ(run.client().finish(), 128 + GetParam());
  EXPECT_EQ(run.folder.Entries(), 0u);
}

INSTANTIATE_TEST_SUITE_P(AllThatAskForTheEnd, SimulatorSignals,
                         testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(SimulatorProgram, EndsInMidRequestWithoutFuss) {
  SimulatorRun run(1);
  run.control("fault 1 no-reply");
  const std::string handle = run.open("/dev/bus/usb/001/002");
  run.client().tell("control " + handle + " c0 0 0 8001 2 300");
  run.waitForRequest();
  run.client().signal(SIGTERM);
  run.client().rest();
  EXPECT_EQ(run.client().finish(), 128 + SIGTERM);
  EXPECT_EQ(run.client().errors(), "");
  EXPECT_EQ(run.folder.Entries(), 0u);
}

TEST(SimulatorProgram, WritesTheWireLogToAFile) {
  const TemporaryFolder folder;
  const std::string path = folder / "wire.txt";
  Program program(simulate({"--wire-log", path, "--", USB_CLIENT}), folder);
  const std::string handle = program.ask("open /dev/bus/usb/001/002");
  program.ask("control " + handle + " 40 3 0300 8003 0 1000");
  std::string line;
  std::getline(std::ifstream(path) >> std::ws, line);
  EXPECT_EQ(line,
            "unit 1  OUT  40 03  wValue 0300  wIndex 8003  wLength 0  "
            "-> 0 bytes                 USB output level");
  EXPECT_EQ(program.finish(), 0);
}

TEST(SimulatorProgram, SaysWhenTheWireLogCannotBeWritten) {
  const TemporaryFolder folder;
  Program program(simulate({"--wire-log", folder / "none/wire.txt", "--", "true"}), folder);
  EXPECT_EQ(program.finish(), 125);
  EXPECT_NE(program.errors().find("cannot write the wire log"), std::string::npos);
  EXPECT_EQ(folder.Entries(), 0u);
}

TEST(SimulatorProgram, SecondOneTakesAPrivateSocketAndSaysSo) {
  const TemporaryFolder folder;
  Program first(simulate({"--", USB_CLIENT}), folder);
  EXPECT_EQ(first.ask("variable TRX_MIXER_SIM_CONTROL"), folder / "trx-mixer-sim.sock");
  Program second(simulate({"--units", "2", "--", USB_CLIENT}), folder);
  const std::string own = second.ask("variable TRX_MIXER_SIM_CONTROL");
  EXPECT_EQ(second.errors(),
            "trx-mixer-sim: the usual control socket is taken; this one is " + own + '\n');
  EXPECT_EQ(trxsim::ControlClient(own).ask("units").size(), 2u);
  EXPECT_EQ(trxsim::ControlClient(folder / "trx-mixer-sim.sock").ask("units").size(), 1u);
  EXPECT_EQ(second.finish(), 0);
  EXPECT_FALSE(std::filesystem::exists(own));
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(own).parent_path()));
  EXPECT_EQ(first.finish(), 0);
  EXPECT_EQ(folder.Entries(), 0u);
}

TEST(SimulatorProgram, RefusesASocketThatIsInUse) {
  SimulatorRun run(1);
  Program second(simulate({"--control", run.socket, "--", "true"}), run.folder);
  EXPECT_EQ(second.finish(), 125);
  EXPECT_EQ(second.errors(), "trx-mixer-sim: another simulator listens at " + run.socket + '\n');
  EXPECT_EQ(run.control("units").size(), 1u);
}

TEST(SimulatorProgram, WorksBelowALongTemporaryFolder) {
  const TemporaryFolder folder;
  const std::string longFolder = folder / std::string(90, 'x');
  std::filesystem::create_directory(longFolder);
  Program program({"env", "TMPDIR=" + longFolder, TRX_MIXER_SIM, "--", USB_CLIENT}, folder);
  EXPECT_EQ(program.ask("list"), "1-1=001/002 usb1=001/001");
  EXPECT_EQ(program.finish(), 0);
}

TEST(SimulatorProgram, KeepsTheListsThatTheEnvironmentHas) {
  const TemporaryFolder folder;
  Program program({"env", "ASAN_OPTIONS=detect_leaks=0", TRX_MIXER_SIM, "--", USB_CLIENT}, folder);
  EXPECT_EQ(program.ask("variable ASAN_OPTIONS"), "detect_leaks=0:verify_asan_link_order=0");
  EXPECT_EQ(program.finish(), 0);
}

TEST(ControlProgram, PrintsTheReply) {
  SimulatorRun run(1);
  Program program(control({"--control", run.socket, "units"}), run.folder);
  EXPECT_EQ(program.rest(), "1  mixer " + vendorId() + ":001f  plugged 001/002  faults none\n");
  EXPECT_EQ(program.finish(), 0);
}

TEST(ControlProgram, FindsTheUsualSocketByItself) {
  const TemporaryFolder folder;
  Program simulator(simulate({"--", USB_CLIENT}), folder);
  simulator.ask("list");
  Program program(control({"set", "1", "serato", "1"}), folder);
  EXPECT_EQ(program.finish(), 0);
  const std::string handle = simulator.ask("open /dev/bus/usb/001/002");
  EXPECT_EQ(simulator.ask("control " + handle + " c0 0 0 8004 2 1000"), "2 01 00");
}

TEST(ControlProgram, ExitsWithOneWhenRefused) {
  SimulatorRun run(1);
  Program program(control({"--control", run.socket, "unplug", "7"}), run.folder);
  EXPECT_EQ(program.finish(), 1);
  EXPECT_EQ(program.errors(), "trx-mixer-ctl: there is no unit 7; `units` lists them\n");
}

TEST(ControlProgram, ExitsWithTwoWithoutACommand) {
  const TemporaryFolder folder;
  for (const Words &arguments : {Words{}, Words{"run"}, Words{"run", "--"}, Words{"--control"}}) {
    EXPECT_EQ(Program(control(arguments), folder).finish(), 2);
  }
}

TEST(ControlProgram, ExitsWithThreeWhenNobodyIsThere) {
  const TemporaryFolder folder;
  Program program(control({"units"}), folder);
  EXPECT_EQ(program.finish(), 3);
  EXPECT_NE(program.errors().find("no simulator answers at " + (folder / "trx-mixer-sim.sock")),
            std::string::npos);
  EXPECT_NE(program.errors().find("Hint: "), std::string::npos);
}

TEST(ControlProgram, RunsAProgramOnTheSameDesk) {
  SimulatorRun run(1);
  Program second(run.furtherClient(), run.folder);
  EXPECT_EQ(second.ask("list"), "1-1=001/002 usb1=001/001");
  EXPECT_EQ(second.ask("variable TRX_MIXER_SIM_CONTROL"), run.socket);
  second.tell("exit 9");
  EXPECT_EQ(second.finish(), 9);
}

TEST(ControlProgram, SaysWhenTheProgramCannotRun) {
  SimulatorRun run(1);
  EXPECT_EQ(
      Program(control({"--control", run.socket, "run", "--", "/no/such"}), run.folder).finish(),
      127);
}

}  // namespace
