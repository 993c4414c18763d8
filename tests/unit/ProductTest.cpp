// The models: their numbers, their names, and the functions that serve them.
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Product.h"

namespace orv {
namespace {

using testing::ElementsAre;

constexpr ProductId kUntouched = 4711;

// The library's result for a name; kUntouched when it returns 102 and writes nothing.
ProductId ProductIdOf(const char *name) {
  ProductId productId = kUntouched;
  const StatusCode status = ORV_GetProductId(name, &productId);
  EXPECT_EQ(status, productId == kUntouched ? 102 : 100) << name;
  return productId;
}

TEST(ProductIdOfAName, TheProductIsThatOfEachModel) {
  EXPECT_EQ(ProductIdOf("TRX-ARDEN"), 0U);
  EXPECT_EQ(ProductIdOf("TRX-Arden"), 0U);
  EXPECT_EQ(ProductIdOf("TRX-VOLT"), 1U);
  EXPECT_EQ(ProductIdOf("TRX-BRISK"), 2U);
  EXPECT_EQ(ProductIdOf("TRC-FENNO"), 3U);
  EXPECT_EQ(ProductIdOf("TRX-CIRRUS"), 4U);
  EXPECT_EQ(ProductIdOf("TRX-HALDEN"), 5U);
  EXPECT_EQ(ProductIdOf("TRX-LUMEN"), 6U);
  EXPECT_EQ(ProductIdOf("TRX-MORROW"), 8U);
  EXPECT_EQ(ProductIdOf("TRX-SELVA"), 11U);
}

TEST(ProductIdOfAName, TheProductTakesNoNoticeOfCaseAndSurroundings) {
  EXPECT_EQ(ProductIdOf("trx-selva"), 11U);
  EXPECT_EQ(ProductIdOf("tRx-SeLvA"), 11U);
  EXPECT_EQ(ProductIdOf("the TRX-VOLT at the door"), 1U);
  EXPECT_EQ(ProductIdOf("\u00C4\u00D6TRX-LUMEN\u00DC"), 6U);
  EXPECT_EQ(ProductIdOf("TRXTRX-MORROW"), 8U);
  EXPECT_EQ(ProductIdOf("TRX-TRX-HALDEN2"), 5U);
}

TEST(ProductIdOfAName, TheProductIsTheOneTestedFirstWhenThereAreTwo) {
  EXPECT_EQ(ProductIdOf("TRX-SELVA TRX-ARDEN"), 0U);
  EXPECT_EQ(ProductIdOf("TRX-SELVA TRX-MORROW"), 8U);
  EXPECT_EQ(ProductIdOf("TRX-CIRRUS TRC-FENNO"), 3U);
  EXPECT_EQ(ProductIdOf("TRX-LUMEN TRX-HALDEN TRX-BRISK"), 2U);
}

TEST(ProductIdOfAName, TheProductIsNoneForAnyOther) {
  for (const char *name : {"", "TRX", "TRX-", "TRX-SELV", "TRX SELVA", "TRX_SELVA", "RX-SELVA",
                           "TRX-FENNO", "TRC-SELVA", "SELVA", "TRX-SEL\u0301VA"}) {
    EXPECT_EQ(ProductIdOf(name), kUntouched) << name;
  }
}

TEST(ProductIdOfAName, TheProductNeedsANameAndAResult) {
  ProductId productId = kUntouched;
  EXPECT_EQ(ORV_GetProductId(nullptr, &productId), 102);
  EXPECT_EQ(productId, kUntouched);
  EXPECT_EQ(ORV_GetProductId("TRX-SELVA", nullptr), 102);
  EXPECT_EQ(ORV_GetProductId(nullptr, nullptr), 102);
}

TEST(ModelDisplayName, TheDisplayNameIsThatOfEachServedModel) {
  EXPECT_STREQ(ModelDisplayName(0), "TRX-Arden");
  EXPECT_STREQ(ModelDisplayName(1), "TRX-VOLT");
  EXPECT_STREQ(ModelDisplayName(5), "TRX-HALDEN");
  EXPECT_STREQ(ModelDisplayName(6), "TRX-LUMEN");
  EXPECT_STREQ(ModelDisplayName(8), "TRX-MORROW");
  EXPECT_STREQ(ModelDisplayName(11), "TRX-SELVA");
}

TEST(ModelDisplayName, TheDisplayNameIsNoneForAnyOther) {
  for (const ProductId productId : {2U, 3U, 4U, 7U, 9U, 10U, 12U, 43U, 0x80000000U, 0xFFFFFFFFU}) {
    EXPECT_EQ(ModelDisplayName(productId), nullptr) << productId;
  }
}

// The numbers in a set, among those up to 12 and some far beyond.
std::vector<ProductId> Accepted(const ProductSet &set) {
  std::vector<ProductId> accepted;
  for (ProductId productId = 0; productId <= 12; ++productId) {
    if (set.Contains(productId)) accepted.push_back(productId);
  }
  for (const ProductId productId : {32U, 33U, 43U, 0x80000000U, 0x8000000BU, 0xFFFFFFFFU}) {
    if (set.Contains(productId)) accepted.push_back(productId);
  }
  return accepted;
}

TEST(ProductSet, TheSetOfEveryServedModelHoldsSix) {
  EXPECT_THAT(Accepted(kEveryServedModel), ElementsAre(0U, 1U, 5U, 6U, 8U, 11U));
}

TEST(ProductSet, TheSetOfVoltHoldsOne) { EXPECT_THAT(Accepted(kVoltOnly), ElementsAre(1U)); }

TEST(ProductSet, TheSetOfNoModelHoldsNone) { EXPECT_THAT(Accepted(kNoModel), ElementsAre()); }

}  // namespace
}  // namespace orv
