#pragma once

#include <string>

#include <gtest/gtest.h>

#include "CallLines.h"
#include "IOKitDouble.h"
#include "ScriptedDevices.h"

namespace trxtest {

/// A case over the double: no device at the start, no misuse at the end.
class IOKitTest : public testing::Test {
 protected:
  IOKitTest() {
    IOKitDouble::Reset();
    IOKitDouble::Show(&devices_);
  }
  ~IOKitTest() override {
    EXPECT_EQ(IOKitDouble::TakeMisuses(), Lines());
    IOKitDouble::Reset();
  }

  ScriptedDevices devices_;
};

/// What a case of a table is called by: its entry has a name.
template <typename Case>
std::string NameOf(const testing::TestParamInfo<Case> &info) {
  return info.param.name;
}

}  // namespace trxtest
