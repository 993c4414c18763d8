// Diagnostics.h: the outcome of each request, and the path of the settings file.
#include <filesystem>
#include <thread>

#include "../RequestReports.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class Diagnostics : public RequestReports {};

// --- Reports -------------------------------------------------------------------------------------

TEST_F(Diagnostics, ASettingIsReportedForEachUnitInTheOrderOfTheBus) {
  PlugMixers(3);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 done", "unit 2 write 8003 0300 done",
                                  "unit 3 write 8003 0300 done"}));
}

TEST_F(Diagnostics, AReportBeginsWithItsSizeAndSaysWhereTheUnitIs) {
  const UnitPlace place = rig().PlaceOf(rig().PlugMixer());
  ORVRequestReport report = {};
  ORV_ObserveRequests([](const ORVRequestReport *ended,
                         void *context) { *static_cast<ORVRequestReport *>(context) = *ended; },
                      &report);
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 15), 100);
  EXPECT_EQ(report.size, 28U);
  EXPECT_EQ((UnitPlace{report.bus, report.address, report.location}), place);
  EXPECT_NE(place, UnitPlace());
  EXPECT_EQ(report.kind, 2);
  EXPECT_EQ(report.outcome, 0);
  EXPECT_EQ(report.index, 0x8004);
  EXPECT_EQ(report.value, 0x0F00);
}

TEST_F(Diagnostics, ASettingAndTheReadsBehindItAreReportedInTheirOrder) {
  PlugMixers(2);
  Observe();
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 0, 1), 100);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8016 0101 done", "unit 2 write 8016 0101 done",
                                  "unit 1 read 8002 0000 done", "unit 2 read 8002 0000 done"}));
  EXPECT_EQ(ORV_SetUSBInputAudio(11, 1, 7), 100);
  EXPECT_EQ(TakeReports().at(0), "unit 1 write 8002 020a done");
}

TEST_F(Diagnostics, EachQueryReportsWhatItReads) {
  PlugMixers(1);
  Observe();
  std::uint32_t number = 0;
  EXPECT_EQ(ORV_GetFirmwareVersionIndex(11, &number), 100);
  EXPECT_EQ(ORV_GetMixerInputSelectorStatus(11, 0, &number), 100);
  EXPECT_EQ(ORV_GetMixerSeratoActiveStatus(11, &number), 100);
  EXPECT_EQ(ORV_GetMixerCertifyLevel(11, &number), 100);
  ORVStringRef text = nullptr;
  ORV_GetWarningTextForSetUSBAudioInput(11, 0, 101, 0, &text);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 read 8001 0000 done", "unit 1 read 8002 0000 done",
                                  "unit 1 read 8004 0000 done", "unit 1 read 8007 0000 done",
                                  "unit 1 read 8006 0000 done"}));
}

TEST_F(Diagnostics, SendingAgainIsReportedToo) {
  PutSettings("TRX-SELVA", "<key>MaxLevel</key><integer>1</integer>");
  PlugMixers(1);
  Observe();
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(11), 100);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0200 done"});
}

TEST_F(Diagnostics, CallsWithoutARequestReportNothing) {
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  PlugMixers(1);
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 4), 102);
  EXPECT_EQ(ORV_IsUSBConnection(11), 103);
  std::int32_t index = 0;
  EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(11, &index), 100);
  std::uint32_t level = 0;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(5, &level), 100);
  EXPECT_EQ(TakeReports(), Lines());
}

// --- Outcomes ------------------------------------------------------------------------------------

TEST_F(Diagnostics, AUnitThatRefusesIsTold) {
  PlugMixers(2);
  rig().SetFault(1, UnitFault::kStalls);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  std::uint32_t number = 0;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(11, &number), 100);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 refused", "unit 2 write 8003 0300 done",
                                  "unit 1 read 8007 0000 refused", "unit 2 read 8007 0000 done"}));
}

