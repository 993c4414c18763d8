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
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 done", "unit 2 write 8003 0300 done",
                                  "unit 3 write 8003 0300 done"}));
}

TEST_F(Diagnostics, AReportBeginsWithItsSizeAndSaysWhereTheUnitIs) {
  const UnitPlace place = rig_->PlaceOf(rig_->PlugMixer());
  ORVRequestReport report = {};
  ORV_ObserveRequests([](const ORVRequestReport *ended,
                         void *context) { *static_cast<ORVRequestReport *>(context) = *ended; },
                      &report);
  EXPECT_EQ(ORV_SetMidiChannelIndex(kVolt, 15), kSuccess);
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
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 0, 1), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8016 0101 done", "unit 2 write 8016 0101 done",
                                  "unit 1 read 8002 0000 done", "unit 2 read 8002 0000 done"}));
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 1, 7), kSuccess);
  EXPECT_EQ(TakeReports().at(0), "unit 1 write 8002 020a done");
}

TEST_F(Diagnostics, EachQueryReportsWhatItReads) {
  PlugMixers(1);
  Observe();
  std::uint32_t number = 0;
  EXPECT_EQ(ORV_GetFirmwareVersionIndex(kSelva, &number), kSuccess);
  EXPECT_EQ(ORV_GetMixerInputSelectorStatus(kSelva, 0, &number), kSuccess);
  EXPECT_EQ(ORV_GetMixerSeratoActiveStatus(kSelva, &number), kSuccess);
  EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &number), kSuccess);
  ORVStringRef text = nullptr;
  ORV_GetWarningTextForSetUSBAudioInput(kSelva, 0, kSuccessWithWarning, 0, &text);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 read 8001 0000 done", "unit 1 read 8002 0000 done",
                                  "unit 1 read 8004 0000 done", "unit 1 read 8007 0000 done",
                                  "unit 1 read 8006 0000 done"}));
}

TEST_F(Diagnostics, SendingAgainIsReportedToo) {
  PutSettings("TRX-SELVA", "<key>MaxLevel</key><integer>1</integer>");
  PlugMixers(1);
  Observe();
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(kSelva), kSuccess);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0200 done"});
}

TEST_F(Diagnostics, CallsWithoutARequestReportNothing) {
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  PlugMixers(1);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 4), kBadArgument);
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kConnected);
  std::int32_t index = 0;
  EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(kSelva, &index), kSuccess);
  std::uint32_t level = 0;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(kHalden, &level), kSuccess);
  EXPECT_EQ(TakeReports(), Lines());
}

// --- Outcomes ------------------------------------------------------------------------------------

TEST_F(Diagnostics, AUnitThatRefusesIsTold) {
  PlugMixers(2);
  rig_->SetFault(1, UnitFault::kStalls);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  std::uint32_t number = 0;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &number), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 refused", "unit 2 write 8003 0300 done",
                                  "unit 1 read 8007 0000 refused", "unit 2 read 8007 0000 done"}));
}

TEST_F(Diagnostics, AUnitThatStaysSilentIsTold) {
  PlugMixers(2);
  rig_->SetFault(1, UnitFault::kStaysSilent);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(),
            (Lines{"unit 1 write 8003 0300 no answer", "unit 2 write 8003 0300 done"}));
}

TEST_F(Diagnostics, AUnitThatVanishesInItsRequestIsTold) {
  PlugMixers(2);
  rig_->SetFault(2, UnitFault::kVanishes);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 done", "unit 2 write 8003 0300 gone"}));
}

TEST_F(Diagnostics, AShortReplyIsTold) {
  PlugMixers(1);
  rig_->SetShortReplies(1, 3);
  Observe();
  std::uint32_t number = 0;
  EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &number), kSuccess);
  EXPECT_EQ(ORV_GetFirmwareVersionIndex(kSelva, &number), kSuccess);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 read 8007 0000 short reply", "unit 1 read 8001 0000 done",
                                  "unit 1 write 8003 0300 done"}));
}

TEST_F(Diagnostics, AUnitWithFewerChannelsThanAreAskedForAnswersShortly) {
  PlugMixers(1);
  rig_->SetChannels(1, 2);
  Observe();
  std::uint32_t position = 0;
  EXPECT_EQ(ORV_GetMixerInputSelectorStatus(kSelva, 0, &position), kSuccess);
  EXPECT_EQ(ORV_GetMixerInputSelectorStatus(kVolt, 0, &position), kSuccess);
  EXPECT_EQ(TakeReports(),
            (Lines{"unit 1 read 8002 0000 short reply", "unit 1 read 8002 0000 done"}));
}

// --- Observing changes nothing else --------------------------------------------------------------

TEST_F(Diagnostics, AnObserverChangesNoResultNoRequestAndNoOrder) {
  PlugMixers(3);
  rig_->SetFault(2, UnitFault::kStalls);
  rig_->SetSelector(1, 0, 6);
  std::vector<Lines> wires;
  for (const bool isObserved : {false, true}) {
    if (isObserved) Observe();
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccessWithWarning);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 2), kSuccess);
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
    EXPECT_EQ(rig_->TakeAnnouncements(3).size(), 3U);
    wires.push_back(rig_->WireLog());
  }
  EXPECT_FALSE(wires[0].empty());
  EXPECT_EQ(wires[0], wires[1]);
}

