// A process that is killed while it writes a profile, before each of its system calls in turn:
// there is the old profile or the new one, whole, and nothing else is listed.
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <SteppedProcess.h>
#include <TemporaryFolder.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "client/Profiles.h"

namespace trxtest {
namespace {

constexpr int kFewestMoments = 8;
constexpr int kMostMoments = 1000;

constexpr int kOldLevel = 1;
constexpr int kNewLevel = 2;

client::Profile Level(const std::string &name, int index) {
  const client::Model &model = client::DefaultModel();
  return {name, &model, {{client::SettingsOf(model).back(), index}}};
}

/// The profiles that there are, such as "gig: 1".
std::vector<std::string> Listed() {
  std::vector<std::string> lines;
  for (const client::StoredProfile &stored : client::StoredProfiles()) {
    const std::string level =
        stored.profile ? std::to_string(stored.profile->choices.front().index) : "cannot be loaded";
    lines.push_back(stored.name + ": " + level);
  }
  return lines;
}

using Lines = std::vector<std::string>;

class KilledProfileWriter : public testing::Test {
 protected:
  KilledProfileWriter() { setenv("XDG_CONFIG_HOME", folder_.Path().c_str(), 1); }

  void PutOld() {
    std::filesystem::remove_all(*client::ProfilesFolder());
    client::SaveProfile(Level("gig", kOldLevel), client::OldFile::kIsKept);
  }

  /// Has a child run `write` on what `prepare` left, and kills it before its first, its second, ...
  /// its last system call. Gives what was listed then, each list once, in the order of the moments.
  std::vector<Lines> KillAtEveryMoment(const std::function<void()> &prepare,
                                       const std::function<void()> &write) {
    std::vector<Lines> seen;
    for (int moment = 1; moment <= kMostMoments; ++moment) {
      prepare();
      SteppedProcess child(write);
      const bool isOver = !child.StepTo(moment);
      if (isOver) {
        EXPECT_TRUE(child.RunToEnd());
      } else {
        child.Kill();
      }
      if (seen.empty() || seen.back() != Listed()) seen.push_back(Listed());
      if (!isOver) continue;
      EXPECT_GT(moment, kFewestMoments);
      return seen;
    }
    ADD_FAILURE() << "the child never ends";
    return seen;
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(KilledProfileWriter, AKilledWriterReplacesAProfileInOneStep) {
  EXPECT_EQ(KillAtEveryMoment(
                [this] { PutOld(); },
                [] { client::SaveProfile(Level("gig", kNewLevel), client::OldFile::kIsReplaced); }),
            (std::vector<Lines>{{"gig: 1"}, {"gig: 2"}}));
}

TEST_F(KilledProfileWriter, AKilledWriterMakesAProfileInOneStep) {
  EXPECT_EQ(KillAtEveryMoment(
                [] { std::filesystem::remove_all(*client::ProfilesFolder()); },
                [] { client::SaveProfile(Level("gig", kNewLevel), client::OldFile::kIsKept); }),
            (std::vector<Lines>{{}, {"gig: 2"}}));
}

TEST_F(KilledProfileWriter, AKilledWriterLosesNothingInARename) {
  EXPECT_EQ(
      KillAtEveryMoment([this] { PutOld(); },
                        [] { client::RenameProfile("gig", "new", client::OldFile::kIsKept); }),
      (std::vector<Lines>{{"gig: 1"}, {"gig: 1", "new: 1"}, {"new: 1"}}));
}

TEST_F(KilledProfileWriter, AKilledWriterIsNoHindranceForTheNextOfItsNumber) {
  PutOld();
  const std::string left = *client::ProfilesFolder() + "/.profile-" + std::to_string(getpid());
  WriteBytes(left + "-0", "{");
  client::SaveProfile(Level("gig", kNewLevel), client::OldFile::kIsReplaced);
  EXPECT_EQ(Listed(), Lines{"gig: 2"});
  EXPECT_EQ(ReadBytes(left + "-0"), "{");
}

}  // namespace
}  // namespace trxtest
