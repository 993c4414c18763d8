// A process that announces and ends, as a host might. It takes one announcement an argument:
//
//   input=PRODUCT,CHANNEL,INDEX   output=...   boost=PRODUCT,INDEX   midi=...
//   NAME={ ... }                  a notification with that dictionary, in the text form of a
//                                 property list; NAME= has none
#include <array>
#include <cstdlib>
#include <string>

#import <Foundation/Foundation.h>

#include "Setting.h"

namespace {

using namespace orv;

struct Numbers {
  explicit Numbers(const std::string &text) {
    const char *rest = text.c_str();
    for (std::int32_t &number : values) {
      char *end = nullptr;
      number = static_cast<std::int32_t>(std::strtol(rest, &end, 10));
      rest = *end == ',' ? end + 1 : end;
    }
  }
  std::uint32_t Unsigned(std::size_t i) const { return static_cast<std::uint32_t>(values[i]); }

  std::array<std::int32_t, 3> values = {};
};

void Post(const std::string &name, const std::string &dictionary) {
  NSString *const text = [NSString stringWithUTF8String:dictionary.c_str()];
  [[NSDistributedNotificationCenter defaultCenter]
      postNotificationName:[NSString stringWithUTF8String:name.c_str()]
                    object:nil
                  userInfo:dictionary.empty() ? nil : [text propertyList]
        deliverImmediately:YES];
}

void Announce(const std::string &argument) {
  const std::size_t sign = argument.find('=');
  const std::string what = argument.substr(0, sign);
  const std::string rest = argument.substr(sign + 1);
  const Numbers numbers(rest);
  if (what == "input") {
    Announce(inputAudioChange, numbers.Unsigned(0), numbers.values[1], numbers.Unsigned(2));
  } else if (what == "output") {
    Announce(outputAudioChange, numbers.Unsigned(0), numbers.values[1], numbers.Unsigned(2));
  } else if (what == "boost") {
    Announce(boostLevel.change, numbers.Unsigned(0), numbers.Unsigned(1));
  } else if (what == "midi") {
    Announce(midiChannel.change, numbers.Unsigned(0), numbers.Unsigned(1));
  } else {
    Post(what, rest);
  }
}

// GNUstep hands a notification to its daemon in the background; a process that ends at once takes
// it along. Observing waits for the daemon's answer, and with it for all that went before.
void WaitForDaemon() {
  [[NSDistributedNotificationCenter defaultCenter] addObserver:[[[NSObject alloc] init] autorelease]
                                                      selector:@selector(description)
                                                          name:@"the daemon has all"
                                                        object:nil];
}

}  // namespace

int main(int argumentCount, char **arguments) {
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  for (int i = 1; i < argumentCount; ++i) Announce(arguments[i]);
  WaitForDaemon();
  [pool drain];
  return 0;
}
