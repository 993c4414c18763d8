// announcement-observer: sees the notifications between the processes of a user, and posts
// notifications of any form. GNUstep needs the names to observe: it observes everything that the
// library could announce, and its own posts. It does not use the library. It takes commands as
// acceptance-host does, in words separated by tabs:
//
//   mark                     answers when it has seen everything that was sent before
//   post NAME KEY=VALUE...   as another program would
//   misshape NAME KEY=VALUE...
//                            posts what resembles that notification and is not one; answers how
//                            many
//
// What it sees it prints as "! NAME KEY=VALUE...".
#include <algorithm>
#include <array>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#import <Foundation/Foundation.h>
#include <poll.h>
#include <unistd.h>

namespace {

using Words = std::vector<std::string>;

constexpr std::array<const char *, 10> kModels = {
    "TRX-Arden",  "TRX-ARDEN",  "TRX-VOLT",  "TRX-BRISK",  "TRC-FENNO",
    "TRX-CIRRUS", "TRX-HALDEN", "TRX-LUMEN", "TRX-MORROW", "TRX-SELVA"};
// Those for which the headers declare callbacks.
constexpr std::array kKinds = {KINDS_OF_CHANGE};

constexpr NSTimeInterval kTurn = 0.01;
constexpr NSTimeInterval kPatience = 10;

NSString *StringOf(const std::string &text) { return [NSString stringWithUTF8String:text.c_str()]; }

// A dictionary has no order; the library's keys are always printed in this one.
constexpr std::array<const char *, 3> kOrderOfKeys = {"ProductID", "Channel", "Index"};

std::size_t PlaceOf(const std::string &key) {
  return static_cast<std::size_t>(std::find(kOrderOfKeys.begin(), kOrderOfKeys.end(), key) -
                                  kOrderOfKeys.begin());
}

}  // namespace

@interface AnnouncementObserver : NSObject {
  NSMutableSet *observed_;
  NSString *mark_;
  BOOL markHasCome_;
}
- (void)observe:(NSString *)name;
- (void)seen:(NSNotification *)notification;
- (BOOL)passThroughDaemon;
@end

@implementation AnnouncementObserver

- (id)init {
  self = [super init];
  observed_ = [[NSMutableSet alloc] init];
  mark_ = [[[NSProcessInfo processInfo] globallyUniqueString] retain];
  [self observe:mark_];
  for (const char *model : kModels) {
    for (const char *kind : kKinds) {
      [self observe:[NSString stringWithFormat:@"%s %s Change", model, kind]];
    }
  }
  return self;
}

- (void)observe:(NSString *)name {
  if ([observed_ containsObject:name]) return;
  [observed_ addObject:name];
  [[NSDistributedNotificationCenter defaultCenter] addObserver:self
                                                      selector:@selector(seen:)
                                                          name:name
                                                        object:nil];
}

- (void)seen:(NSNotification *)notification {
  if ([[notification name] isEqualToString:mark_]) {
    markHasCome_ = YES;
    return;
  }
  Words entries;
  NSDictionary *const userInfo = [notification userInfo];
  for (NSString *key in userInfo) {
    entries.push_back(std::string([key UTF8String]) + '=' +
                      [[[userInfo objectForKey:key] description] UTF8String]);
  }
  std::sort(entries.begin(), entries.end(), [](const std::string &one, const std::string &other) {
    const auto place = [](const std::string &entry) {
      return std::pair(PlaceOf(entry.substr(0, entry.find('='))), entry);
    };
    return place(one) < place(other);
  });
  std::cout << "! " << [[notification name] UTF8String];
  for (const std::string &entry : entries) std::cout << '\t' << entry;
  std::cout << std::endl;
}

