// What the functions of the double share. Only they include this.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <variant>
#include <vector>

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>

#include "IOKitDouble.h"

namespace trxtest {

/// A number or a dictionary.
struct Value {
  std::string name;  ///< Such as "number 2".
  int references = 1;
  bool isDictionary = false;
  SInt32 number = 0;                            ///< Of a number.
  std::string deviceClass = {};                 ///< Of a dictionary: the class it demands.
  std::map<std::string, Value *> demands = {};  ///< Of a dictionary: the properties it demands.
};

/// A walk through the registry, over what was there when it began.
struct Iterator {
  std::vector<UsbDevice> devices;
  std::size_t next = 0;
};

/// What a registry name stands for.
struct RegistryObject {
  std::string name;  ///< Such as "device 2".
  std::variant<Iterator, UsbDevice> content;
};

/// What is behind the pointer that a caller has of a plug-in or of a device interface: at its start
/// the pointer to the functions.
template <typename Functions>
struct Instance {
  Functions *functions;
  UsbDevice device;
  ULONG references = 1;
};
using PlugIn = Instance<IOCFPlugInInterface>;
using Interface = Instance<IOUSBDeviceInterface>;

/// Everything, and the lock for it.
struct DoubleState {
  std::mutex mutex;
  DeviceSource *source = nullptr;
  RegistryFaults faults;
  std::vector<std::string> calls;
  std::vector<std::string> misuses;
  int portReferences = 0;
  std::map<const void *, std::unique_ptr<Value>> values;
  std::map<io_object_t, RegistryObject> objects;
  std::map<void *, std::unique_ptr<PlugIn>> plugIns;
  std::map<void *, std::unique_ptr<Interface>> interfaces;
  std::map<std::string, int> named;  ///< How many of a kind have got a name.
  io_object_t lastObject = 0x1000;

  void Call(const std::string &line) { calls.push_back(line); }
  void Misuse(const std::string &line) { misuses.push_back(line); }

  /// The next name of its kind: "iterator 1", "iterator 2", ...
  std::string Name(const std::string &kind);

  /// The value behind a pointer; nothing, and a misuse, when it is not alive.
  Value *Find(const void *value, const std::string &user);

  /// Takes one reference away. The last one takes the value with it, and what that refers to.
  void Release(Value *value);
};

DoubleState &State();

/// " = E00002C5", or nothing for success.
std::string Result(IOReturn status);

/// A UUID in its usual form, in capitals.
std::string Text(const CFUUIDBytes &bytes);
std::string Text(CFUUIDRef uuid);

}  // namespace trxtest
