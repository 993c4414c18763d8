#include "Aftermath.h"

#include <algorithm>
#include <utility>

namespace trxtest {
namespace {

using CallList = std::vector<Call>;

std::string selva = "selva";

constexpr std::uint32_t kAreYouThere = 3;

void SetLevel(std::uint32_t index) { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, index), kSuccess); }

}  // namespace

const std::vector<std::string> Aftermath::kOnlyTheFile = {
    "Preferences/com.orvikaudio.TRX-SELVAautosetup.plist"};

void Aftermath::PutLevelThree() { PutLevelThree("kept"); }

void Aftermath::PutLevelThree(const std::string &otherText) {
  PutSettings("TRX-SELVA", "<key>MaxLevel</key><integer>3</integer><key>Other</key><string>" +
                               otherText + "</string>");
}

Settings Aftermath::Level(int index) {
  return {{"MaxLevel", "<integer>" + std::to_string(index) + "</integer>"},
          {"Other", "<string>kept</string>"}};
}

void Aftermath::Register() {
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
}

void Aftermath::ExpectRegistrationHolds() {
  Calls().clear();
  int looks = 0;
  EXPECT_TRUE(RunEventLoopUntil([&] {
    if (Calls().empty() && looks++ % 5 == 0) SetLevel(kAreYouThere);
    return !Calls().empty();
  })) << "a registration is lost";
  for (const std::uint32_t index : {0U, 1U, 2U}) SetLevel(index);
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().back().index == 2; }));
  const CallList all = std::exchange(Calls(), {});
  // Earlier announcements arrive first.
  const auto last = std::find_if(all.rbegin(), all.rend(), [](const Call &call) {
    return call.index == static_cast<std::int32_t>(kAreYouThere);
  });
  const CallList heard(last.base(), all.end());
  EXPECT_EQ(heard, (CallList{{"A selva", -1, 0}, {"A selva", -1, 1}, {"A selva", -1, 2}}));
}

}  // namespace trxtest
