// acceptance-host: a process with the library that takes commands on standard input (see
// Commands.h). Between commands it runs its event loop.
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#import <Foundation/Foundation.h>
#include <IOKitDouble.h>
#include <poll.h>
#include <unistd.h>

#include "../../apple/DoubleUse.h"
#include "../../apple/RegistryProtocol.h"
#include "../../apple/RemoteDevices.h"
#include "../Commands.h"
#include "../Rights.h"

namespace trxtest {

// The double refuses to open a device to every process alike.
std::string GiveUpAdmin() { return "done"; }
std::string GiveUpRoot() { return "done"; }

}  // namespace trxtest

namespace {

constexpr NSTimeInterval kTurn = 0.01;

// With nothing to wait for, the run loop returns at once.
void TakeATurn() {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  if (trxtest::IsReceiving()) {
    [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                             beforeDate:[NSDate dateWithTimeIntervalSinceNow:kTurn]];
  }
  [pool release];
}

// The case that started this process fails with it.
int ResultOfUses() {
  const std::vector<std::string> wrong = trxtest::TakeWrongUses();
  for (const std::string &use : wrong) std::cerr << "acceptance-host: " << use << std::endl;
  return wrong.empty() ? 0 : 1;
}

}  // namespace

int main() {
  trxtest::RemoteDevices devices(std::getenv(trxtest::kRegistryVariable));
  trxtest::IOKitDouble::Show(&devices);
  std::string input;
  for (;;) {
    TakeATurn();
    pollfd commands = {STDIN_FILENO, POLLIN, 0};
    if (poll(&commands, 1, 1) <= 0) continue;
    char part[4096];
    const ssize_t size = read(STDIN_FILENO, part, sizeof part);
    if (size <= 0) return ResultOfUses();
    input.append(part, static_cast<std::size_t>(size));
    trxtest::CarryOut(input);
  }
}
