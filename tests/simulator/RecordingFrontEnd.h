#pragma once

#include <string>
#include <vector>

#include "Model/Desk.h"

/// A front end that writes down what the desk asks of it. Device numbers count up from 2.
class RecordingFrontEnd : public trxsim::FrontEnd {
 public:
  trxsim::BusAddress Plug(int number, const trxsim::UsbIdentity &identity,
                          trxsim::OpenFault fault) override {
    if (isFull) throw trxsim::DeskError("the bus is full");
    calls.push_back("plug " + std::to_string(number) +
                    (fault == trxsim::OpenFault::kNone ? "" : " faulty"));
    identities.push_back(identity);
    return {1, nextDevice++};
  }

  void Unplug(int number) override { calls.push_back("unplug " + std::to_string(number)); }

  void SetOpenFault(int number, trxsim::OpenFault fault) override {
    calls.push_back("fault " + std::to_string(number) + ' ' +
                    std::to_string(static_cast<int>(fault)));
  }

  std::vector<std::string> calls;
  std::vector<trxsim::UsbIdentity> identities;
  int nextDevice = 2;
  bool isFull = false;
};
