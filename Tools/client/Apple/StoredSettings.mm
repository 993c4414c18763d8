#include "StoredSettings.h"

#import "FoundationStrings.h"

namespace client {
namespace {

NSString *PathOf(const std::string &file) { return [NSString stringWithUTF8String:file.c_str()]; }

NSDictionary *ContentsOf(const std::string &file) {
  NSString *const path = PathOf(file);
  return path == nil ? nil : [NSDictionary dictionaryWithContentsOfFile:path];
}

}  // namespace

std::optional<std::string> SettingsFolder() {
  const AutoreleasePool pool;
  NSArray *const folders =
      NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES);
  if ([folders count] == 0) return std::nullopt;
  return CharactersOf([[folders objectAtIndex:0] stringByAppendingPathComponent:@"Preferences"]);
}

FileState StateOfFile(const std::string &file) {
  const AutoreleasePool pool;
  NSFileManager *const files = [NSFileManager defaultManager];
  BOOL isFolder = NO;
  if (![files fileExistsAtPath:PathOf(file) isDirectory:&isFolder]) return {};
  if (isFolder) return {true, FileProblem::kNoFile};
  if (![files isReadableFileAtPath:PathOf(file)]) return {true, FileProblem::kUnreadable};
  return {true, ContentsOf(file) == nil ? FileProblem::kNoList : FileProblem::kNone};
}

}  // namespace client
