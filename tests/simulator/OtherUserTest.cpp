// Another user who listens where a user expects a simulator of their own, and answers with a
// library to load.

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "SimulatorRun.h"

namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

/// Answers every command at `listener` as a simulator would that wants `library` to be loaded.
[[noreturn]] void AnswerWith(const std::string &library, const trxsim::Descriptor &listener) {
  const std::string answer = "LD_PRELOAD=" + library + "\nok\n";
  for (pollfd polled{listener.Get(), POLLIN, 0};; poll(&polled, 1, -1)) {
    const trxsim::Descriptor client(accept(listener.Get(), nullptr, nullptr));
    char command[64];
    if (client && recv(client.Get(), command, sizeof command, 0) > 0) {
      send(client.Get(), answer.data(), answer.size(), MSG_NOSIGNAL);
    }
  }
}

/// Nobody listens in a folder of its own, which everybody may enter; one more user runs programs.
class OtherUser : public testing::Test {
 protected:
  void SetUp() override {
    if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
    fs::permissions(folder_.Path(), fs::perms::all);
    fs::copy_file(TRX_MIXER_CTL, folder_ / "trx-mixer-ctl");
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    listener_ = fork();
    if (listener_ == 0) Listen(ready[1]);
    close(ready[1]);
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    close(ready[0]);
  }

  void TearDown() override {
    if (listener_ <= 0) return;
    kill(listener_, SIGKILL);
    waitpid(listener_, nullptr, 0);
    fs::remove_all(place_);
  }

  /// Has the user run a program that leaves a file, by way of trx-mixer-ctl with `options`.
  void RunAsUser(const std::vector<std::string> &options, const std::string &error) {
    const std::string user = std::to_string(user_);
    std::vector<std::string> words{
        "setpriv", "--reuid=" + user, "--regid=" + user,        "--clear-groups", "env",
        "-u",      "XDG_RUNTIME_DIR", folder_ / "trx-mixer-ctl"};
    words.insert(words.end(), options.begin(), options.end());
    for (const char *word : {"run", "--", "touch"}) words.emplace_back(word);
    words.push_back(folder_ / "has-run");
    Program program(words, folder_);
    EXPECT_EQ(program.Finish(), 3);
    EXPECT_EQ(program.Errors(), "trx-mixer-ctl: " + error + '\n');
    EXPECT_FALSE(fs::exists(folder_ / "has-run"));
  }

  // An id that no two runs of the test have at once.
  const uid_t user_ = 20'000 + static_cast<uid_t>(getpid()) % 40'000;
  const std::string place_ = "/tmp/trx-mixer-sim-" + std::to_string(user_);

 private:
  [[noreturn]] void Listen(int ready) const {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    umask(0);
    if (setresgid(kNobody, kNobody, kNobody) != 0 || setresuid(kNobody, kNobody, kNobody) != 0 ||
        mkdir(place_.c_str(), 0777) != 0) {
      _exit(1);
    }
    const trxsim::Descriptor listener = trxsim::ListenUnixSocket(place_ + "/control.sock");
    if (!listener || write(ready, "", 1) != 1) _exit(1);
    AnswerWith(folder_ / "library.so", listener);
  }

  trxtest::TemporaryFolder folder_{"/tmp"};
  pid_t listener_ = -1;
};

TEST_F(OtherUser, AnotherUsersSimulatorIsNotAskedInAFolderThatIsNotTheUsers) {
  RunAsUser({}, place_ + " is not a folder of this user alone");
}

TEST_F(OtherUser, AnotherUsersSimulatorIsNotAskedAtASocketThatTheUserNames) {
  const std::string socket = place_ + "/control.sock";
  RunAsUser({"--control", socket}, "the simulator at " + socket + " belongs to another user");
}

}  // namespace
