#include "PropertyList.h"

#include <cstring>
#include <utility>

#import "FoundationCall.h"
#include "IntegerReading.h"

namespace orv {
namespace {

NSMutableDictionary *DictionaryIn(void *root) { return static_cast<NSMutableDictionary *>(root); }

NSMutableDictionary *NewDictionary() { return [[NSMutableDictionary alloc] initWithCapacity:1]; }

NSDictionary *DictionaryInFile(const std::string &path) {
  return [NSDictionary dictionaryWithContentsOfFile:StringOf(path)];
}

bool IsReal(NSNumber *number) {
  const char *const type = [number objCType];
  return std::strcmp(type, @encode(double)) == 0 || std::strcmp(type, @encode(float)) == 0;
}

std::optional<std::int32_t> IntegerOfEntry(id entry) {
  if ([entry isKindOfClass:[NSNumber class]]) {
    return IsReal(entry) ? IntegerOfReal([entry doubleValue])
                         : LowBits([entry unsignedLongLongValue]);
  }
  if (![entry isKindOfClass:[NSString class]]) return std::nullopt;
  const auto text = CharactersOf(entry);
  return text ? IntegerOfText(*text) : std::nullopt;
}

}  // namespace

// A list that got no memory for its dictionary is empty, ignores new entries and is not written.
PropertyList::PropertyList() : root_(UnlessRaised<id>(nil, [] { return NewDictionary(); })) {}

PropertyList::PropertyList(void *root) : root_(root) {}

PropertyList::PropertyList(PropertyList &&other) noexcept
    : root_(std::exchange(other.root_, nullptr)) {}

PropertyList &PropertyList::operator=(PropertyList &&other) noexcept {
  std::swap(root_, other.root_);
  return *this;
}

PropertyList::~PropertyList() { [DictionaryIn(root_) release]; }

std::optional<PropertyList> PropertyList::ReadFile(const std::string &path) {
  void *const root = UnlessRaised<id>(nil, [&] { return [DictionaryInFile(path) mutableCopy]; });
  if (root == nullptr) return std::nullopt;
  return PropertyList(root);
}

// Foundation does not say why it could not read a file. An exception is not the file's fault.
bool PropertyList::ChangeFile(const std::string &path,
                              const std::function<void(PropertyList &)> &change) {
  void *const root = UnlessRaised<id>(nil, [&]() -> id {
    NSDictionary *const read = DictionaryInFile(path);
    return read != nil ? [read mutableCopy] : NewDictionary();
  });
  if (root == nullptr) return false;
  PropertyList list(root);
  change(list);
  return UnlessRaised(false, [&] {
    return [DictionaryIn(list.root_) writeToFile:StringOf(path) atomically:YES] != NO;
  });
}

std::optional<std::int32_t> PropertyList::IntegerForKey(const char *key) const {
  return UnlessRaised<std::optional<std::int32_t>>(std::nullopt, [&] {
    return IntegerOfEntry([DictionaryIn(root_) objectForKey:StringOf(key)]);
  });
}

std::optional<std::string> PropertyList::TextForKey(const char *key) const {
  return UnlessRaised<std::optional<std::string>>(std::nullopt, [&] {
    id entry = [DictionaryIn(root_) objectForKey:StringOf(key)];
    return CharactersOf([entry isKindOfClass:[NSString class]] ? entry : nil);
  });
}

void PropertyList::SetInteger(const char *key, std::int32_t value) {
  WhileNothingIsRaised(
      [&] { [DictionaryIn(root_) setObject:[NSNumber numberWithInt:value] forKey:StringOf(key)]; });
}

}  // namespace orv