TEST_F(Diagnostics, TheObserverIsCalledBehindItsRequestAndBeforeTheNext) {
  PlugMixers(2);
  std::vector<std::size_t> requests;
  Lines listing;
  WhileReported([&] {
    requests.push_back(rig_->WireLog().size());
    listing = LibraryListing();
  });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(requests, (std::vector<std::size_t>{1, 2}));
  EXPECT_EQ(listing, Lines()) << "stored before it was sent";
}

// --- Threads and lifetime of an observer ---------------------------------------------------------

TEST_F(Diagnostics, ANullObserverEndsIt) {
  PlugMixers(1);
  Observe();
  EXPECT_EQ(ORV_ObserveRequests(nullptr, this), kSuccess);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), Lines());
  EXPECT_EQ(rig_->WireLog().size(), 1U);
}

TEST_F(Diagnostics, ALaterObserverTakesThePlaceOfTheEarlier) {
  PlugMixers(1);
  Observe();
  int calls = 0;
  EXPECT_EQ(
      ORV_ObserveRequests(
          [](const ORVRequestReport *, void *context) { ++*static_cast<int *>(context); }, &calls),
      kSuccess);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(TakeReports(), Lines());
}

TEST_F(Diagnostics, TheRequestsOfAnotherThreadAreItsOwn) {
  PlugMixers(1);
  Observe();
  std::thread([] { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess); }).join();
  EXPECT_EQ(TakeReports(), Lines());
  std::thread([&] {
    Observe();
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  }).join();
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0200 done"});
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0100 done"});
}

// --- What an observer may do ---------------------------------------------------------------------

TEST_F(Diagnostics, RequestsThatTheObserverCausesAreMadeAndNotReported) {
  PlugMixers(1);
  rig_->SetCertifyLevel(1, 7);
  std::uint32_t level = 0;
  WhileReported([&] { EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &level), kSuccess); });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(level, 7U);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0300 done"});
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Sent(1, "0300", "8003"), Asked(1, "8007", 4, "4 bytes 00 00 00 07")}));
}

TEST_F(Diagnostics, AnObserverThatEndsItselfHearsNoMoreOfTheSameCall) {
  PlugMixers(2);
  WhileReported([] { EXPECT_EQ(ORV_ObserveRequests(nullptr, nullptr), kSuccess); });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0300 done"});
  EXPECT_EQ(rig_->WireLog().size(), 2U);
}

TEST_F(Diagnostics, AnObserverThatPutsAnotherInItsPlaceIsFollowedByThat) {
  PlugMixers(3);
  int calls = 0;
  WhileReported([&] {
    ORV_ObserveRequests(
        [](const ORVRequestReport *, void *context) { ++*static_cast<int *>(context); }, &calls);
    std::uint32_t level = 0;
    EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &level), kSuccess);
  });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), Lines{"unit 1 write 8003 0300 done"});
  EXPECT_EQ(calls, 2);
}

// --- Where the settings are ----------------------------------------------------------------------

class SettingsPath : public Acceptance {
 protected:
  static std::string PathOf(ProductId product) {
    ORVStringRef path = nullptr;
    EXPECT_EQ(ORV_GetSettingsFilePath(product, &path), kSuccess);
    return CharactersOf(path);
  }
};

TEST_F(SettingsPath, ASettingsPathIsThatOfTheModelWhetherTheFileIsThereOrNot) {
  const std::map<ProductId, std::string> names = {{kArden, "TRX-Arden"},   {kVolt, "TRX-VOLT"},
                                                  {kHalden, "TRX-HALDEN"}, {kLumen, "TRX-LUMEN"},
                                                  {kMorrow, "TRX-MORROW"}, {kSelva, "TRX-SELVA"}};
  for (const auto &[product, name] : names) EXPECT_EQ(PathOf(product), rig_->SettingsFile(name));
  EXPECT_EQ(LibraryListing(), std::vector<std::string>());
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_TRUE(std::filesystem::exists(PathOf(11)));
}

TEST_F(SettingsPath, ASettingsPathIsRefusedForAModelWithoutSettingsAndForANullPointer) {
  for (const ProductId product : kAllProducts) {
    if (product <= kVolt || product == kHalden || product == kLumen || product == kMorrow ||
        product == kSelva)
      continue;
    ORVStringRef path = TextOf("untouched");
    EXPECT_EQ(ORV_GetSettingsFilePath(product, &path), kBadArgument) << product;
    EXPECT_EQ(path, TextOf("untouched"));
  }
  for (const ProductId product : kAllProducts) {
    EXPECT_EQ(ORV_GetSettingsFilePath(product, nullptr), kBadArgument) << product;
  }
  ExpectNothingHappened();
}

TEST_F(SettingsPath, ASettingsPathIsTheSameTextEachTime) {
  ORVStringRef first = nullptr;
  ORVStringRef second = nullptr;
  EXPECT_EQ(ORV_GetSettingsFilePath(kSelva, &first), kSuccess);
  EXPECT_EQ(ORV_GetSettingsFilePath(kSelva, &second), kSuccess);
  EXPECT_EQ(first, second);
}

}  // namespace
}  // namespace trxtest
