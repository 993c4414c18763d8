// The input is the file of a profile, byte for byte, which is imported.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "ProfileFaults.h"
#include "Promise.h"
#include "Surroundings.h"
#include "client/Profiles.h"

namespace trxfuzz {
namespace {

namespace fs = std::filesystem;

bool IsSame(const client::Profile &one, const client::Profile &other) {
  return one.model == other.model &&
         std::equal(one.choices.begin(), one.choices.end(), other.choices.begin(),
                    other.choices.end(), [](const auto &left, const auto &right) {
                      return left.setting.kind == right.setting.kind &&
                             left.setting.channel == right.setting.channel &&
                             left.index == right.index;
                    });
}

std::string BytesOf(const fs::path &path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

void CheckFault(const client::ProfileFault &fault) {
  const trxctl::Failure failure = trxctl::FailureFor(fault, "the file");
  Promise(failure.code == trxctl::ExitCode::kRefused, "what is in a file is refused",
          failure.message);
  const bool isOneLine = std::none_of(failure.message.begin(), failure.message.end(), [](char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
  });
  Promise(isOneLine && !failure.message.empty() && !failure.hint.empty(),
          "a refusal is one sentence and a hint", failure.message);
  Promise(client::StoredProfiles().empty(), "what is refused is not kept");
}

void CheckProfile(const client::Profile &profile, const std::string &bytes) {
  Promise(!profile.choices.empty(), "a profile holds a setting");
  for (const client::ProfileChoice &choice : profile.choices) {
    Promise(choice.setting.TakesChoices() && choice.setting.TextOf(choice.index).has_value(),
            "the model takes each choice");
  }
  const auto stored = client::StoredProfiles();
  Promise(stored.size() == 1 && stored.front().name == profile.name && stored.front().profile,
          "what is imported is listed under its name");
  const client::Profile loaded = client::LoadProfile(profile.name);
  Promise(IsSame(loaded, profile), "what is imported can be loaded");
  const fs::path kept = fs::directory_iterator(*client::ProfilesFolder())->path();
  Promise(BytesOf(kept) == bytes, "what is imported is kept as it is");
  Promise(IsSame(client::ProfileInText(client::TextOfProfile(profile)), profile),
          "what is written is read the same");
  client::RenameProfile(profile.name, profile.name == "new" ? "other" : "new",
                        client::OldFile::kIsKept);
  const auto renamed = client::StoredProfiles();
  Promise(
      renamed.size() == 1 && renamed.front().profile && IsSame(*renamed.front().profile, profile),
      "a rename keeps the settings");
}

void Run(const std::string &bytes) {
  static const std::string folder = MakeSurroundings();
  static const std::string file = folder + "/from-elsewhere";
  fs::remove_all(*client::ProfilesFolder());
  std::ofstream(file, std::ios::binary) << bytes;
  std::optional<client::Profile> profile;
  try {
    profile = client::ImportProfile(file, std::nullopt, client::OldFile::kIsKept);
  } catch (const client::ProfileFault &fault) {
    CheckFault(fault);
  }
  if (profile) CheckProfile(*profile, bytes);
}

}  // namespace
}  // namespace trxfuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  trxfuzz::Run(std::string(reinterpret_cast<const char *>(data), size));
  return 0;
}
