// From a device of the registry to its plug-in, from there to its interface, and what the two do.
#include <algorithm>
#include <array>
#include <cstdio>

#include "DoubleState.h"

using trxtest::DoubleState;
using trxtest::Interface;
using trxtest::PlugIn;
using trxtest::RegistryObject;
using trxtest::Result;
using trxtest::State;
using trxtest::Text;
using trxtest::TransferAnswer;
using trxtest::UsbDevice;

namespace {

constexpr const char *kDevicePlugInType = "9DC7B780-9EC0-11D4-A54F-000A27052861";
constexpr const char *kPlugInInterface = "C244E858-109C-11D4-91D4-0050E4C6426F";
constexpr const char *kDeviceInterface = "5C8187D0-9EF3-11D4-8B45-000A27052861";

std::string Of(const UsbDevice &device) { return " of device " + std::to_string(device.number); }

std::string Line(const PlugIn &plugIn, const std::string &call) {
  return "plug-in" + Of(plugIn.device) + ": " + call;
}

std::string Line(const Interface &interface, const std::string &call) {
  return "interface" + Of(interface.device) + ": " + call;
}

// What the first argument of a function stands for; nothing, and a misuse, when it is not alive.
template <typename Object>
Object *Find(std::map<void *, std::unique_ptr<Object>> &alive, void *self, const char *function) {
  const auto found = alive.find(self);
  if (found != alive.end()) return found->second.get();
  State().Misuse(std::string(function) + " of what is not held");
  return nullptr;
}

PlugIn *FindPlugIn(void *self, const char *function) {
  return Find(State().plugIns, self, function);
}

Interface *FindInterface(void *self, const char *function) {
  return Find(State().interfaces, self, function);
}

template <typename Object>
ULONG AddReference(Object *object) {
  if (object == nullptr) return 0;
  State().Call(Line(*object, "AddRef"));
  return ++object->references;
}

// Answers the references left, as long as the device has no answer of its own.
template <typename Object>
ULONG DropReference(std::map<void *, std::unique_ptr<Object>> &alive, Object *object,
                    std::optional<ULONG> answer) {
  if (object == nullptr) return 0;
  const ULONG left = --object->references;
  State().Call(Line(*object, "Release") + Result(static_cast<IOReturn>(answer.value_or(0))));
  if (left == 0) alive.erase(&object->functions);
  return answer.value_or(left);
}

// --- Device interfaces -------------------------------------------------------------------------

ULONG InterfaceAddRef(void *self) {
  const std::lock_guard lock(State().mutex);
  return AddReference(FindInterface(self, "AddRef"));
}

ULONG InterfaceRelease(void *self) {
  const std::lock_guard lock(State().mutex);
  Interface *const interface = FindInterface(self, "Release");
  const auto answer = interface == nullptr ? std::nullopt : interface->device.faults.release;
  return DropReference(State().interfaces, interface, answer);
}

// One of the calls that only say something of the device, or do nothing to it.
template <typename Use>
IOReturn Ask(void *self, const char *function, Use use) {
  const std::lock_guard lock(State().mutex);
  const Interface *const interface = FindInterface(self, function);
  if (interface == nullptr) return kIOReturnBadArgument;
  const IOReturn status = use(interface->device);
  State().Call(Line(*interface, function) + Result(status));
  return status;
}

// A read that fails has written something: no caller may rely on an untouched buffer.
template <typename Number>
IOReturn Tell(IOReturn fault, Number number, Number *place) {
  *place = number;
  return fault;
}

IOReturn UsbDeviceOpen(void *self) {
  return Ask(self, "USBDeviceOpen", [](const UsbDevice &) { return kIOReturnSuccess; });
}

IOReturn UsbDeviceClose(void *self) {
  return Ask(self, "USBDeviceClose", [](const UsbDevice &) { return kIOReturnNotOpen; });
}

IOReturn ReadClass(void *self, UInt8 *place) {
  return Ask(self, "GetDeviceClass", [&](const UsbDevice &device) {
    return Tell(device.faults.readClass, device.deviceClass, place);
  });
}

IOReturn ReadSubClass(void *self, UInt8 *place) {
  return Ask(self, "GetDeviceSubClass", [&](const UsbDevice &device) {
    return Tell(device.faults.readSubClass, device.subclass, place);
  });
}

IOReturn ReadVendor(void *self, UInt16 *place) {
  return Ask(self, "GetDeviceVendor", [&](const UsbDevice &device) {
    return Tell(device.faults.readVendor, device.vendor, place);
  });
}

IOReturn ReadProduct(void *self, UInt16 *place) {
  return Ask(self, "GetDeviceProduct", [&](const UsbDevice &device) {
    return Tell(device.faults.readProduct, device.product, place);
  });
}

IOReturn ReadLocation(void *self, UInt32 *place) {
  return Ask(self, "GetLocationID", [&](const UsbDevice &device) {
    return Tell(device.faults.readLocation, device.location, place);
  });
}

std::string SetupText(const IOUSBDevRequest &request) {
  std::array<char, sizeof "DeviceRequest(40 03 wValue 0300 wIndex 8003 wLength 65535)"> text;
  std::snprintf(text.data(), text.size(),
                "DeviceRequest(%02x %02x wValue %04x wIndex %04x wLength %u)",
                unsigned{request.bmRequestType}, unsigned{request.bRequest},
                unsigned{request.wValue}, unsigned{request.wIndex}, unsigned{request.wLength});
  return text.data();
}

// Puts an answer where the caller of the transfer wants it.
void Deliver(const TransferAnswer &answer, IOUSBDevRequest *request) {
  const bool isRead = (request->bmRequestType & 0x80) != 0;
  const std::size_t length = isRead ? std::min<std::size_t>(answer.bytes.size(), request->wLength)
                                    : std::size_t{request->wLength};
  if (isRead) {
    std::copy_n(answer.bytes.begin(), length, static_cast<UInt8 *>(request->pData));
  }
  if (answer.lengthDone) {
    request->wLenDone = *answer.lengthDone;
  } else if (answer.status == kIOReturnSuccess || length > 0) {
    request->wLenDone = static_cast<UInt32>(length);
  }
}

// The transfer itself is without the lock: it may take seconds.
IOReturn SendRequest(void *self, IOUSBDevRequest *request) {
  trxtest::DeviceSource *source = nullptr;
  std::string line;
  int device = 0;
  {
    const std::lock_guard lock(State().mutex);
    const Interface *const interface = FindInterface(self, "DeviceRequest");
    if (interface == nullptr) return kIOReturnBadArgument;
    source = State().source;
    line = Line(*interface, SetupText(*request));
    device = interface->device.number;
  }
  const TransferAnswer answer = source == nullptr ? TransferAnswer{.status = kIOReturnNoDevice}
                                                  : source->Transfer(device, *request);
  Deliver(answer, request);
  const std::lock_guard lock(State().mutex);
  State().Call(line + Result(answer.status));
  return answer.status;
}

// Functions that are not here have no business in a mixer's request: calling one ends the program.
constexpr IOUSBDeviceInterface MakeInterfaceFunctions() {
  IOUSBDeviceInterface functions = {};
  functions.AddRef = InterfaceAddRef;
  functions.Release = InterfaceRelease;
  functions.USBDeviceOpen = UsbDeviceOpen;
  functions.USBDeviceClose = UsbDeviceClose;
  functions.GetDeviceClass = ReadClass;
  functions.GetDeviceSubClass = ReadSubClass;
  functions.GetDeviceVendor = ReadVendor;
  functions.GetDeviceProduct = ReadProduct;
  functions.GetLocationID = ReadLocation;
  functions.DeviceRequest = SendRequest;
  return functions;
}

constinit IOUSBDeviceInterface interfaceFunctions = MakeInterfaceFunctions();

// --- Plug-ins ----------------------------------------------------------------------------------

HRESULT PlugInQueryInterface(void *self, REFIID iid, LPVOID *ppv) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  const PlugIn *const plugIn = FindPlugIn(self, "QueryInterface");
  if (plugIn == nullptr) return E_NOINTERFACE;
  const std::string line = Line(*plugIn, "QueryInterface(" + Text(iid) + ")");
  const bool known = Text(iid) == kDeviceInterface;
  const HRESULT answer = known ? plugIn->device.faults.query : E_NOINTERFACE;
  state.Call(line + Result(answer));
  *ppv = nullptr;
  if (!known || plugIn->device.faults.noInterface) return answer;
  auto interface = std::make_unique<Interface>(Interface{&interfaceFunctions, plugIn->device});
  *ppv = &interface->functions;
  state.interfaces[*ppv] = std::move(interface);
  return answer;
}

