#import "SystemRoot.h"

#include <cstdlib>

namespace {

bool IsFixed(NSString *path) {
  for (NSString *folder in
       [NSArray arrayWithObjects:@"/System/", @"/Library/", @"/Applications/", @"/private/", nil]) {
    if ([path hasPrefix:folder]) return true;
  }
  return false;
}

}  // namespace

NSString *PathBelowSystemRoot(NSString *path) {
  const char *const root = std::getenv("TRX_SYSTEM_ROOT");
  if (root == nullptr || !IsFixed(path)) return path;
  return [[NSString stringWithUTF8String:root] stringByAppendingString:path];
}

@implementation NSBundle (BelowSystemRoot)

+ (NSBundle *)bundleWithPath:(NSString *)path {
  return [[[self alloc] initWithPath:PathBelowSystemRoot(path)] autorelease];
}

@end
