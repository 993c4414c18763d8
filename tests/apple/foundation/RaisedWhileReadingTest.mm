// Foundation raises an exception while a file is read, as it does when memory runs out.
#include <string>

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>
#include <objc/runtime.h>

#include "PrivateUser.h"
#include "SettingsFile.h"
#include "TemporaryFolder.h"

// Changes places with the operation of the same name without "raising".
@interface NSDictionary (Raising)
@end

@implementation NSDictionary (Raising)

+ (id)raisingDictionaryWithContentsOfFile:(NSString *)path {
  [NSException raise:NSMallocException format:@"no memory for %@", path];
  return nil;
}

@end

namespace orv {
namespace {

using trxtest::ReadBytes;
using trxtest::WriteBytes;

class RaisedWhileReading : public testing::Test {
 protected:
  RaisedWhileReading() {
    WriteBytes(path_, "what may well be in order");
    ChangePlaces();
  }
  ~RaisedWhileReading() override { ChangePlaces(); }

  static void ChangePlaces() {
    Class dictionary = [NSDictionary class];
    method_exchangeImplementations(
        class_getClassMethod(dictionary, @selector(dictionaryWithContentsOfFile:)),
        class_getClassMethod(dictionary, @selector(raisingDictionaryWithContentsOfFile:)));
  }

  const std::string path_ =
      trxtest::LibraryFolderOfUser() + "/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist";
};

TEST_F(RaisedWhileReading, ThereIsNothingToRead) { EXPECT_FALSE(PropertyList::ReadFile(path_)); }

TEST_F(RaisedWhileReading, ThereIsNothingToChange) {
  EXPECT_FALSE(PropertyList::ChangeFile(path_, [](PropertyList &) {}));
}

TEST_F(RaisedWhileReading, ASettingDoesNotReplaceTheFile) {
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_EQ(ReadBytes(path_), "what may well be in order");
}

}  // namespace
}  // namespace orv
