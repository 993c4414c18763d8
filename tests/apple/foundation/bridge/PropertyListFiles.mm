// On macOS a dictionary is read from a file in any of the property list's encodings and written as
// XML. GNUstep does not read the binary encoding here, raises for some files that it cannot read,
// and writes a text format of its own. Both know all encodings elsewhere, so this only leads there.
#import <Foundation/Foundation.h>

#import "SystemRoot.h"

@implementation NSDictionary (FilesAsOnMacOS)

+ (id)dictionaryWithContentsOfFile:(NSString *)path {
  @try {
    NSString *const found = PathBelowSystemRoot(path);
    BOOL isFolder = YES;
    if (![[NSFileManager defaultManager] fileExistsAtPath:found isDirectory:&isFolder] ||
        isFolder) {
      return nil;
    }
    NSData *const contents = [NSData dataWithContentsOfFile:found];
    if (contents == nil) return nil;
    id root = [NSPropertyListSerialization propertyListWithData:contents
                                                        options:NSPropertyListImmutable
                                                         format:NULL
                                                          error:NULL];
    return [root isKindOfClass:[NSDictionary class]] ? [self dictionaryWithDictionary:root] : nil;
  } @catch (NSException *) {
    return nil;
  }
}

- (BOOL)writeToFile:(NSString *)path atomically:(BOOL)atomically {
  NSData *const xml = [NSPropertyListSerialization dataWithPropertyList:self
                                                                 format:NSPropertyListXMLFormat_v1_0
                                                                options:0
                                                                  error:NULL];
  return xml != nil && [xml writeToFile:path atomically:atomically];
}

@end
