#include "Folders.h"

#import "FoundationCall.h"

namespace orv {

std::optional<std::string> LibraryFolder() {
  return UnlessRaised<std::optional<std::string>>(std::nullopt, [] {
    NSArray *const folders =
        NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES);
    return CharactersOf([folders count] > 0 ? [folders objectAtIndex:0] : nil);
  });
}

}  // namespace orv
