// Lines of the double's record, made from the parts that differ: which device, which iterator.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace trxtest {

using Lines = std::vector<std::string>;

/// What the system calls the function that gives the master port; other on older systems.
extern const char *const kMasterPortFunction;

inline const std::string kDevicePlugInType = "9DC7B780-9EC0-11D4-A54F-000A27052861";
inline const std::string kPlugInInterface = "C244E858-109C-11D4-91D4-0050E4C6426F";
inline const std::string kDeviceInterface = "5C8187D0-9EF3-11D4-8B45-000A27052861";

inline Lines Joined(std::initializer_list<Lines> parts) {
  Lines joined;
  for (const Lines &part : parts) joined.insert(joined.end(), part.begin(), part.end());
  return joined;
}

inline std::string MasterPortGiven() {
  return std::string(kMasterPortFunction) + "(null port) = master port";
}

inline std::string MasterPortRefused(const std::string &status) {
  return std::string(kMasterPortFunction) + "(null port) = " + status;
}

/// A walk over all USB devices begins; the first of a case has number 1.
inline Lines WalkBegins(const std::string &number = "1") {
  return {
      MasterPortGiven(),
      "IOServiceMatching(IOUSBDevice) = dictionary " + number,
      "IOServiceGetMatchingServices(master port, dictionary " + number + ") = iterator " + number,
  };
}

inline Lines WalkEnds(const std::string &number = "1") {
  return {
      "IOIteratorNext(iterator " + number + ") = nothing",
      "IOObjectRelease(iterator " + number + ")",
      "mach_port_deallocate(mach_task_self, master port)",
  };
}

/// A device turns up in the walk and is asked for its plug-in; `status` is such as " = E00002C5".
inline Lines Found(const std::string &device, const std::string &status = "",
                   const std::string &walk = "1") {
  return {
      "IOIteratorNext(iterator " + walk + ") = device " + device,
      "CFUUIDGetConstantUUIDWithBytes(" + kDevicePlugInType + ")",
      "CFUUIDGetConstantUUIDWithBytes(" + kPlugInInterface + ")",
      "IOCreatePlugInInterfaceForService(device " + device + ", " + kDevicePlugInType + ", " +
          kPlugInInterface + ")" + status,
      "IOObjectRelease(device " + device + ")",
  };
}

/// The plug-in is exchanged for the device's interface.
inline Lines Exchanged(const std::string &device, const std::string &status = "") {
  return {
      "CFUUIDGetConstantUUIDWithBytes(" + kDeviceInterface + ")",
      "CFUUIDGetUUIDBytes(" + kDeviceInterface + ")",
      "plug-in of device " + device + ": QueryInterface(" + kDeviceInterface + ")" + status,
      "plug-in of device " + device + ": Release",
  };
}

inline Lines ReadInFull(const std::string &device) {
  return {
      "interface of device " + device + ": GetDeviceClass",
      "interface of device " + device + ": GetDeviceSubClass",
      "interface of device " + device + ": GetDeviceVendor",
      "interface of device " + device + ": GetDeviceProduct",
  };
}

inline Lines InterfaceReleased(const std::string &device) {
  return {"interface of device " + device + ": Release"};
}

/// A device that is examined and kept: the chosen one, and all after it.
inline Lines Kept(const std::string &device, const std::string &walk = "1") {
  return Joined({Found(device, "", walk), Exchanged(device), ReadInFull(device)});
}

/// A device that is examined and released: all before the chosen one.
inline Lines PassedOver(const std::string &device, const std::string &walk = "1") {
  return Joined({Kept(device, walk), InterfaceReleased(device)});
}

}  // namespace trxtest
