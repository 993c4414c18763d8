// One case that does everything a host does; also run with a memory checker.
#include <algorithm>

#include "../Deliveries.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using CallList = std::vector<Call>;
using Lines = std::vector<std::string>;

std::string selva = "selva";
std::string routing = "routing";

class Scenario : public Deliveries {};

TEST_F(Scenario, AHostFindsItsMixersSetsThemHearsOfItAndSendsTheLevelAgain) {
  rig_->PlugStranger(Stranger::kOtherProductOfTheMaker);
  const int first = rig_->PlugMixer();
  const int second = rig_->PlugMixer();
  rig_->SetFault(rig_->PlugMixer(), UnitFault::kRefusesToOpen);
  PlugSomethingHealthyBehind();

  ProductId product = 0;
  ASSERT_EQ(ORV_GetProductId(TextOf("Orvik Trx-Selva"), &product), kSuccess);
  ASSERT_EQ(product, kSelva);
  EXPECT_EQ(ORV_IsUSBConnection(product), kConnected);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(product, IndexA, &selva), kSuccess);
  EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(product, ChannelIndexA, &routing), kSuccess);
  EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(product, ChannelIndexB, &routing), kSuccess);

  PutSettings("TRX-SELVA",
              "<key>Output0</key><integer>4</integer><key>MaxLevel</key><string>0</string>");
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(product), kSuccess);
  EXPECT_EQ(ORV_SetBoostLevelIndex(product, 1), kSuccess);
  EXPECT_EQ(ORV_SetBoostLevelIndex(product, 4), kBadArgument);
  rig_->SetFault(first, UnitFault::kVanishes);
  EXPECT_EQ(ORV_SetBoostLevelIndex(product, 2), kSuccess);
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(product), kSuccess);
  Lines wire = rig_->WireLog();
  if (rig_->PlacesHoldInACall()) wire.erase(wire.begin() + 5);  // of the second, in the same call
  EXPECT_EQ(wire, (Lines{Sent(first, "0300", "8003"), Sent(second, "0300", "8003"),
                         Sent(first, "0200", "8003"), Sent(second, "0200", "8003"),
                         Sent(first, "0100", "8003", "unplugged"), Sent(second, "0100", "8003")}));

  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"MaxLevel", "<integer>2</integer>"}, {"Output0", "<integer>4</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(2), (std::vector{BoostChange("TRX-SELVA", kSelva, 1),
                                                     BoostChange("TRX-SELVA", kSelva, 2)}));
  rig_->Announce(
      {"TRX-SELVA InputAudio Change", {{"ProductID", kSelva}, {"Channel", 1}, {"Index", 7}}});
  rig_->AnnounceMisshapen(BoostChange("TRX-SELVA", kSelva, 3));
  const CallList calls = DeliverAll(4);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), (Call{"B routing", 1, 7})), 2);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), (Call{"A selva", -1, 1})), 1);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), (Call{"A selva", -1, 2})), 1);
  EXPECT_EQ(calls.size(), 4U);

  EXPECT_EQ(ORV_UnregisterBoostLevelChangedCallback(product, IndexA), kSuccess);
  EXPECT_EQ(ORV_UnregisterInputAudioChangedCallback(product, ChannelIndexA), kSuccess);
  std::int32_t index = -77;
  EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(product, &index), kSuccess);
  EXPECT_EQ(index, 2);
}

}  // namespace
}  // namespace trxtest