TEST_F(Diagnostics, AUnitThatStaysSilentIsTold) {
  PlugMixers(2);
  rig().SetFault(1, UnitFault::kStaysSilent);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(TakeReports(),
            (Lines{"unit 1 write 8003 0300 no answer", "unit 2 write 8003 0300 done"}));
}

TEST_F(Diagnostics, AUnitThatVanishesInItsRequestIsTold) {
  PlugMixers(2);
  rig().SetFault(2, UnitFault::kVanishes);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 done", "unit 2 write 8003 0300 gone"}));
}

TEST_F(Diagnostics, AShortReplyIsTold) {
  PlugMixers(1);
  rig().SetShortReplies(1, 3);
  Observe();
  std::uint32_t number = 0;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(11, &number), 100);
  EXPECT_EQ(ORV_GetFirmwareVersionIndex(11, &number), 100);
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 read 8007 0000 short reply", "unit 1 read 8001 0000 done",
                                  "unit 1 write 8003 0300 done"}));
}

TEST_F(Diagnostics, AUnitWithFewerChannelsThanAreAskedForAnswersShortly) {
  PlugMixers(1);
  rig().SetChannels(1, 2);
  Observe();
  std::uint32_t position = 0;
  EXPECT_EQ(ORV_GetMixerInputSelectorStatus(11, 0, &position), 100);
  EXPECT_EQ(ORV_GetMixerInputSelectorStatus(1, 0, &position), 100);
  EXPECT_EQ(TakeReports(),
            (Lines{"unit 1 read 8002 0000 short reply", "unit 1 read 8002 0000 done"}));
}

// --- Observing changes nothing else --------------------------------------------------------------

TEST_F(Diagnostics, AnObserverChangesNoResultNoRequestAndNoOrder) {
  PlugMixers(3);
  rig().SetFault(2, UnitFault::kStalls);
  rig().SetSelector(1, 0, 6);
  std::vector<Lines> wires;
  for (const bool isObserved : {false, true}) {
    if (isObserved) Observe();
    rig().ClearWireLog();
    EXPECT_EQ(ORV_SetUSBInputAudio(11, 0, 0), 101);
    EXPECT_EQ(ORV_SetUSBInputAudio(11, 0, 2), 100);
    EXPECT_EQ(ORV_SetBoostLevelIndex(11, 2), 100);
    EXPECT_EQ(rig().TakeAnnouncements(3).size(), 3U);
    wires.push_back(rig().WireLog());
  }
  EXPECT_FALSE(wires[0].empty());
  EXPECT_EQ(wires[0], wires[1]);
}

TEST_F(Diagnostics, TheObserverIsCalledBehindItsRequestAndBeforeTheNext) {
  PlugMixers(2);
  std::vector<std::size_t> requests;
  Lines listing;
  WhileReported([&] {
    requests.push_back(rig().WireLog().size());
    listing = LibraryListing();
  });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(requests, (std::vector<std::size_t>{1, 2}));
  EXPECT_EQ(listing, Lines()) << "stored before the units were told";
}

// --- Threads and lifetime of an observer ---------------------------------------------------------

TEST_F(Diagnostics, ANullObserverEndsIt) {
  PlugMixers(1);
  Observe();
  EXPECT_EQ(ORV_ObserveRequests(nullptr, this), 100);
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(TakeReports(), Lines());
  EXPECT_EQ(rig().WireLog().size(), 1U);
}

TEST_F(Diagnostics, ALaterObserverTakesThePlaceOfTheEarlier) {
  PlugMixers(1);
  Observe();
  int calls = 0;
  EXPECT_EQ(
      ORV_ObserveRequests(
          [](const ORVRequestReport *, void *context) { ++*static_cast<int *>(context); }, &calls),
      100);
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(TakeReports(), Lines());
}

