// Whether mixers are connected, with the code for macOS.
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../../support/Constants.h"
#include "IOKitTest.h"

namespace trxtest {
namespace {

class Connection : public IOKitTest {};

TEST_F(Connection, AConnectionIsThereWithAMixer) {
  devices_.PlugUnrelated();
  devices_.PlugMixer();
  devices_.PlugMixer();
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kConnected);
}

TEST_F(Connection, AConnectionIsNotThereWithStrangersOnly) {
  devices_.PlugUnrelated();
  devices_.PlugOtherProductOfTheMaker();
  devices_.PlugOtherMakerWithTheSameProduct();
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kNotConnected);
}

TEST_F(Connection, AConnectionIsNotThereWhenTheRegistryCannotBeAsked) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.services = kIOReturnError});
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kNotConnected);
}

TEST_F(Connection, AConnectionIsTheSameForEveryModel) {
  for (const ProductId model : {kArden, kFenno, 7U, kSelva, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(ORV_IsUSBConnection(model), kNotConnected) << model;
  }
  devices_.PlugMixer();
  for (const ProductId model : {kArden, kFenno, 7U, kSelva, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(ORV_IsUSBConnection(model), kConnected) << model;
  }
}

}  // namespace
}  // namespace trxtest