// The daemon passes on notifications in the order in which it received them.
- (BOOL)passThroughDaemon {
  markHasCome_ = NO;
  [[NSDistributedNotificationCenter defaultCenter] postNotificationName:mark_
                                                                 object:nil
                                                               userInfo:nil
                                                     deliverImmediately:YES];
  NSDate *const deadline = [NSDate dateWithTimeIntervalSinceNow:kPatience];
  while (!markHasCome_ && [deadline timeIntervalSinceNow] > 0) {
    [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                             beforeDate:[NSDate dateWithTimeIntervalSinceNow:kTurn]];
  }
  return markHasCome_;
}

@end

namespace {

void Post(const std::string &name, NSDictionary *userInfo) {
  [[NSDistributedNotificationCenter defaultCenter] postNotificationName:StringOf(name)
                                                                 object:nil
                                                               userInfo:userInfo
                                                     deliverImmediately:YES];
}

template <typename ValueOf>
NSDictionary *DictionaryOf(const Words &entries, ValueOf valueOf) {
  NSMutableDictionary *const dictionary = [NSMutableDictionary dictionary];
  for (const std::string &entry : entries) {
    const std::size_t sign = entry.find('=');
    [dictionary setObject:valueOf(entry.substr(sign + 1)) forKey:StringOf(entry.substr(0, sign))];
  }
  return dictionary;
}

NSNumber *NumberOf(const std::string &text) { return [NSNumber numberWithInt:std::stoi(text)]; }

// A dictionary whose values are not numbers.
int PostMisshapen(const std::string &name, const Words &entries) {
  NSArray *const posted = [NSArray
      arrayWithObjects:DictionaryOf(entries, [](const std::string &v) { return StringOf(v); }),
                       DictionaryOf(entries,
                                    [](const std::string &v) {
                                      return [NSArray arrayWithObject:NumberOf(v)];
                                    }),
                       DictionaryOf(entries,
                                    [](const std::string &v) {
                                      return [StringOf(v) dataUsingEncoding:NSUTF8StringEncoding];
                                    }),
                       DictionaryOf(entries, [](const std::string &) { return [NSDate date]; }),
                       nil];
  for (NSDictionary *userInfo in posted) Post(name, userInfo);
  return static_cast<int>([posted count]);
}

std::string Answer(AnnouncementObserver *observer, const std::string &line) {
  Words words;
  std::istringstream stream(line);
  for (std::string word; std::getline(stream, word, '\t');) words.push_back(word);
  const Words entries(words.begin() + std::min<std::ptrdiff_t>(2, std::ssize(words)), words.end());
  if (words.size() > 1) [observer observe:StringOf(words[1])];
  if (words.at(0) == "post") {
    Post(words.at(1), DictionaryOf(entries, NumberOf));
    return [observer passThroughDaemon] ? "done" : "lost";
  }
  if (words.at(0) == "misshape") {
    const int count = PostMisshapen(words.at(1), entries);
    return [observer passThroughDaemon] ? std::to_string(count) : "lost";
  }
  return words.at(0) == "mark" && [observer passThroughDaemon] ? "done" : "lost";
}

}  // namespace

int main() {
  NSAutoreleasePool *const whole = [[NSAutoreleasePool alloc] init];
  AnnouncementObserver *const observer = [[AnnouncementObserver alloc] init];
  std::cout << "= ready" << std::endl;
  std::string input;
  for (;;) {
    NSAutoreleasePool *const turn = [[NSAutoreleasePool alloc] init];
    [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                             beforeDate:[NSDate dateWithTimeIntervalSinceNow:kTurn]];
    pollfd commands = {STDIN_FILENO, POLLIN, 0};
    if (poll(&commands, 1, 1) > 0) {
      char part[4096];
      const ssize_t size = read(STDIN_FILENO, part, sizeof part);
      if (size <= 0) break;
      input.append(part, static_cast<std::size_t>(size));
      for (std::size_t end; (end = input.find('\n')) != std::string::npos;
           input.erase(0, end + 1)) {
        const std::string answer = Answer(observer, input.substr(0, end));
        std::cout << "= " << answer << std::endl;
      }
    }
    [turn drain];
  }
  [whole drain];
  return 0;
}
