// Model names, and whether a mixer is connected.
#include <set>

#include "../Acceptance.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class ProductNames : public Acceptance {};

constexpr ProductId kUntouched = 4711;

ProductId Recognised(const std::string &name) {
  ProductId product = kUntouched;
  const StatusCode status = ORV_GetProductId(TextOf(name), &product);
  EXPECT_EQ(status, product == kUntouched ? kBadArgument : kSuccess) << name;
  return product;
}

TEST_F(ProductNames, EveryModelIsRecognisedByItsName) {
  EXPECT_EQ(Recognised("TRX-ARDEN"), 0U);
  EXPECT_EQ(Recognised("TRX-VOLT"), 1U);
  EXPECT_EQ(Recognised("TRX-BRISK"), 2U);
  EXPECT_EQ(Recognised("TRC-FENNO"), 3U);
  EXPECT_EQ(Recognised("TRX-CIRRUS"), 4U);
  EXPECT_EQ(Recognised("TRX-HALDEN"), 5U);
  EXPECT_EQ(Recognised("TRX-LUMEN"), 6U);
  EXPECT_EQ(Recognised("TRX-MORROW"), 8U);
  EXPECT_EQ(Recognised("TRX-SELVA"), 11U);
}

TEST_F(ProductNames, CaseDoesNotMatter) {
  EXPECT_EQ(Recognised("trx-selva"), 11U);
  EXPECT_EQ(Recognised("TRX-Arden"), 0U);
  EXPECT_EQ(Recognised("tRc-fEnNo"), 3U);
}

TEST_F(ProductNames, TheNameMayStandAmongOtherWords) {
  EXPECT_EQ(Recognised("the old TRX-VOLT on the left"), 1U);
  EXPECT_EQ(Recognised("my trx-selva mixer"), 11U);
  EXPECT_EQ(Recognised("XTRX-LUMENX"), 6U);
  EXPECT_EQ(Recognised("Mischpult \xC3\xBC"
                       "ber trx-morrow \xE2\x80\x93 B\xC3\xBChne"),
            8U);
}

TEST_F(ProductNames, OfTwoNamesTheOneTestedFirstWins) {
  EXPECT_EQ(Recognised("TRX-SELVA and TRX-ARDEN"), 0U);
  EXPECT_EQ(Recognised("TRX-MORROW TRX-CIRRUS TRC-FENNO"), 3U);
  EXPECT_EQ(Recognised("TRX-HALDEN TRX-LUMEN"), 5U);
}

TEST_F(ProductNames, AnythingElseIsRefusedAndTheResultLeftAlone) {
  for (const char *name :
       {"", "TRX", "TRX-", "TRX-SELV", "TRX SELVA", "TRX_SELVA", "SELVA", "TRC-SELVA", "TRX-FENNO",
        "TRX-\0SELVA", "\xFF\xFE", "TRX-S\xC3\x89LVA"}) {
    EXPECT_EQ(Recognised(name), kUntouched);
  }
}

TEST_F(ProductNames, NullPointersAreRefused) {
  ProductId product = kUntouched;
  EXPECT_EQ(ORV_GetProductId(nullptr, &product), kBadArgument);
  EXPECT_EQ(product, kUntouched);
  EXPECT_EQ(ORV_GetProductId(TextOf("TRX-SELVA"), nullptr), kBadArgument);
  EXPECT_EQ(ORV_GetProductId(nullptr, nullptr), kBadArgument);
}

TEST_F(ProductNames, NothingHappensElsewhere) {
  rig_->PlugMixer();
  Recognised("TRX-SELVA");
  Recognised("nonsense");
  ExpectNothingHappened();
}

