// One case that does everything a host does; also run with a memory checker.
#include <algorithm>

#include "../Deliveries.h"

namespace trxtest {
namespace {

using CallList = std::vector<Call>;
using Lines = std::vector<std::string>;

std::string selva = "selva";
std::string routing = "routing";

class Scenario : public Deliveries {};

TEST_F(Scenario, AHostFindsItsMixersSetsThemHearsOfItAndSendsTheLevelAgain) {
  rig().PlugStranger(Stranger::kOtherProductOfTheMaker);
  const int first = rig().PlugMixer();
  const int second = rig().PlugMixer();
  rig().SetFault(rig().PlugMixer(), UnitFault::kRefusesToOpen);
  PlugSomethingHealthyBehind();

  ProductId product = 0;
  ASSERT_EQ(ORV_GetProductId(TextOf("Orvik Trx-Selva"), &product), 100);
  ASSERT_EQ(product, 11U);
  EXPECT_EQ(ORV_IsUSBConnection(product), 103);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(product, IndexA, &selva), 100);
  EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(product, ChannelIndexA, &routing), 100);
  EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(product, ChannelIndexB, &routing), 100);

  PutSettings("TRX-SELVA",
              "<key>Output0</key><integer>4</integer><key>MaxLevel</key><string>0</string>");
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(product), 100);
  EXPECT_EQ(ORV_SetBoostLevelIndex(product, 1), 100);
  EXPECT_EQ(ORV_SetBoostLevelIndex(product, 4), 102);
  rig().SetFault(first, UnitFault::kVanishes);
  EXPECT_EQ(ORV_SetBoostLevelIndex(product, 2), 100);
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(product), 100);
  Lines wire = rig().WireLog();
  if (rig().PlacesHoldInACall()) wire.erase(wire.begin() + 5);  // of the second, in the same call
  const std::string beginnings[] = {"unit " + std::to_string(first) + " OUT 40 03 wValue ",
                                    "unit " + std::to_string(second) + " OUT 40 03 wValue "};
  const std::string rest = " wIndex 8003 wLength 0 -> ";
  EXPECT_EQ(
      wire,
      (Lines{beginnings[0] + "0300" + rest + "0 bytes", beginnings[1] + "0300" + rest + "0 bytes",
             beginnings[0] + "0200" + rest + "0 bytes", beginnings[1] + "0200" + rest + "0 bytes",
             beginnings[0] + "0100" + rest + "unplugged",
             beginnings[1] + "0100" + rest + "0 bytes"}));

  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"MaxLevel", "<integer>2</integer>"}, {"Output0", "<integer>4</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(2),
            (std::vector{BoostChange("TRX-SELVA", 11, 1), BoostChange("TRX-SELVA", 11, 2)}));
  rig().Announce(
      {"TRX-SELVA InputAudio Change", {{"ProductID", 11}, {"Channel", 1}, {"Index", 7}}});
  rig().AnnounceMisshapen(BoostChange("TRX-SELVA", 11, 3));
  const CallList calls = DeliverAll();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), (Call{"B routing", 1, 7})), 2);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), (Call{"A selva", -1, 1})), 1);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), (Call{"A selva", -1, 2})), 1);
  EXPECT_EQ(calls.size(), 4U);

  EXPECT_EQ(ORV_UnregisterBoostLevelChangedCallback(product, IndexA), 100);
  EXPECT_EQ(ORV_UnregisterInputAudioChangedCallback(product, ChannelIndexA), 100);
  std::int32_t index = -77;
  EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(product, &index), 100);
  EXPECT_EQ(index, 2);
}

}  // namespace
}  // namespace trxtest
