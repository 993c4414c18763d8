// Which entries of the bus are units, and where they are.
#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "BusWalk.h"
#include "MockBus.h"
#include "USBDevice.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Address = std::pair<int, int>;

class BusWalk : public testing::Test {
 protected:
  static std::vector<Address> Units() {
    std::vector<Address> addresses;
    for (const UnitAddress &unit : LookAtBus()) addresses.emplace_back(unit.bus, unit.device);
    BusLook look;
    EXPECT_EQ(CheckUSBAudio(11, &look), static_cast<std::int32_t>(addresses.size()));
    return addresses;
  }

  MockBus bus_;
};

std::string Vendor() {
  return MixerSummary(1, 1).substr(MixerSummary(1, 1).find("PRODUCT=") + 8, 4);
}

TEST_F(BusWalk, TheBusWalkFindsNothingOnAnEmptyBus) { EXPECT_THAT(Units(), IsEmpty()); }

TEST_F(BusWalk, TheBusWalkFindsNothingWhereThereIsNoBus) {
  bus_.RemoveList();
  EXPECT_THAT(Units(), IsEmpty());
}

TEST_F(BusWalk, TheBusWalkFindsEveryMixer) {
  bus_.PlugMixer("1-2", 1, 5);
  bus_.PlugMixer("1-2.4", 1, 12);
  bus_.PlugMixer("3-1.1.4", 3, 127);
  EXPECT_THAT(Units(), ElementsAre(Address(1, 5), Address(1, 12), Address(3, 127)));
}

TEST_F(BusWalk, TheBusWalkGivesTheOrderOfTheBusWhateverTheOrderOfTheFolder) {
  bus_.PlugMixer("10-1", 10, 2);
  bus_.PlugMixer("2-1", 2, 10);
  bus_.PlugMixer("2-3", 2, 9);
  bus_.PlugMixer("1-9", 1, 100);
  EXPECT_THAT(Units(), ElementsAre(Address(1, 100), Address(2, 9), Address(2, 10), Address(10, 2)));
}

TEST_F(BusWalk, TheBusWalkLooksAfreshEachTime) {
  bus_.PlugMixer("1-2", 1, 5);
  EXPECT_THAT(Units(), ElementsAre(Address(1, 5)));
  bus_.PlugMixer("1-3", 1, 6);
  EXPECT_THAT(Units(), ElementsAre(Address(1, 5), Address(1, 6)));
  bus_.Unlist("1-2");
  EXPECT_THAT(Units(), ElementsAre(Address(1, 6)));
}

TEST_F(BusWalk, TheBusWalkFindsTheSameForEveryModel) {
  bus_.PlugMixer("1-2", 1, 5);
  for (const ProductId productId : {0U, 1U, 2U, 11U, 12U, 0xFFFFFFFFU}) {
    BusLook look;
    EXPECT_EQ(CheckUSBAudio(productId, &look), 1);
  }
}

TEST_F(BusWalk, TheBusWalkPassesOverDevicesOfOtherMakersAndModels) {
  bus_.PlugMixer("1-2", 1, 5);
  const std::string vendor = Vendor();
  int port = 10;
  for (const std::string &product :
       {vendor + "/1e/100", vendor + "/20/100", vendor + "/1f0/100", vendor + "/f/100",
        vendor + "/11f/100", vendor + "/0/0", std::string("1/1f/100"), vendor + "0/1f/100",
        "1" + vendor + "/1f/100", vendor.substr(1) + "/1f/100", std::string("1d6b/2/601"),
        "1f/" + vendor + "/100"}) {
    bus_.List("1-" + std::to_string(port), Summary(product, "001", "0" + std::to_string(port)));
    ++port;
  }
  EXPECT_THAT(Units(), ElementsAre(Address(1, 5)));
}

TEST_F(BusWalk, TheBusWalkPassesOverRootHubsAndInterfacesWhateverTheirIds) {
  bus_.PlugMixer("1-2", 1, 5);
  bus_.List("usb1", MixerSummary(1, 1));
  bus_.List("usb10", MixerSummary(10, 1));
  bus_.List("1-2:1.0", MixerSummary(1, 5));
  bus_.List("1-0:1.0", MixerSummary(1, 1));
  bus_.List("1-2.4:1.3", MixerSummary(1, 6));
  EXPECT_THAT(Units(), ElementsAre(Address(1, 5)));
}

TEST_F(BusWalk, TheBusWalkFindsMixersAmongMoreEntriesThanTheKernelHandsOutAtOnce) {
  for (int port = 1; port <= 400; ++port) bus_.ListDangling("2-1:1." + std::to_string(port));
  for (unsigned device = 2; device <= 31; ++device) {
    bus_.PlugMixer("1-" + std::to_string(device), 1, device);
  }
  EXPECT_EQ(Units().size(), 30U);
}

TEST_F(BusWalk, TheBusWalkPassesOverEntriesThatAreGone) {
  bus_.ListDangling("1-1");
  bus_.PlugMixer("1-2", 1, 5);
  bus_.ListDangling("1-3");
  EXPECT_THAT(Units(), ElementsAre(Address(1, 5)));
}