TEST_F(ProductNames, TheThreeModelsThatAreOnlyRecognisedHaveNoBoostLevelAndNoCallbacks) {
  rig_->PlugMixer();
  for (const char *name : {"TRX-BRISK", "TRC-FENNO", "TRX-CIRRUS"}) {
    const ProductId product = Recognised(name);
    std::uint32_t count = 0;
    std::int32_t index = 0;
    ORVStringRef text = nullptr;
    EXPECT_EQ(ORV_GetNumOfBoostLevelIndex(product, &count), kBadArgument) << name;
    EXPECT_EQ(ORV_GetBoostLevelText(product, 0, 0, &text), kBadArgument) << name;
    EXPECT_EQ(ORV_SetBoostLevelIndex(product, 0), kBadArgument) << name;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(product, &index), kBadArgument) << name;
    EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(product), kBadArgument) << name;
    EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(product, nullptr, nullptr), kBadArgument)
        << name;
    EXPECT_EQ(ORV_UnregisterInputAudioChangedCallback(product, nullptr), kBadArgument) << name;
    EXPECT_EQ(ORV_RegisterOutputAudioChangedCallback(product, nullptr, nullptr), kBadArgument)
        << name;
    EXPECT_EQ(ORV_UnregisterOutputAudioChangedCallback(product, nullptr), kBadArgument) << name;
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(product, nullptr, nullptr), kBadArgument)
        << name;
    EXPECT_EQ(ORV_UnregisterBoostLevelChangedCallback(product, nullptr), kBadArgument) << name;
    EXPECT_EQ(ORV_RegisterMidiChannelChangedCallback(product, nullptr, nullptr), kBadArgument)
        << name;
    EXPECT_EQ(ORV_UnregisterMidiChannelChangedCallback(product, nullptr), kBadArgument) << name;
    EXPECT_EQ(ORV_RegisterMidiKeyModeChangedCallback(product, nullptr, nullptr), kBadArgument)
        << name;
    EXPECT_EQ(ORV_UnregisterMidiKeyModeChangedCallback(product, nullptr), kBadArgument) << name;
  }
  ExpectNothingHappened();
}

class Connection : public Acceptance {
 protected:
  // The status for every ProductId; 0 when they differ.
  static StatusCode AnswerForEveryProduct() {
    std::set<StatusCode> answers;
    for (const ProductId product : kAllProducts) answers.insert(ORV_IsUSBConnection(product));
    return answers.size() == 1 ? *answers.begin() : 0;
  }
};

TEST_F(Connection, ThereIsNoConnectionWhileTheBusIsEmpty) {
  EXPECT_EQ(AnswerForEveryProduct(), kNotConnected);
  ExpectNothingHappened();
}

TEST_F(Connection, ThereIsAConnectionWithOneMixerAndWithMore) {
  rig_->PlugMixer();
  EXPECT_EQ(AnswerForEveryProduct(), kConnected);
  rig_->PlugMixer();
  rig_->PlugMixer();
  EXPECT_EQ(AnswerForEveryProduct(), kConnected);
  ExpectNothingHappened();
}

TEST_F(Connection, StrangersAreNoConnection) {
  rig_->PlugStranger(Stranger::kOtherProductOfTheMaker);
  rig_->PlugStranger(Stranger::kOtherMakerWithTheSameProduct);
  rig_->PlugStranger(Stranger::kUnrelated);
  EXPECT_EQ(AnswerForEveryProduct(), kNotConnected);
}

TEST_F(Connection, AConnectionFollowsUnpluggingAndReplugging) {
  const int unit = rig_->PlugMixer();
  EXPECT_EQ(AnswerForEveryProduct(), kConnected);
  rig_->Unplug(unit);
  EXPECT_EQ(AnswerForEveryProduct(), kNotConnected);
  rig_->Replug(unit);
  EXPECT_EQ(AnswerForEveryProduct(), kConnected);
}

TEST_F(Connection, AUnitThatCannotBeOpenedIsConnectedAllTheSame) {
  const int unit = rig_->PlugMixer();
  rig_->SetFault(unit, UnitFault::kRefusesToOpen);
  EXPECT_EQ(AnswerForEveryProduct(), kConnected);
  EXPECT_EQ(rig_->WireLog(), Lines());
}

}  // namespace
}  // namespace trxtest
