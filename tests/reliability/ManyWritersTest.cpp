// Eight processes that each set a different value of one model at the same time: every value is
// stored, on every usual kind of file system for a home folder.
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <Mounts.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Aftermath.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;

// How often each of them sets its value; scripts/stress uses more.
int SetsOfEach(int usually) {
  const char *const asked = std::getenv("TRX_SETS_OF_EACH_WRITER");
  return asked != nullptr ? std::atoi(asked) : usually;
}

enum class Kind { kBoost, kInput, kOutput };

struct Writer {
  Kind kind;
  std::int32_t channel;
  std::uint32_t choices;
  const char *key;
  bool canBeAsked = true;
};

constexpr std::array<Writer, 8> kWriters = {{{Kind::kBoost, 0, 4, "MaxLevel"},
                                             {Kind::kInput, 0, 8, "Output0"},
                                             {Kind::kInput, 1, 8, "Output1"},
                                             {Kind::kInput, 2, 7, "Output2"},
                                             {Kind::kOutput, 0, 3, "Input0"},
                                             {Kind::kOutput, 1, 3, "Input1"},
                                             {Kind::kOutput, 2, 3, "Input2"},
                                             {Kind::kOutput, 3, 3, "Input3", false}}};

std::string InXml(std::uint32_t index) {
  return "<integer>" + std::to_string(index) + "</integer>";
}

bool Set(const Writer &writer, std::uint32_t index) {
  switch (writer.kind) {
    case Kind::kBoost:
      return ORV_SetBoostLevelIndex(kSelva, index) == kSuccess;
    case Kind::kOutput:
      return ORV_SetUSBOutputAudio(kSelva, writer.channel, index) == kSuccess;
    case Kind::kInput:
      break;
  }
  // With a warning for some of the choices.
  const StatusCode status = ORV_SetUSBInputAudio(kSelva, writer.channel, index);
  return status == kSuccess || status == kSuccessWithWarning;
}

// Whether the library reads this value. It has no function for some of them.
bool IsReported(const Writer &writer, std::uint32_t index) {
  std::int32_t stored = -77;
  switch (writer.kind) {
    case Kind::kBoost:
      ORV_GetCurrentBoostLevelIndex(kSelva, &stored);
      break;
    case Kind::kInput:
      ORV_GetCurrentUSBInputAudioIndex(kSelva, writer.channel, &stored);
      break;
    case Kind::kOutput:
      ORV_GetCurrentUSBOutputAudioIndex(kSelva, writer.channel, &stored);
      break;
  }
  return stored == static_cast<std::int32_t>(index);
}

std::uint32_t IndexOf(const Writer &writer, int round) {
  return static_cast<std::uint32_t>(round) % writer.choices;
}

class ManyWriters : public Aftermath {
 protected:
  // Announcements are ignored here.
  void SetUp() override { rig_->StopNotificationService(); }

  bool IsInFile(const Writer &writer, std::uint32_t index) {
    const std::optional<Settings> settings = SettingsOf("TRX-SELVA");
    if (!settings) return false;
    const auto found = settings->find(writer.key);
    return found != settings->end() && found->second == InXml(index);
  }

  bool IsStored(const Writer &writer, std::uint32_t index) {
    return writer.canBeAsked ? IsReported(writer, index) : IsInFile(writer, index);
  }

  // Returns how often a value was not stored, or was missing when its writer looked: right after it
  // was set, and before it is set to the next one, which would hide the loss.
  int SetOverAndOver(const Writer &writer, int rounds) {
    int lost = 0;
    for (int round = 0; round < rounds; ++round) {
      if (round > 0 && !IsStored(writer, IndexOf(writer, round - 1))) ++lost;
      const std::uint32_t index = IndexOf(writer, round);
      if (!Set(writer, index) || !IsStored(writer, index)) ++lost;
    }
    return lost;
  }

  void ExpectNothingLost(int rounds) {
    PutLevelThree();
    std::vector<pid_t> writers;
    for (const Writer &writer : kWriters) {
      writers.push_back(fork());
      if (writers.back() == 0) _exit(SetOverAndOver(writer, rounds) == 0 ? 0 : 1);
    }
    for (const pid_t writer : writers) {
      int status = 0;
      ASSERT_EQ(waitpid(writer, &status, 0), writer);
      EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a value was lost";
    }
    Settings expected = {{"Other", "<string>kept</string>"}};
    for (const Writer &writer : kWriters) {
      expected[writer.key] = InXml(IndexOf(writer, rounds - 1));
    }
    EXPECT_EQ(SettingsOf("TRX-SELVA"), expected);
    EXPECT_EQ(LibraryListing(), kOnlyTheFile);
  }

  void MakeLibraryFolder() { fs::create_directories(rig_->LibraryFolder()); }
};

TEST_F(ManyWriters, ManyWritersLoseNothing) { ExpectNothingLost(SetsOfEach(250)); }

TEST_F(ManyWriters, ManyWritersLoseNothingInMemory) {
  HaveOwnMounts();
  MakeLibraryFolder();
  const Mount memory = Mount::Memory(rig_->LibraryFolder(), "size=1m");
  ExpectNothingLost(SetsOfEach(250));
}

TEST_F(ManyWriters, ManyWritersLoseNothingOnADisk) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can mount a disk";
  HaveOwnMounts();
  MakeLibraryFolder();
  const Mount disk = Mount::NewDisk(rig_->LibraryFolder());
  ExpectNothingLost(SetsOfEach(25));
}

TEST_F(ManyWriters, ManyWritersLoseNothingOnAnOverlay) {
  HaveOwnMounts();
  MakeLibraryFolder();
  // At first the file is in the lower layer, as in a container's image.
  PutLevelThree();
  const Mount overlay = Mount::Overlay(rig_->LibraryFolder());
  ExpectNothingLost(SetsOfEach(250));
}

}  // namespace
}  // namespace trxtest
