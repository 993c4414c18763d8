// Whether mixers are connected, with the code for macOS.
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "IOKitTest.h"

namespace trxtest {
namespace {

class Connection : public IOKitTest {};

TEST_F(Connection, IsThereWithAMixer) {
  devices().PlugUnrelated();
  devices().PlugMixer();
  devices().PlugMixer();
  EXPECT_EQ(ORV_IsUSBConnection(11), 103);
}

TEST_F(Connection, IsNotThereWithStrangersOnly) {
  devices().PlugUnrelated();
  devices().PlugOtherProductOfTheMaker();
  devices().PlugOtherMakerWithTheSameProduct();
  EXPECT_EQ(ORV_IsUSBConnection(11), 104);
}

TEST_F(Connection, IsNotThereWhenTheRegistryCannotBeAsked) {
  devices().PlugMixer();
  IOKitDouble::SetFaults({.services = kIOReturnError});
  EXPECT_EQ(ORV_IsUSBConnection(11), 104);
}

TEST_F(Connection, IsTheSameForEveryModel) {
  for (const ProductId model : {0U, 3U, 7U, 11U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(ORV_IsUSBConnection(model), 104) << model;
  }
  devices().PlugMixer();
  for (const ProductId model : {0U, 3U, 7U, 11U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(ORV_IsUSBConnection(model), 103) << model;
  }
}

}  // namespace
}  // namespace trxtest
