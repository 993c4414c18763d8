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
    for (int i = 0; i < count; ++i) rig().PlugMixer();
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
    rig().SetLeadingByte(unit, leading);
    for (unsigned i = 0; i < positions.size(); ++i) rig().SetSelector(unit, i, positions[i]);
  }

  void ExpectNoTrace() {
    EXPECT_EQ(LibraryListing(), Lines());
    EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
  }
};

// --- Certify level ---------------------------------------------------------------------------

TEST_F(MixerStatus, CertifyLevelIsReadMostSignificantByteFirst) {
  PlugMixers(1);
  rig().SetCertifyLevel(1, 0x01020304);
  for (const ProductId product : {6U, 8U, 11U}) {
    rig().ClearWireLog();
    EXPECT_EQ(CertifyLevel(product), (Answer{100, 0x01020304}));
    EXPECT_EQ(rig().WireLog(), (Lines{AskedLevel(1, "4 bytes 01 02 03 04")}));
  }
  rig().SetCertifyLevel(1, 0xFFFEFDFC);
  EXPECT_EQ(CertifyLevel(11), (Answer{100, 0xFFFEFDFC}));
  ExpectNoTrace();
}

TEST_F(MixerStatus, CertifyLevelOfHaldenIsZeroWithoutAskingAnyUnit) {
  EXPECT_EQ(CertifyLevel(5), (Answer{100, 0}));
  PlugMixers(2);
  rig().SetCertifyLevel(1, 7);
  rig().SetCertifyLevel(2, 8);
  EXPECT_EQ(CertifyLevel(5), (Answer{100, 0}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, CertifyLevelIsRefusedToOtherModelsWithoutAskingAnyUnit) {
  PlugMixers(1);
  for (const ProductId product : {0U, 1U, 2U, 3U, 4U, 7U, 9U, 10U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(CertifyLevel(product), (Answer{102, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, CertifyLevelWithoutAUnitIsZero) {
  for (const ProductId product : {5U, 6U, 8U, 11U}) {
    EXPECT_EQ(CertifyLevel(product), (Answer{100, 0})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, CertifyLevelIsThatOfTheLastUnitThatOpens) {
  PlugMixers(3);
  PlugSomethingHealthyBehind();
  rig().SetCertifyLevel(1, 1);
  rig().SetCertifyLevel(2, 2);
  rig().SetCertifyLevel(3, 3);
  EXPECT_EQ(CertifyLevel(11), (Answer{100, 3}));
  EXPECT_EQ(rig().WireLog(),
            (Lines{AskedLevel(1, "4 bytes 00 00 00 01"), AskedLevel(2, "4 bytes 00 00 00 02"),
                   AskedLevel(3, "4 bytes 00 00 00 03")}));
  rig().SetFault(3, UnitFault::kRefusesToOpen);
  EXPECT_EQ(CertifyLevel(11), (Answer{100, 2}));
  rig().SetFault(2, UnitFault::kRefusesToOpen);
  rig().SetFault(1, UnitFault::kRefusesToOpen);
  EXPECT_EQ(CertifyLevel(11), (Answer{100, 0}));
}

TEST_F(MixerStatus, CertifyLevelOfALastUnitThatStallsIsZero) {
  PlugMixers(2);
  rig().SetCertifyLevel(1, 9);
  rig().SetFault(2, UnitFault::kStalls);
  EXPECT_EQ(CertifyLevel(11), (Answer{100, 0}));
  EXPECT_EQ(rig().WireLog(),
            (Lines{AskedLevel(1, "4 bytes 00 00 00 09"), AskedLevel(2, "stalled")}));
}

TEST_F(MixerStatus, CertifyLevelTakesTheBytesMissingInAShortReplyAsZero) {
  PlugMixers(2);
  rig().SetCertifyLevel(1, 0xAABBCCDD);
  rig().SetCertifyLevel(2, 0x01020304);
  rig().SetShortReplies(2, 2);
  EXPECT_EQ(CertifyLevel(6), (Answer{100, 0x01020000}));
  EXPECT_EQ(rig().WireLog(),
            (Lines{AskedLevel(1, "4 bytes aa bb cc dd"), AskedLevel(2, "2 bytes 01 02")}));
}

// --- Firmware version ------------------------------------------------------------------------

TEST_F(MixerStatus, FirmwareIsThatOfTheFirstUnitLeastSignificantByteFirst) {
  PlugMixers(3);
  rig().SetFirmware(1, 0x0215);
  rig().SetFirmware(2, 0x0999);
  EXPECT_EQ(Firmware(11), (Answer{100, 0x0215}));
  EXPECT_EQ(rig().WireLog(), (Lines{AskedFirmware(1, "2 bytes 15 02")}));
  rig().SetFirmware(1, 0xFFFE);
  EXPECT_EQ(Firmware(11), (Answer{100, 0xFFFE}));
  ExpectNoTrace();
}

TEST_F(MixerStatus, FirmwareIsClearedEvenForAModelThatIsRefused) {
  PlugMixers(1);
  for (const ProductId product : {0U, 1U, 2U, 5U, 6U, 7U, 8U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Firmware(product), (Answer{102, 0})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, FirmwareWithoutAUnitIsZero) {
  EXPECT_EQ(Firmware(11), (Answer{100, 0}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, FirmwareTakesMissingBytesAsZero) {
  PlugMixers(1);
  rig().SetFirmware(1, 0x0305);
  rig().SetShortReplies(1, 1);
  EXPECT_EQ(Firmware(11), (Answer{100, 5}));
  rig().ClearFaults(1);
  rig().SetFault(1, UnitFault::kStalls);
  EXPECT_EQ(Firmware(11), (Answer{100, 0}));
  EXPECT_EQ(rig().WireLog(), (Lines{AskedFirmware(1, "1 byte 05"), AskedFirmware(1, "stalled")}));
}

// --- Input selectors -------------------------------------------------------------------------

TEST_F(MixerStatus, SelectorOfAChannelIsTheByteBehindTheLeadingOne) {
  PlugMixers(1);
  SetSelectors(1, 1, {5, 7, 2, 9});
  for (const ProductId product : {0U, 5U, 6U, 8U, 11U}) {
    rig().ClearWireLog();
    EXPECT_EQ(Selector(product, 0), (Answer{100, 5})) << product;
    EXPECT_EQ(Selector(product, 1), (Answer{100, 7})) << product;
    EXPECT_EQ(Selector(product, 2), (Answer{100, 2})) << product;
    EXPECT_EQ(Selector(product, 3), (Answer{102, 9})) << product;
    EXPECT_EQ(rig().WireLog(), Lines(4, AskedSelectors(1, 5, "5 bytes 01 05 07 02 09")));
  }
  ExpectNoTrace();
}

TEST_F(MixerStatus, SelectorsOfVoltAreReadWithThreeBytes) {
  PlugMixers(1);
  SetSelectors(1, 1, {5, 7, 2, 9});
  EXPECT_EQ(Selector(1, 0), (Answer{100, 5}));
  EXPECT_EQ(Selector(1, 1), (Answer{100, 7}));
  EXPECT_EQ(rig().WireLog(), Lines(2, AskedSelectors(1, 3, "3 bytes 01 05 07")));
}

TEST_F(MixerStatus, SelectorThatLiesBehindTheReplyReadsAsZero) {
  PlugMixers(1);
  rig().SetChannels(1, 6);
  SetSelectors(1, 7, {7, 7, 7, 7, 7, 7});
  EXPECT_EQ(Selector(1, 2), (Answer{100, 0}));
  for (const ProductId product : {5U, 6U, 8U, 11U}) {
    EXPECT_EQ(Selector(product, 4), (Answer{100, 0})) << product;
  }
  EXPECT_EQ(rig().WireLog(), (Lines{AskedSelectors(1, 3, "3 bytes 07 07 07"),
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
    EXPECT_EQ(Selector(product, channel), (Answer{102, kBefore})) << product << ' ' << channel;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SelectorWithoutAUnitIsLeftUntouched) {
  for (const ProductId product : {0U, 1U, 5U, 6U, 8U, 11U}) {
    EXPECT_EQ(Selector(product, 0), (Answer{100, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SelectorIsLeftUntouchedWhenNoUnitOpens) {
  PlugMixers(2);
  rig().SetFault(1, UnitFault::kRefusesToOpen);
  rig().SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Selector(11, 0), (Answer{100, kBefore}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SelectorPositionsUpToSevenAreAcceptedAndHigherOnesHandedOutAsRefused) {
  PlugMixers(1);
  for (const std::uint8_t position : Positions{0, 1, 2, 3, 4, 5, 6, 7}) {
    rig().SetSelector(1, 0, position);
    EXPECT_EQ(Selector(11, 0), (Answer{100, position}));
  }
  for (const std::uint8_t position : Positions{8, 9, 127, 128, 255}) {
    rig().SetSelector(1, 0, position);
    EXPECT_EQ(Selector(11, 0), (Answer{102, position}));
    EXPECT_EQ(Selector(1, 0), (Answer{102, position}));
  }
}

TEST_F(MixerStatus, SelectorIsThatOfTheLastUnitThatOpens) {
  PlugMixers(3);
  PlugSomethingHealthyBehind();
  for (const int unit : {1, 2, 3}) rig().SetSelector(unit, 0, static_cast<std::uint8_t>(unit));
  EXPECT_EQ(Selector(11, 0), (Answer{100, 3}));
  EXPECT_EQ(rig().WireLog(), (Lines{AskedSelectors(1, 5, "5 bytes 00 01 00 00 00"),
                                    AskedSelectors(2, 5, "5 bytes 00 02 00 00 00"),
                                    AskedSelectors(3, 5, "5 bytes 00 03 00 00 00")}));
  rig().SetFault(3, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Selector(11, 0), (Answer{100, 2}));
}

TEST_F(MixerStatus, TheFirstUnitWithABadSelectorIsTheLastAsked) {
  PlugMixers(3);
  rig().SetSelector(1, 0, 3);
  rig().SetSelector(2, 0, 8);
  rig().SetSelector(3, 0, 4);
  EXPECT_EQ(Selector(11, 0), (Answer{102, 8}));
  EXPECT_EQ(rig().WireLog(), (Lines{AskedSelectors(1, 5, "5 bytes 00 03 00 00 00"),
                                    AskedSelectors(2, 5, "5 bytes 00 08 00 00 00")}));
}

TEST_F(MixerStatus, SelectorOfAUnitThatStallsOrAnswersShortReadsAsZero) {
  PlugMixers(2);
  SetSelectors(1, 0, {6, 6, 6, 6});
  SetSelectors(2, 0, {5, 5, 5, 5});
  rig().SetShortReplies(2, 2);
  EXPECT_EQ(Selector(11, 0), (Answer{100, 5}));
  EXPECT_EQ(Selector(11, 1), (Answer{100, 0}));
  rig().ClearFaults(2);
  rig().SetFault(2, UnitFault::kStalls);
  EXPECT_EQ(Selector(11, 0), (Answer{100, 0}));
  EXPECT_EQ(
      rig().WireLog(),
      (Lines{AskedSelectors(1, 5, "5 bytes 00 06 06 06 06"), AskedSelectors(2, 5, "2 bytes 00 05"),
             AskedSelectors(1, 5, "5 bytes 00 06 06 06 06"), AskedSelectors(2, 5, "2 bytes 00 05"),
             AskedSelectors(1, 5, "5 bytes 00 06 06 06 06"), AskedSelectors(2, 5, "stalled")}));
}

// --- Serato ----------------------------------------------------------------------------------

TEST_F(MixerStatus, SeratoIsTheFirstOfTwoBytes) {
  PlugMixers(1);
  for (const ProductId product : {0U, 5U, 6U, 8U, 11U}) {
    rig().ClearWireLog();
    rig().SetSerato(1, 1, 0);
    EXPECT_EQ(Serato(product), (Answer{100, 1})) << product;
    rig().SetSerato(1, 0, 1);
    EXPECT_EQ(Serato(product), (Answer{100, 0})) << product;
    rig().SetSerato(1, 1, 0xFF);
    EXPECT_EQ(Serato(product), (Answer{100, 1})) << product;
    EXPECT_EQ(rig().WireLog(),
              (Lines{AskedSerato(1, "2 bytes 01 00"), AskedSerato(1, "2 bytes 00 01"),
                     AskedSerato(1, "2 bytes 01 ff")}));
  }
  ExpectNoTrace();
}

TEST_F(MixerStatus, SeratoOfTwoOrMoreIsRefusedAndNotHandedOut) {
  PlugMixers(1);
  for (const std::uint8_t value :
       {std::uint8_t{2}, std::uint8_t{3}, std::uint8_t{128}, std::uint8_t{255}}) {
    rig().SetSerato(1, value, 0);
    EXPECT_EQ(Serato(11), (Answer{102, kBefore})) << +value;
  }
}

TEST_F(MixerStatus, SeratoWithoutAUnitIsLeftUntouchedForVoltToo) {
  for (const ProductId product : {0U, 1U, 5U, 6U, 8U, 11U}) {
    EXPECT_EQ(Serato(product), (Answer{100, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SeratoIsRefusedToVoltAsSoonAsAUnitOpensAndNoUnitIsAsked) {
  PlugMixers(2);
  rig().SetSerato(1, 1, 0);
  rig().SetSerato(2, 1, 0);
  rig().SetFault(1, UnitFault::kRefusesToOpen);
  rig().SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Serato(1), (Answer{100, kBefore}));
  rig().ClearFaults(2);
  EXPECT_EQ(Serato(1), (Answer{102, kBefore}));
  rig().ClearFaults(1);
  EXPECT_EQ(Serato(1), (Answer{102, kBefore}));
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SeratoIsRefusedToOtherModelsWithoutAskingAnyUnit) {
  PlugMixers(1);
  for (const ProductId product : {2U, 3U, 4U, 7U, 9U, 10U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Serato(product), (Answer{102, kBefore})) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MixerStatus, SeratoIsThatOfTheLastUnitThatOpens) {
  PlugMixers(3);
  PlugSomethingHealthyBehind();
  rig().SetSerato(1, 0, 0);
  rig().SetSerato(2, 0, 0);
  rig().SetSerato(3, 1, 0);
  EXPECT_EQ(Serato(11), (Answer{100, 1}));
  EXPECT_EQ(rig().WireLog(),
            (Lines{AskedSerato(1, "2 bytes 00 00"), AskedSerato(2, "2 bytes 00 00"),
                   AskedSerato(3, "2 bytes 01 00")}));
  rig().SetFault(3, UnitFault::kRefusesToOpen);
  EXPECT_EQ(Serato(11), (Answer{100, 0}));
}

TEST_F(MixerStatus, TheFirstUnitWithABadSeratoStateIsTheLastAskedAndLeavesWhatCameBefore) {
  PlugMixers(3);
  rig().SetSerato(1, 1, 0);
  rig().SetSerato(2, 2, 0);
  rig().SetSerato(3, 0, 0);
  EXPECT_EQ(Serato(11), (Answer{102, 1}));
  EXPECT_EQ(rig().WireLog(),
            (Lines{AskedSerato(1, "2 bytes 01 00"), AskedSerato(2, "2 bytes 02 00")}));
}

TEST_F(MixerStatus, SeratoOfAUnitThatDoesNotAnswerIsRefused) {
  PlugMixers(2);
  rig().SetFault(1, UnitFault::kStalls);
  EXPECT_EQ(Serato(11), (Answer{102, kBefore}));
  rig().ClearFaults(1);
  rig().SetShortReplies(1, 0);
  EXPECT_EQ(Serato(11), (Answer{102, kBefore}));
  EXPECT_EQ(rig().WireLog(), (Lines{AskedSerato(1, "stalled"), AskedSerato(1, "0 bytes")}));
}

TEST_F(MixerStatus, SeratoNeedsTheFirstByteOnly) {
  PlugMixers(1);
  rig().SetSerato(1, 1, 0);
  rig().SetShortReplies(1, 1);
  EXPECT_EQ(Serato(11), (Answer{100, 1}));
  EXPECT_EQ(rig().WireLog(), (Lines{AskedSerato(1, "1 byte 01")}));
}

}  // namespace
}  // namespace trxtest
