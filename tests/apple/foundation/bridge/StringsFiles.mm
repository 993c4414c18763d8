// On macOS a strings file is a property list in any encoding. GNUstep's bundles read the text form
// only.
#import <Foundation/Foundation.h>
#include <objc/runtime.h>

@interface NSString (StringsFilesAsOnMacOS)
- (NSDictionary *)textFormOfStringsFile;
@end

@implementation NSString (StringsFilesAsOnMacOS)

// Changes places with propertyListFromStringsFileFormat.
- (NSDictionary *)textFormOfStringsFile {
  return [self hasPrefix:@"<?xml"] ? [self propertyList] : [self textFormOfStringsFile];
}

+ (void)load {
  method_exchangeImplementations(
      class_getInstanceMethod([NSString class], @selector(propertyListFromStringsFileFormat)),
      class_getInstanceMethod([NSString class], @selector(textFormOfStringsFile)));
}

@end
