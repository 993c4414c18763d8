// The way to the devices: ports, matching, iterators.
#include "DoubleState.h"

using trxtest::DoubleState;
using trxtest::Iterator;
using trxtest::RegistryObject;
using trxtest::Result;
using trxtest::State;
using trxtest::UsbDevice;
using trxtest::Value;

namespace {

constexpr mach_port_t kMasterPort = 0x0903;

std::string PortName(mach_port_t port) {
  if (port == MACH_PORT_NULL) return "null port";
  return port == kMasterPort ? "master port" : "port " + std::to_string(port);
}

kern_return_t GiveMasterPort(const char *function, mach_port_t bootstrapPort, mach_port_t *port) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  const IOReturn status = state.faults.masterPort;
  const std::string line = std::string(function) + "(" + PortName(bootstrapPort) + ")";
  if (status != kIOReturnSuccess) {
    state.Call(line + Result(status));
    return status;
  }
  state.Call(line + " = master port");
  ++state.portReferences;
  *port = kMasterPort;
  return status;
}

// USB devices go by an older and by a newer class name.
bool IsUsbDevice(const std::string &deviceClass) {
  return deviceClass == "IOUSBDevice" || deviceClass == "IOUSBHostDevice";
}

bool Meets(const UsbDevice &device, const std::map<std::string, Value *> &demands) {
  for (const auto &[property, demanded] : demands) {
    const bool met = (property == "idVendor" && demanded->number == device.vendor) ||
                     (property == "idProduct" && demanded->number == device.product);
    if (!met) return false;
  }
  return true;
}

std::vector<UsbDevice> Matching(const Value &dictionary, const std::vector<UsbDevice> &devices) {
  std::vector<UsbDevice> matching;
  for (const UsbDevice &device : devices) {
    if (IsUsbDevice(dictionary.deviceClass) && Meets(device, dictionary.demands)) {
      matching.push_back(device);
    }
  }
  return matching;
}

io_object_t Add(DoubleState &state, RegistryObject object) {
  state.objects.emplace(++state.lastObject, std::move(object));
  return state.lastObject;
}

// Asked without the lock, as the devices may be in another process.
std::vector<UsbDevice> DevicesNow() {
  trxtest::DeviceSource *source = nullptr;
  {
    const std::lock_guard lock(State().mutex);
    source = State().source;
  }
  return source == nullptr ? std::vector<UsbDevice>() : source->Devices();
}

}  // namespace

mach_port_t mach_task_self_ = 0x0203;

kern_return_t mach_port_deallocate(ipc_space_t task, mach_port_name_t name) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  state.Call("mach_port_deallocate(" +
             std::string(task == mach_task_self_ ? "mach_task_self" : "another task") + ", " +
             PortName(name) + ")");
  if (task != mach_task_self_) return KERN_INVALID_TASK;
  if (name == MACH_PORT_NULL) return KERN_SUCCESS;
  if (name != kMasterPort || state.portReferences == 0) {
    state.Misuse("mach_port_deallocate of a port that is not held");
    return KERN_INVALID_NAME;
  }
  --state.portReferences;
  return KERN_SUCCESS;
}

kern_return_t IOMainPort(mach_port_t bootstrapPort, mach_port_t *mainPort) {
  return GiveMasterPort("IOMainPort", bootstrapPort, mainPort);
}

kern_return_t IOMasterPort(mach_port_t bootstrapPort, mach_port_t *mainPort) {
  return GiveMasterPort("IOMasterPort", bootstrapPort, mainPort);
}

CFMutableDictionaryRef IOServiceMatching(const char *name) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  const std::string line = "IOServiceMatching(" + std::string(name) + ") = ";
  if (state.faults.noDictionary) {
    state.Call(line + "nothing");
    return nullptr;
  }
  auto dictionary = std::make_unique<Value>(
      Value{.name = state.Name("dictionary"), .isDictionary = true, .deviceClass = name});
  state.Call(line + dictionary->name);
  void *const address = dictionary.get();
  state.values[address] = std::move(dictionary);
  return static_cast<CFMutableDictionaryRef>(address);
}

kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching,
                                           io_iterator_t *existing) {
  const std::vector<UsbDevice> devices = DevicesNow();
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  Value *const dictionary = state.Find(matching, "IOServiceGetMatchingServices");
  if (dictionary == nullptr) return kIOReturnBadArgument;
  if (mainPort != MACH_PORT_NULL && (mainPort != kMasterPort || state.portReferences == 0)) {
    state.Misuse("IOServiceGetMatchingServices with a port that is not held");
  }
  const std::string line =
      "IOServiceGetMatchingServices(" + PortName(mainPort) + ", " + dictionary->name + ")";
  Iterator iterator = {.devices = Matching(*dictionary, devices)};
  state.Release(dictionary);
  if (const IOReturn status = state.faults.services; status != kIOReturnSuccess) {
    state.Call(line + Result(status));
    return status;
  }
  if (state.faults.noIterator) {
    state.Call(line + " = nothing");
    *existing = IO_OBJECT_NULL;
    return kIOReturnSuccess;
  }
  const std::string name = state.Name("iterator");
  state.Call(line + " = " + name);
  *existing = Add(state, {.name = name, .content = std::move(iterator)});
  return kIOReturnSuccess;
}

io_object_t IOIteratorNext(io_iterator_t iterator) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  const auto found = state.objects.find(iterator);
  if (found == state.objects.end() || !std::holds_alternative<Iterator>(found->second.content)) {
    state.Misuse("IOIteratorNext of what is no iterator");
    return IO_OBJECT_NULL;
  }
  auto &walk = std::get<Iterator>(found->second.content);
  const std::string line = "IOIteratorNext(" + found->second.name + ") = ";
  if (walk.next == walk.devices.size()) {
    state.Call(line + "nothing");
    return IO_OBJECT_NULL;
  }
  const UsbDevice &device = walk.devices[walk.next++];
  const std::string name = "device " + std::to_string(device.number);
  state.Call(line + name);
  return Add(state, {.name = name, .content = device});
}

kern_return_t IOObjectRelease(io_object_t object) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  const auto found = state.objects.find(object);
  if (found == state.objects.end()) {
    state.Misuse("IOObjectRelease of what is not held");
    return KERN_INVALID_NAME;
  }
  state.Call("IOObjectRelease(" + found->second.name + ")");
  state.objects.erase(found);
  return KERN_SUCCESS;
}