ULONG PlugInAddRef(void *self) {
  const std::lock_guard lock(State().mutex);
  return AddReference(FindPlugIn(self, "AddRef"));
}

ULONG PlugInRelease(void *self) {
  const std::lock_guard lock(State().mutex);
  return DropReference(State().plugIns, FindPlugIn(self, "Release"), std::nullopt);
}

constexpr IOCFPlugInInterface MakePlugInFunctions() {
  IOCFPlugInInterface functions = {};
  functions.QueryInterface = PlugInQueryInterface;
  functions.AddRef = PlugInAddRef;
  functions.Release = PlugInRelease;
  return functions;
}

constinit IOCFPlugInInterface plugInFunctions = MakePlugInFunctions();

IOReturn Refusal(const UsbDevice &device, const std::string &type, const std::string &interface) {
  const bool known = type == kDevicePlugInType && interface == kPlugInInterface;
  return known ? device.faults.plugIn : kIOReturnUnsupported;
}

}  // namespace

kern_return_t IOCreatePlugInInterfaceForService(io_service_t service, CFUUIDRef pluginType,
                                                CFUUIDRef interfaceType,
                                                IOCFPlugInInterface ***theInterface,
                                                SInt32 *theScore) {
  DoubleState &state = State();
  const std::lock_guard lock(state.mutex);
  const auto found = state.objects.find(service);
  if (found == state.objects.end() || !std::holds_alternative<UsbDevice>(found->second.content)) {
    state.Misuse("IOCreatePlugInInterfaceForService of what is no device");
    return kIOReturnBadArgument;
  }
  const auto &device = std::get<UsbDevice>(found->second.content);
  const std::string type = trxtest::Text(pluginType);
  const std::string interface = trxtest::Text(interfaceType);
  const IOReturn refusal = Refusal(device, type, interface);
  state.Call("IOCreatePlugInInterfaceForService(" + found->second.name + ", " + type + ", " +
             interface + ")" + Result(refusal));
  if (refusal != kIOReturnSuccess || device.faults.noPlugIn) return refusal;
  auto plugIn = std::make_unique<PlugIn>(PlugIn{&plugInFunctions, device});
  *theInterface = &plugIn->functions;
  *theScore = 100;
  void *const address = *theInterface;
  state.plugIns[address] = std::move(plugIn);
  return kIOReturnSuccess;
}
