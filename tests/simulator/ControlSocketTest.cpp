// The control protocol over its socket: server, client, and who owns the socket file.

#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/socket.h>

#include "Control/ControlAddress.h"
#include "Control/ControlClient.h"
#include "Control/ControlServer.h"
#include "Control/ControlSocket.h"
#include "Control/SimulatedEnvironment.h"
#include "MakerIds.h"
#include "RecordingFrontEnd.h"
#include "TemporaryFolder.h"

namespace trxsim {
namespace {

using Lines = std::vector<std::string>;
using trxtest::TemporaryFolder;

/// Everything that `from` still brings.
std::string ReceiveAll(const Descriptor &from) {
  std::string all;
  char buffer[4096];
  for (ssize_t count; (count = recv(from.Get(), buffer, sizeof buffer, 0)) > 0;) {
    all.append(buffer, static_cast<std::size_t>(count));
  }
  return all;
}

class ControlProtocol : public testing::Test {
 protected:
  void SendRaw(const Descriptor &to, const std::string &bytes) {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
      const ssize_t count = send(to.Get(), bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
      if (count <= 0) return;  // the server_ may hang up on us, which is what some tests provoke
      sent += static_cast<std::size_t>(count);
    }
  }

  TemporaryFolder folder_;
  const std::string path_ = folder_ / "control.sock";
  RecordingFrontEnd frontEnd_;
  Desk desk_{frontEnd_};
  CommandInterpreter interpreter_{desk_, {"ONE=1"}};
  ControlSocket controlSocket_ = ControlSocket::At(path_);
  ControlServer server_{controlSocket_.Listener(), interpreter_};
};

TEST_F(ControlProtocol, AnswersLinesThenOk) {
  const Descriptor raw = ConnectUnixSocket(path_);
  SendRaw(raw, "environment\nplug\n");
  shutdown(raw.Get(), SHUT_WR);
  EXPECT_EQ(ReceiveAll(raw), "ONE=1\nok\n1\nok\n");
}

TEST_F(ControlProtocol, AnswersErrorWithItsText) {
  const Descriptor raw = ConnectUnixSocket(path_);
  SendRaw(raw, "unplug 1\n");
  shutdown(raw.Get(), SHUT_WR);
  EXPECT_EQ(ReceiveAll(raw), "error there is no unit 1; `units` lists them\n");
}

TEST_F(ControlProtocol, ClientGetsLinesOrTheRefusal) {
  ControlClient client(path_);
  EXPECT_EQ(client.Ask("plug"), Lines{"1"});
  EXPECT_EQ(client.Ask("units"),
            Lines{"1  TRX-SELVA " + VendorId() + ":001f  plugged 001/002  faults none"});
  try {
    client.Ask("unplug 2");
    FAIL() << "not refused";
  } catch (const CommandRefused &refusal) {
    EXPECT_STREQ(refusal.what(), "there is no unit 2; `units` lists them");
  }
  EXPECT_EQ(client.Ask("environment"), Lines{"ONE=1"});
}

TEST_F(ControlProtocol, ClientRefusesACommandOfTwoLines) {
  ControlClient client(path_);
  EXPECT_THROW(client.Ask("plug\nplug"), CommandRefused);
  EXPECT_TRUE(desk_.Units().empty());
}

TEST_F(ControlProtocol, ServesManyClientsAtOnce) {
  std::vector<std::thread> clients;
  for (int count = 0; count < 8; ++count) {
    clients.emplace_back([this] {
      ControlClient client(path_);
      for (int round = 0; round < 20; ++round) client.Ask("plug");
    });
  }
  for (std::thread &client : clients) client.join();
  EXPECT_EQ(desk_.Units().size(), 160u);
}

TEST_F(ControlProtocol, LongReplyReachesASlowReaderWhole) {
  desk_.Plug();
  for (int count = 0; count < 20'000; ++count) desk_.Transfer(1, {0xC0, 0, 0, 0x8002, 5});
  ControlClient slow(path_);
  const Descriptor unread = ConnectUnixSocket(path_);
  SendRaw(unread, "log\n");
  EXPECT_EQ(slow.Ask("log").size(), 20'000u);
}

TEST_F(ControlProtocol, OverlongLineIsAnsweredAndTheConnectionClosed) {
  const Descriptor raw = ConnectUnixSocket(path_);
  SendRaw(raw, std::string(100'000, 'x'));
  EXPECT_EQ(ReceiveAll(raw), "error the line is too long; a command has at most 4096 characters\n");
  EXPECT_EQ(ControlClient(path_).Ask("environment"), Lines{"ONE=1"});
}

TEST_F(ControlProtocol, BinaryDataIsRefusedLineByLine) {
  std::string everyByte;
  for (int value = 0; value < 256; ++value) everyByte += static_cast<char>(value);
  const Descriptor raw = ConnectUnixSocket(path_);
  SendRaw(raw, everyByte + "\nenvironment\n");
  shutdown(raw.Get(), SHUT_WR);
  const std::string answer = ReceiveAll(raw);
  EXPECT_TRUE(answer.starts_with("error "));
  EXPECT_TRUE(answer.ends_with("\nONE=1\nok\n"));
}

TEST_F(ControlProtocol, ClientThatLeavesInMidLineDoesNoHarm) {
  { SendRaw(ConnectUnixSocket(path_), "unplu"); }
  { SendRaw(ConnectUnixSocket(path_), "log\nlog\nlog\n"); }
  EXPECT_EQ(ControlClient(path_).Ask("environment"), Lines{"ONE=1"});
}

TEST_F(ControlProtocol, SecondSimulatorIsKeptOffALiveSocket) {
  try {
    ControlSocket::At(path_);
    FAIL() << "took the socket of a live simulator";
  } catch (const ControlSocketError &error) {
    EXPECT_EQ(error.what(), "another simulator listens at " + path_);
  }
  EXPECT_EQ(ControlClient(path_).Ask("environment"), Lines{"ONE=1"});
}

TEST(ControlSocketFile, ASocketFileOfADeadSimulatorIsTakenOver) {
  const TemporaryFolder folder;
  const std::string path = folder / "control.sock";
  { const Descriptor dead = ListenUnixSocket(path); }
  ASSERT_TRUE(std::filesystem::exists(path));
  const ControlSocket controlSocket = ControlSocket::At(path);
  EXPECT_TRUE(ConnectUnixSocket(path));
}

TEST(ControlSocketFile, ASocketFileOfASimulatorThatIsEndingIsNotTakenOver) {
  const TemporaryFolder folder;
  const std::string path = folder / "control.sock";
  const ControlSocket ending = ControlSocket::At(path);
  { const Descriptor ofTheServer = ending.Listener(); }
  EXPECT_THROW(ControlSocket::At(path), ControlSocketError);
}

TEST(ControlSocketFile, ASocketFileGoesAwayAtTheEnd) {
  const TemporaryFolder folder;
  { const ControlSocket socket = ControlSocket::At(folder / "control.sock"); }
  EXPECT_EQ(folder.Entries(), 0u);
}

TEST(ControlSocketFile, ASocketFileIsNeverMadeFromAnotherFile) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "precious");
  EXPECT_THROW(ControlSocket::At(folder / "precious"), ControlSocketError);
  EXPECT_TRUE(std::filesystem::is_directory(folder / "precious"));
}

TEST(ControlSocketFile, ASocketFileIsMadeEvenWhileAnotherProgramLocksItsFolder) {
  const TemporaryFolder folder;
  const Descriptor other(open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  ASSERT_EQ(flock(other.Get(), LOCK_EX), 0);
  const ControlSocket controlSocket = ControlSocket::At(folder / "control.sock");
  EXPECT_TRUE(ConnectUnixSocket(folder / "control.sock"));
}

TEST(ControlSocketFile, WithAPathThatCannotBeIsRefused) {
  const TemporaryFolder folder;
  EXPECT_THROW(ControlSocket::At(folder / "none/control.sock"), ControlSocketError);
  EXPECT_THROW(ControlSocket::At(folder / std::string(200, 'x')), ControlSocketError);
}

/// The simulator's answer to "environment", checked by a client.
class SimulatorAnswers : public testing::Test {
 protected:
  SimulatorAnswers() { std::filesystem::create_directory(testbed_); }

  std::string Refusal(const Environment &answer) {
    try {
      RequireExpectedEnvironment(answer, socket_.Path());
      return {};
    } catch (const SimulatorNotTrusted &refusal) {
      return refusal.what();
    }
  }

  TemporaryFolder folder_;
  const std::string testbed_ = folder_ / "testbed";
  ControlSocket socket_ = ControlSocket::At(folder_ / "control.sock");
  const std::string from_ = "the simulator at " + socket_.Path() + " gives ";
};

TEST_F(SimulatorAnswers, AnswersAreTakenWhenTheyAreASimulators) {
  EXPECT_EQ(Refusal(SimulatedEnvironment(testbed_, socket_.Path())), "");
  EXPECT_EQ(Refusal({ControlEntry(socket_.Path())}), "");
}

TEST_F(SimulatorAnswers, AnswersAreRefusedWithAnyOtherVariable) {
  for (const char *entry : {"PATH=/tmp", "LD_AUDIT=/tmp/x.so", "LD_PRELOAD2=x", "LD_PRELOAD", "",
                            "=", "ld_preload=x", "UMOCKDEV_DI=/", "\x1b[2J=1"}) {
    EXPECT_EQ(Refusal({entry}), from_ + "a variable that programs do not need") << entry;
  }
}

TEST_F(SimulatorAnswers, AnswersAreRefusedWithAnyOtherValue) {
  std::filesystem::create_directory(folder_ / "shared");
  std::filesystem::permissions(folder_ / "shared", std::filesystem::perms::all);
  std::filesystem::create_directory_symlink(testbed_, folder_ / "link");
  const std::string expected = GuardPath() + ":libumockdev-preload.so.0";
  const std::pair<std::string, Lines> values[] = {
      {"LD_PRELOAD",
       {"", "/tmp/x.so", GuardPath(), expected + ":/tmp/x.so", "/tmp/x.so:" + expected}},
      {"UMOCKDEV_DIR",
       {"", "testbed", folder_ / "none", folder_ / "shared", folder_ / "link",
        folder_ / "control.sock"}},
      {"TRX_MIXER_SIM_CONTROL", {"", "control.sock", folder_ / "none.sock", testbed_}},
      {"ASAN_OPTIONS", {"", "log_path=/tmp/x", "verify_asan_link_order=0:log_path=/tmp/x"}}};
  for (const auto &[name, bad] : values) {
    for (const std::string &value : bad) {
      EXPECT_EQ(Refusal({ControlEntry(socket_.Path()), name + '=' + value}),
                from_ + "an unexpected value for " + name +
                    "; use the trx-mixer-ctl of the same installation")
          << value;
    }
  }
}

TEST(ControlClients, ControlClientsSayWhenNobodyAnswers) {
  const TemporaryFolder folder;
  EXPECT_THROW(ControlClient(folder / "none.sock"), SimulatorUnreachable);
}

}  // namespace
}  // namespace trxsim
