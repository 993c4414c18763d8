// The status queries: certify level, firmware version, input selectors, Serato.
#include "../Acceptance.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;
using Positions = std::vector<std::uint8_t>;

// The outcome of a query: its status, and its result variable afterwards.
struct Answer {
  StatusCode status;
  std::uint32_t result;

  bool operator==(const Answer &) const = default;
};

void PrintTo(const Answer &answer, std::ostream *out) {
  *out << answer.status << " with " << answer.result;
}

// The value of a result variable before the call.
constexpr std::uint32_t kBefore = 0xABCD1234;

class MixerStatus : public Acceptance {
 protected:
  void PlugMixers(int count) {
    for (int i = 0; i < count; ++i) rig_->PlugMixer();
  }

  static Answer CertifyLevel(ProductId product) {
    Answer answer = {0, kBefore};
    answer.status = ORV_GetMixerCertifyLevel(product, &answer.result);
    return answer;
  }

  static Answer Firmware(ProductId product) {
    Answer answer = {0, kBefore};
    answer.status = ORV_GetFirmwareVersionIndex(product, &answer.result);
    return answer;
  }

  static Answer Selector(ProductId product, std::uint32_t channel) {
    Answer answer = {0, kBefore};
    answer.status = ORV_GetMixerInputSelectorStatus(product, channel, &answer.result);
    return answer;
  }

  static Answer Serato(ProductId product) {
    Answer answer = {0, kBefore};
    answer.status = ORV_GetMixerSeratoActiveStatus(product, &answer.result);
    return answer;
  }

  static std::string AskedLevel(int unit, const std::string &outcome) {
    return Asked(unit, "8007", 4, outcome);
  }
  static std::string AskedFirmware(int unit, const std::string &outcome) {
    return Asked(unit, "8001", 2, outcome);
  }
  static std::string AskedSelectors(int unit, int length, const std::string &outcome) {
    return Asked(unit, "8002", length, outcome);
  }
  static std::string AskedSerato(int unit, const std::string &outcome) {
    return Asked(unit, "8004", 2, outcome);
  }

  void SetSelectors(int unit, std::uint8_t leading, const std::vector<std::uint8_t> &positions) {
    rig_->SetLeadingByte(unit, leading);
    for (unsigned i = 0; i < positions.size(); ++i) rig_->SetSelector(unit, i, positions[i]);
  }

  void ExpectNoTrace() {
    EXPECT_EQ(LibraryListing(), Lines());
    EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
  }
};

// --- Certify level ---------------------------------------------------------------------------

TEST_F(MixerStatus, CertifyLevelIsReadMostSignificantByteFirst) {
  PlugMixers(1);
  rig_->SetCertifyLevel(1, 0x01020304);
  for (const ProductId product : {kLumen, kMorrow, kSelva}) {
    rig_->ClearWireLog();
    EXPECT_EQ(CertifyLevel(product), (Answer{kSuccess, 0x01020304}));
    EXPECT_EQ(rig_->WireLog(), (Lines{AskedLevel(1, "4 bytes 01 02 03 04")}));
  }
  rig_->SetCertifyLevel(1, 0xFFFEFDFC);
  EXPECT_EQ(CertifyLevel(kSelva), (Answer{kSuccess, 0xFFFEFDFC}));
  ExpectNoTrace();
}

