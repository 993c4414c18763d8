#include "SettingsFolder.h"

#import "FoundationStrings.h"

namespace trxctl {
namespace {

NSString *PathOf(const std::string &file) { return [NSString stringWithUTF8String:file.c_str()]; }

NSDictionary *ContentsOf(const std::string &file) {
  NSString *const path = PathOf(file);
  return path == nil ? nil : [NSDictionary dictionaryWithContentsOfFile:path];
}

}  // namespace

std::optional<std::string> PreferencesFolder() {
  const AutoreleasePool pool;
  NSArray *const folders =
      NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES);
  if ([folders count] == 0) return std::nullopt;
  return CharactersOf([[folders objectAtIndex:0] stringByAppendingPathComponent:@"Preferences"]);
}

bool AnswersFromFile(const Model &model) {
  const AutoreleasePool pool;
  return [ContentsOf(SettingsFile(model)) count] != 0;
}

std::optional<std::string> ProblemOfSettingsFile(const std::string &file) {
  const AutoreleasePool pool;
  NSFileManager *const files = [NSFileManager defaultManager];
  BOOL is_folder = NO;
  if (![files fileExistsAtPath:PathOf(file) isDirectory:&is_folder]) return std::nullopt;
  if (is_folder) return "is no file";
  if (![files isReadableFileAtPath:PathOf(file)]) return "cannot be read";
  if (ContentsOf(file) == nil) return "is no property list with a dictionary in it";
  return std::nullopt;
}

}  // namespace trxctl