TEST_F(Diagnostics, TheRequestsOfAnotherThreadAreItsOwn) {
  PlugMixers(1);
  Observe();
  std::thread([] { EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100); }).join();
  EXPECT_EQ(TakeReports(), Lines());
  std::thread([&] {
    Observe();
    EXPECT_EQ(ORV_SetBoostLevelIndex(11, 1), 100);
  }).join();
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0200 done"});
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 2), 100);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0100 done"});
}

// --- What an observer may do ---------------------------------------------------------------------

TEST_F(Diagnostics, RequestsThatTheObserverCausesAreMadeAndNotReported) {
  PlugMixers(1);
  rig().SetCertifyLevel(1, 7);
  std::uint32_t level = 0;
  WhileReported([&] { EXPECT_EQ(ORV_GetMixerCertifyLevel(11, &level), 100); });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(level, 7U);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0300 done"});
  EXPECT_EQ(rig().WireLog(),
            (Lines{Sent(1, "0300", "8003"), Asked(1, "8007", 4, "4 bytes 00 00 00 07")}));
}

TEST_F(Diagnostics, AnObserverThatEndsItselfHearsNoMoreOfTheSameCall) {
  PlugMixers(2);
  WhileReported([] { EXPECT_EQ(ORV_ObserveRequests(nullptr, nullptr), 100); });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0300 done"});
  EXPECT_EQ(rig().WireLog().size(), 2U);
}

TEST_F(Diagnostics, AnObserverThatPutsAnotherInItsPlaceIsFollowedByThat) {
  PlugMixers(3);
  int calls = 0;
  WhileReported([&] {
    ORV_ObserveRequests(
        [](const ORVRequestReport *, void *context) { ++*static_cast<int *>(context); }, &calls);
    std::uint32_t level = 0;
    EXPECT_EQ(ORV_GetMixerCertifyLevel(11, &level), 100);
  });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0300 done"});
  EXPECT_EQ(calls, 2);
}

// --- Where the settings are ----------------------------------------------------------------------

class SettingsPath : public Acceptance {
 protected:
  static std::string PathOf(ProductId product) {
    ORVStringRef path = nullptr;
    EXPECT_EQ(ORV_GetSettingsFilePath(product, &path), 100);
    return CharactersOf(path);
  }
};

TEST_F(SettingsPath, IsThatOfTheModelWhetherTheFileIsThereOrNot) {
  const std::map<ProductId, std::string> names = {{0, "TRX-Arden"},  {1, "TRX-VOLT"},
                                                  {5, "TRX-HALDEN"}, {6, "TRX-LUMEN"},
                                                  {8, "TRX-MORROW"}, {11, "TRX-SELVA"}};
  for (const auto &[product, name] : names) EXPECT_EQ(PathOf(product), rig().SettingsFile(name));
  EXPECT_EQ(LibraryListing(), std::vector<std::string>());
  EXPECT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  EXPECT_TRUE(std::filesystem::exists(PathOf(11)));
}

TEST_F(SettingsPath, IsRefusedForAModelWithoutSettingsAndForANullPointer) {
  for (const ProductId product : kAllProducts) {
    if (product <= 1 || product == 5 || product == 6 || product == 8 || product == 11) continue;
    ORVStringRef path = TextOf("untouched");
    EXPECT_EQ(ORV_GetSettingsFilePath(product, &path), 102) << product;
    EXPECT_EQ(path, TextOf("untouched"));
  }
  for (const ProductId product : kAllProducts) {
    EXPECT_EQ(ORV_GetSettingsFilePath(product, nullptr), 102) << product;
  }
  ExpectNothingHappened();
}

TEST_F(SettingsPath, IsTheSameTextEachTime) {
  ORVStringRef first = nullptr;
  ORVStringRef second = nullptr;
  EXPECT_EQ(ORV_GetSettingsFilePath(11, &first), 100);
  EXPECT_EQ(ORV_GetSettingsFilePath(11, &second), 100);
  EXPECT_EQ(first, second);
}

}  // namespace
}  // namespace trxtest