TEST_F(MixerStatus, CertifyLevelOfHaldenIsZeroWithoutAskingAnyUnit) {
  EXPECT_EQ(CertifyLevel(kHalden), (Answer{kSuccess, 0}));
  PlugMixers(2);
  rig_->SetCertifyLevel(1, 7);
  rig_->SetCertifyLevel(2, 8);
  EXPECT_EQ(CertifyLevel(kHalden), (Answer{kSuccess, 0}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, CertifyLevelIsRefusedToOtherModelsWithoutAskingAnyUnit) {
  PlugMixers(1);
  for (const ProductId product :
       {kArden, kVolt, kBrisk, kFenno, kCirrus, 7U, 9U, 10U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(CertifyLevel(product), (Answer{kBadArgument, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, CertifyLevelWithoutAUnitIsZero) {
  for (const ProductId product : {kHalden, kLumen, kMorrow, kSelva}) {
    EXPECT_EQ(CertifyLevel(product), (Answer{kSuccess, 0})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, CertifyLevelIsThatOfTheLastUnitThatOpens) {
  PlugMixers(3);
  PlugSomethingHealthyBehind();
  rig_->SetCertifyLevel(1, 1);
  rig_->SetCertifyLevel(2, 2);
  rig_->SetCertifyLevel(3, 3);
  EXPECT_EQ(CertifyLevel(kSelva), (Answer{kSuccess, 3}));
  EXPECT_EQ(rig_->WireLog(),
            (Lines{AskedLevel(1, "4 bytes 00 00 00 01"), AskedLevel(2, "4 bytes 00 00 00 02"),
                   AskedLevel(3, "4 bytes 00 00 00 03")}));
  rig_->SetFault(3, UnitFault::kRefusesToOpen);
  EXPECT_EQ(CertifyLevel(kSelva), (Answer{kSuccess, 2}));
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  EXPECT_EQ(CertifyLevel(kSelva), (Answer{kSuccess, 0}));
}

TEST_F(MixerStatus, CertifyLevelOfALastUnitThatStallsIsZero) {
  PlugMixers(2);
  rig_->SetCertifyLevel(1, 9);
  rig_->SetFault(2, UnitFault::kStalls);
  EXPECT_EQ(CertifyLevel(kSelva), (Answer{kSuccess, 0}));
  EXPECT_EQ(rig_->WireLog(),
            (Lines{AskedLevel(1, "4 bytes 00 00 00 09"), AskedLevel(2, "stalled")}));
}

TEST_F(MixerStatus, CertifyLevelTakesTheBytesMissingInAShortReplyAsZero) {
  PlugMixers(2);
  rig_->SetCertifyLevel(1, 0xAABBCCDD);
  rig_->SetCertifyLevel(2, 0x01020304);
  rig_->SetShortReplies(2, 2);
  EXPECT_EQ(CertifyLevel(kLumen), (Answer{kSuccess, 0x01020000}));
  EXPECT_EQ(rig_->WireLog(),
            (Lines{AskedLevel(1, "4 bytes aa bb cc dd"), AskedLevel(2, "2 bytes 01 02")}));
}

// --- Firmware version ------------------------------------------------------------------------

TEST_F(MixerStatus, FirmwareIsThatOfTheFirstUnitLeastSignificantByteFirst) {
  PlugMixers(3);
  rig_->SetFirmware(1, 0x0215);
  rig_->SetFirmware(2, 0x0999);
  EXPECT_EQ(Firmware(kSelva), (Answer{kSuccess, 0x0215}));
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedFirmware(1, "2 bytes 15 02")}));
  rig_->SetFirmware(1, 0xFFFE);
  EXPECT_EQ(Firmware(kSelva), (Answer{kSuccess, 0xFFFE}));
  ExpectNoTrace();
}

TEST_F(MixerStatus, FirmwareIsClearedEvenForAModelThatIsRefused) {
  PlugMixers(1);
  for (const ProductId product :
       {kArden, kVolt, kBrisk, kHalden, kLumen, 7U, kMorrow, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Firmware(product), (Answer{kBadArgument, 0})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, FirmwareWithoutAUnitIsZero) {
  EXPECT_EQ(Firmware(kSelva), (Answer{kSuccess, 0}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, FirmwareTakesMissingBytesAsZero) {
  PlugMixers(1);
  rig_->SetFirmware(1, 0x0305);
  rig_->SetShortReplies(1, 1);
  EXPECT_EQ(Firmware(kSelva), (Answer{kSuccess, 5}));
  rig_->ClearFaults(1);
  rig_->SetFault(1, UnitFault::kStalls);
  EXPECT_EQ(Firmware(kSelva), (Answer{kSuccess, 0}));
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedFirmware(1, "1 byte 05"), AskedFirmware(1, "stalled")}));
}

// --- Input selectors -------------------------------------------------------------------------

TEST_F(MixerStatus, SelectorOfAChannelIsTheByteBehindTheLeadingOne) {
  PlugMixers(1);
  SetSelectors(1, 1, {5, 7, 2, 9});
  for (const ProductId product : {kArden, kHalden, kLumen, kMorrow, kSelva}) {
    rig_->ClearWireLog();
    EXPECT_EQ(Selector(product, 0), (Answer{kSuccess, 5})) << product;
    EXPECT_EQ(Selector(product, 1), (Answer{kSuccess, 7})) << product;
    EXPECT_EQ(Selector(product, 2), (Answer{kSuccess, 2})) << product;
    EXPECT_EQ(Selector(product, 3), (Answer{kBadArgument, 9})) << product;
    EXPECT_EQ(rig_->WireLog(), Lines(4, AskedSelectors(1, 5, "5 bytes 01 05 07 02 09")));
  }
  ExpectNoTrace();
}

TEST_F(MixerStatus, SelectorsOfVoltAreReadWithThreeBytes) {
  PlugMixers(1);
  SetSelectors(1, 1, {5, 7, 2, 9});
  EXPECT_EQ(Selector(kVolt, 0), (Answer{kSuccess, 5}));
  EXPECT_EQ(Selector(kVolt, 1), (Answer{kSuccess, 7}));
  EXPECT_EQ(rig_->WireLog(), Lines(2, AskedSelectors(1, 3, "3 bytes 01 05 07")));
}

TEST_F(MixerStatus, SelectorThatLiesBehindTheReplyReadsAsZero) {
  PlugMixers(1);
  rig_->SetChannels(1, 6);
  SetSelectors(1, 7, {7, 7, 7, 7, 7, 7});
  EXPECT_EQ(Selector(kVolt, 2), (Answer{kSuccess, 0}));
  for (const ProductId product : {kHalden, kLumen, kMorrow, kSelva}) {
    EXPECT_EQ(Selector(product, 4), (Answer{kSuccess, 0})) << product;
  }
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedSelectors(1, 3, "3 bytes 07 07 07"),
                                    AskedSelectors(1, 5, "5 bytes 07 07 07 07 07"),
                                    AskedSelectors(1, 5, "5 bytes 07 07 07 07 07"),
                                    AskedSelectors(1, 5, "5 bytes 07 07 07 07 07"),
                                    AskedSelectors(1, 5, "5 bytes 07 07 07 07 07")}));
}

TEST_F(MixerStatus, SelectorOfAChannelThatTheModelDoesNotHaveIsRefusedWithoutAskingAnyUnit) {
  PlugMixers(1);
  const std::vector<std::pair<ProductId, std::uint32_t>> cases = {
      {0, 4}, {1, 3}, {5, 5}, {6, 5}, {8, 5}, {11, 5}, {0, 0xFFFFFFFF}, {11, 0x80000000}};
  for (const auto &[product, channel] : cases) {
    EXPECT_EQ(Selector(product, channel), (Answer{kBadArgument, kBefore}))
        << product << ' ' << channel;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SelectorWithoutAUnitIsLeftUntouched) {
  for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow, kSelva}) {
    EXPECT_EQ(Selector(product, 0), (Answer{kSuccess, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SelectorIsLeftUntouchedWhenNoUnitOpens) {
  PlugMixers(2);
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Selector(kSelva, 0), (Answer{kSuccess, kBefore}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SelectorPositionsUpToSevenAreAcceptedAndHigherOnesHandedOutAsRefused) {
  PlugMixers(1);
  for (const std::uint8_t position : Positions{0, 1, 2, 3, 4, 5, 6, 7}) {
    rig_->SetSelector(1, 0, position);
    EXPECT_EQ(Selector(kSelva, 0), (Answer{kSuccess, position}));
  }
  for (const std::uint8_t position : Positions{8, 9, 127, 128, 255}) {
    rig_->SetSelector(1, 0, position);
    EXPECT_EQ(Selector(kSelva, 0), (Answer{kBadArgument, position}));
    EXPECT_EQ(Selector(kVolt, 0), (Answer{kBadArgument, position}));
  }
}

TEST_F(MixerStatus, SelectorIsThatOfTheLastUnitThatOpens) {
  PlugMixers(3);
  PlugSomethingHealthyBehind();
  for (const int unit : {1, 2, 3}) rig_->SetSelector(unit, 0, static_cast<std::uint8_t>(unit));
  EXPECT_EQ(Selector(kSelva, 0), (Answer{kSuccess, 3}));
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedSelectors(1, 5, "5 bytes 00 01 00 00 00"),
                                    AskedSelectors(2, 5, "5 bytes 00 02 00 00 00"),
                                    AskedSelectors(3, 5, "5 bytes 00 03 00 00 00")}));
  rig_->SetFault(3, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Selector(kSelva, 0), (Answer{kSuccess, 2}));
}

TEST_F(MixerStatus, TheFirstUnitWithABadSelectorIsTheLastAsked) {
  PlugMixers(3);
  rig_->SetSelector(1, 0, 3);
  rig_->SetSelector(2, 0, 8);
  rig_->SetSelector(3, 0, 4);
  EXPECT_EQ(Selector(kSelva, 0), (Answer{kBadArgument, 8}));
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedSelectors(1, 5, "5 bytes 00 03 00 00 00"),
                                    AskedSelectors(2, 5, "5 bytes 00 08 00 00 00")}));
}

TEST_F(MixerStatus, SelectorOfAUnitThatStallsOrAnswersShortReadsAsZero) {
  PlugMixers(2);
  SetSelectors(1, 0, {6, 6, 6, 6});
  SetSelectors(2, 0, {5, 5, 5, 5});
  rig_->SetShortReplies(2, 2);
  EXPECT_EQ(Selector(kSelva, 0), (Answer{kSuccess, 5}));
  EXPECT_EQ(Selector(kSelva, 1), (Answer{kSuccess, 0}));
  rig_->ClearFaults(2);
  rig_->SetFault(2, UnitFault::kStalls);
  EXPECT_EQ(Selector(kSelva, 0), (Answer{kSuccess, 0}));
  EXPECT_EQ(
      rig_->WireLog(),
      (Lines{AskedSelectors(1, 5, "5 bytes 00 06 06 06 06"), AskedSelectors(2, 5, "2 bytes 00 05"),
             AskedSelectors(1, 5, "5 bytes 00 06 06 06 06"), AskedSelectors(2, 5, "2 bytes 00 05"),
             AskedSelectors(1, 5, "5 bytes 00 06 06 06 06"), AskedSelectors(2, 5, "stalled")}));
}

// --- Serato ----------------------------------------------------------------------------------

TEST_F(MixerStatus, SeratoIsTheFirstOfTwoBytes) {
  PlugMixers(1);
  for (const ProductId product : {kArden, kHalden, kLumen, kMorrow, kSelva}) {
    rig_->ClearWireLog();
    rig_->SetSerato(1, 1, 0);
    EXPECT_EQ(Serato(product), (Answer{kSuccess, 1})) << product;
    rig_->SetSerato(1, 0, 1);
    EXPECT_EQ(Serato(product), (Answer{kSuccess, 0})) << product;
    rig_->SetSerato(1, 1, 0xFF);
    EXPECT_EQ(Serato(product), (Answer{kSuccess, 1})) << product;
    EXPECT_EQ(rig_->WireLog(),
              (Lines{AskedSerato(1, "2 bytes 01 00"), AskedSerato(1, "2 bytes 00 01"),
                     AskedSerato(1, "2 bytes 01 ff")}));
  }
  ExpectNoTrace();
}

TEST_F(MixerStatus, SeratoOfTwoOrMoreIsRefusedAndNotHandedOut) {
  PlugMixers(1);
  for (const std::uint8_t value :
       {std::uint8_t{2}, std::uint8_t{3}, std::uint8_t{128}, std::uint8_t{255}}) {
    rig_->SetSerato(1, value, 0);
    EXPECT_EQ(Serato(kSelva), (Answer{kBadArgument, kBefore})) << +value;
  }
}

TEST_F(MixerStatus, SeratoWithoutAUnitIsLeftUntouchedForVoltToo) {
  for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow, kSelva}) {
    EXPECT_EQ(Serato(product), (Answer{kSuccess, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SeratoIsRefusedToVoltAsSoonAsAUnitOpensAndNoUnitIsAsked) {
  PlugMixers(2);
  rig_->SetSerato(1, 1, 0);
  rig_->SetSerato(2, 1, 0);
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Serato(kVolt), (Answer{kSuccess, kBefore}));
  rig_->ClearFaults(2);
  EXPECT_EQ(Serato(kVolt), (Answer{kBadArgument, kBefore}));
  rig_->ClearFaults(1);
  EXPECT_EQ(Serato(kVolt), (Answer{kBadArgument, kBefore}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SeratoIsRefusedToOtherModelsWithoutAskingAnyUnit) {
  PlugMixers(1);
  for (const ProductId product : {kBrisk, kFenno, kCirrus, 7U, 9U, 10U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Serato(product), (Answer{kBadArgument, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SeratoIsThatOfTheLastUnitThatOpens) {
  PlugMixers(3);
  PlugSomethingHealthyBehind();
  rig_->SetSerato(1, 0, 0);
  rig_->SetSerato(2, 0, 0);
  rig_->SetSerato(3, 1, 0);
  EXPECT_EQ(Serato(kSelva), (Answer{kSuccess, 1}));
  EXPECT_EQ(rig_->WireLog(),
            (Lines{AskedSerato(1, "2 bytes 00 00"), AskedSerato(2, "2 bytes 00 00"),
                   AskedSerato(3, "2 bytes 01 00")}));
  rig_->SetFault(3, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Serato(kSelva), (Answer{kSuccess, 0}));
}

TEST_F(MixerStatus, TheFirstUnitWithABadSeratoStateIsTheLastAskedAndLeavesWhatCameBefore) {
  PlugMixers(3);
  rig_->SetSerato(1, 1, 0);
  rig_->SetSerato(2, 2, 0);
  rig_->SetSerato(3, 0, 0);
  EXPECT_EQ(Serato(kSelva), (Answer{kBadArgument, 1}));
  EXPECT_EQ(rig_->WireLog(),
            (Lines{AskedSerato(1, "2 bytes 01 00"), AskedSerato(2, "2 bytes 02 00")}));
}

TEST_F(MixerStatus, SeratoOfAUnitThatDoesNotAnswerIsRefused) {
  PlugMixers(2);
  rig_->SetFault(1, UnitFault::kStalls);
  EXPECT_EQ(Serato(kSelva), (Answer{kBadArgument, kBefore}));
  rig_->ClearFaults(1);
  rig_->SetShortReplies(1, 0);
  EXPECT_EQ(Serato(kSelva), (Answer{kBadArgument, kBefore}));
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedSerato(1, "stalled"), AskedSerato(1, "0 bytes")}));
}

TEST_F(MixerStatus, SeratoNeedsTheFirstByteOnly) {
  PlugMixers(1);
  rig_->SetSerato(1, 1, 0);
  rig_->SetShortReplies(1, 1);
  EXPECT_EQ(Serato(kSelva), (Answer{kSuccess, 1}));
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedSerato(1, "1 byte 01")}));
}

}  // namespace
}  // namespace trxtest
