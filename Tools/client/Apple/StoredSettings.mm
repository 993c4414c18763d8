#include "StoredSettings.h"

#import "FoundationStrings.h"

namespace client {
namespace {

NSString *PathOf(const std::string &file) { return [NSString stringWithUTF8String:file.c_str()]; }

NSDictionary *ContentsOf(const std::string &file) {
  NSString *const path = PathOf(file);
  return path == nil ? nil : [NSDictionary dictionaryWithContentsOfFile:path];
}

std::vector<std::string> NumberKeysOf(NSDictionary *dictionary) {
  std::vector<std::string> keys;
  NSEnumerator *const enumerator = [dictionary keyEnumerator];
  for (id key = [enumerator nextObject]; key != nil; key = [enumerator nextObject]) {
    id value = [dictionary objectForKey:key];
    const bool isNumber =
        [value isKindOfClass:[NSNumber class]] || [value isKindOfClass:[NSString class]];
    if (isNumber) keys.push_back(CharactersOf([key description]).value_or(""));
  }
  return keys;
}

}  // namespace

FileState StateOfFile(const std::string &file) {
  const AutoreleasePool pool;
  NSFileManager *const files = [NSFileManager defaultManager];
  BOOL isFolder = NO;
  if (![files fileExistsAtPath:PathOf(file) isDirectory:&isFolder]) return {};
  if (isFolder) return {true, FileProblem::kNoFile};
  if (![files isReadableFileAtPath:PathOf(file)]) return {true, FileProblem::kUnreadable};
  NSDictionary *const contents = ContentsOf(file);
  if (contents == nil) return {true, FileProblem::kNoList};
  return {true, FileProblem::kNone, 0, NumberKeysOf(contents)};
}

}  // namespace client
