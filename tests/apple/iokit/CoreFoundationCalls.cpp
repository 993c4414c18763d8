// Values: strings and UUIDs, which live as long as the process, numbers and dictionaries, which are
// counted.
#include <array>
#include <bit>
#include <cstring>
#include <set>

#include "DoubleState.h"

using trxtest::DoubleState;
using trxtest::State;
using trxtest::Value;

// What an opaque pointer to a string or a UUID points to. Both are found by their content, as the
// same constant is the same object wherever it stands.
struct __CFString {
  std::string text;
  auto operator<=>(const __CFString &) const = default;
};

struct __CFUUID {
  std::array<UInt8, 16> bytes;
  auto operator<=>(const __CFUUID &) const = default;
};

namespace {

// Constants are never given back, so they outlive Reset, and the lock is their own.
template <typename Constant>
const Constant *TheOne(const Constant &constant) {
  static std::mutex mutex;
  static std::set<Constant> constants;
  const std::lock_guard lock(mutex);
  return &*constants.insert(constant).first;
}

std::string Name(CFAllocatorRef allocator) {
  return allocator == kCFAllocatorDefault ? "default" : "another allocator";
}

}  // namespace

std::string trxtest::Text(CFUUIDRef uuid) { return Text(std::bit_cast<CFUUIDBytes>(uuid->bytes)); }

const CFAllocatorRef kCFAllocatorDefault = nullptr;

CFStringRef __CFStringMakeConstantString(const char *cStr) { return TheOne(__CFString{cStr}); }

CFUUIDRef CFUUIDGetConstantUUIDWithBytes(CFAllocatorRef /*alloc*/, UInt8 byte0, UInt8 byte1,
                                         UInt8 byte2, UInt8 byte3, UInt8 byte4, UInt8 byte5,
                                         UInt8 byte6, UInt8 byte7, UInt8 byte8, UInt8 byte9,
                                         UInt8 byte10, UInt8 byte11, UInt8 byte12, UInt8 byte13,
                                         UInt8 byte14, UInt8 byte15) {
  const __CFUUID constant = {{byte0, byte1, byte2, byte3, byte4, byte5, byte6, byte7, byte8, byte9,
                              byte10, byte11, byte12, byte13, byte14, byte15}};
  const CFUUIDRef uuid = TheOne(constant);
  const std::lock_guard lock(State().mutex);
  State().Call("CFUUIDGetConstantUUIDWithBytes(" + trxtest::Text(uuid) + ")");
  return uuid;
}

CFUUIDBytes CFUUIDGetUUIDBytes(CFUUIDRef uuid) {
  const std::lock_guard lock(State().mutex);
  State().Call("CFUUIDGetUUIDBytes(" + trxtest::Text(uuid) + ")");
  return std::bit_cast<CFUUIDBytes>(uuid->bytes);
}

CFNumberRef CFNumberCreate(CFAllocatorRef allocator, CFNumberType theType, const void *valuePtr) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  SInt32 number = 0;
  if (theType == kCFNumberSInt32Type) {
    std::memcpy(&number, valuePtr, sizeof number);
  } else {
    state.Misuse("CFNumberCreate of a type that the double does not have");
  }
  auto value = std::make_unique<Value>(Value{.name = state.Name("number"), .number = number});
  state.Call("CFNumberCreate(" + Name(allocator) + ", SInt32, " + std::to_string(number) +
             ") = " + value->name);
  const void *const address = value.get();
  state.values[address] = std::move(value);
  return static_cast<CFNumberRef>(address);
}

void CFDictionarySetValue(CFMutableDictionaryRef theDict, const void *key, const void *value) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  const std::string &name = static_cast<CFStringRef>(key)->text;
  Value *const dictionary = state.Find(theDict, "CFDictionarySetValue");
  Value *const demanded = state.Find(value, "CFDictionarySetValue");
  if (dictionary == nullptr || demanded == nullptr) return;
  state.Call("CFDictionarySetValue(" + dictionary->name + ", " + name + ", " + demanded->name +
             ")");
  ++demanded->references;
  Value *&place = dictionary->demands[name];
  if (place != nullptr) state.Release(place);
  place = demanded;
}

CFTypeRef CFRetain(CFTypeRef cf) {
  const std::lock_guard lock(State().mutex);
  if (Value *const value = State().Find(cf, "CFRetain")) {
    State().Call("CFRetain(" + value->name + ")");
    ++value->references;
  }
  return cf;
}

void CFRelease(CFTypeRef cf) {
  const std::lock_guard lock(State().mutex);
  if (Value *const value = State().Find(cf, "CFRelease")) {
    State().Call("CFRelease(" + value->name + ")");
    State().Release(value);
  }
}