TEST_F(BusWalk, TheBusWalkPassesOverEntriesWithoutASummary) {
  bus_.ListWithoutSummary("1-1");
  bus_.PlugMixer("1-2", 1, 5);
  EXPECT_THAT(Units(), ElementsAre(Address(1, 5)));
}

TEST_F(BusWalk, TheBusWalkPassesOverSummariesThatMakeNoSense) {
  bus_.PlugMixer("1-2", 1, 5);
  const std::string mixer = Vendor() + "/1f/100";
  const std::vector<std::string> summaries = {
      "",
      "\n",
      "\n\n\n",
      "=",
      "PRODUCT",
      "PRODUCT=",
      "PRODUCT=\nBUSNUM=001\nDEVNUM=009\n",
      "BUSNUM=001\nDEVNUM=009\n",
      "PRODUCT=" + mixer,
      "PRODUCT=" + mixer + "\nBUSNUM=001\n",
      "PRODUCT=" + mixer + "\nDEVNUM=009\n",
      "PRODUCT=" + mixer + "\nBUSNUM=\nDEVNUM=\n",
      "XPRODUCT=" + mixer + "\nBUSNUM=001\nDEVNUM=009\n",
      "PRODUCTS=" + mixer + "\nBUSNUM=001\nDEVNUM=009\n",
      "product=" + mixer + "\nBUSNUM=001\nDEVNUM=009\n",
      "PRODUCT =" + mixer + "\nBUSNUM=001\nDEVNUM=009\n",
      "PRODUCT=" + mixer + "BUSNUM=001\nDEVNUM=009\n",
      Summary("garbage", "001", "009"),
      Summary("////", "001", "009"),
      Summary(" " + mixer, "001", "009"),
      Summary("-" + mixer, "001", "009"),
      Summary("0x" + mixer, "001", "009"),
      Summary(Vendor() + ":1f:100", "001", "009"),
      Summary(Vendor(), "001", "009"),
      Summary(Vendor() + "/", "001", "009"),
      Summary(Vendor() + "/x", "001", "009"),
      Summary("ffffffffffffffffffffff/1f/100", "001", "009"),
      Summary(mixer, "one", "009"),
      Summary(mixer, "001", "nine"),
      Summary(mixer, "-1", "009"),
      Summary(mixer, "001", "-9"),
      Summary(mixer, "0x1", "009"),
      Summary(mixer, "001", "9x"),
      Summary(mixer, "65536", "009"),
      Summary(mixer, "001", "99999999999999999999"),
      std::string("PRODUCT=\0\0\0", 11),
      std::string(500, '\0'),
      std::string(1024, '\n'),
      std::string(5000, 'P'),
  };
  for (const std::string &summary : summaries) {
    bus_.List("1-9", summary);
    EXPECT_THAT(Units(), ElementsAre(Address(1, 5))) << '"' << summary << '"';
    bus_.Unlist("1-9");
  }
}

TEST_F(BusWalk, TheBusWalkReadsASummaryInAnyOrderAndWithoutALastLineEnd) {
  bus_.List("1-2", "DEVNUM=009\nBUSNUM=002\nANYTHING=else\nPRODUCT=" + Vendor() + "/1f/100");
  bus_.List("1-3", "PRODUCT=" + Vendor() + "/1f/100\nBUSNUM=3\nDEVNUM=10");
  EXPECT_THAT(Units(), ElementsAre(Address(2, 9), Address(3, 10)));
}

TEST_F(BusWalk, TheBusWalkFindsAMixerBehindManyOtherDevices) {
  for (int i = 1; i <= 200; ++i) {
    bus_.List("2-" + std::to_string(i), Summary("1d6b/2/601", "002", std::to_string(i)));
  }
  bus_.PlugMixer("9-9", 9, 9);
  EXPECT_THAT(Units(), ElementsAre(Address(9, 9)));
}

// A number that is only partly read must not count as another number.
TEST_F(BusWalk, TheBusWalkNeverTakesTheBeginningOfANumberForTheWhole) {
  const std::string summary = "PRODUCT=" + Vendor() + "/1f/100\nBUSNUM=001\nFILL=";
  for (std::size_t size = 900; size < 1100; ++size) {
    std::string filled = summary;
    filled.resize(size, 'x');
    bus_.List("1-2", filled + "\nDEVNUM=123\n");
    const auto units = Units();
    EXPECT_TRUE(units.empty() || units == std::vector<Address>({Address(1, 123)})) << size;
    bus_.Unlist("1-2");
  }
}

TEST(UnitAddress, AnAddressIsOrderedByBusThenDevice) {
  EXPECT_LT((UnitAddress{1, 200}), (UnitAddress{2, 1}));
  EXPECT_LT((UnitAddress{2, 9}), (UnitAddress{2, 10}));
  EXPECT_LT((UnitAddress{2, 127}), (UnitAddress{10, 1}));
  EXPECT_EQ((UnitAddress{2, 9}), (UnitAddress{2, 9}));
}

}  // namespace
}  // namespace orv
