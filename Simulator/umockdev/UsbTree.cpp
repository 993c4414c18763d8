#include "UsbTree.h"

#include <cstring>
#include <fstream>
#include <string_view>

#include "../Model/Desk.h"
#include "../OpenFaults/RefusingNode.h"

namespace trxsim {

namespace fs = std::filesystem;

namespace {

constexpr const char *kBusFolder = "/sys/bus/usb";
constexpr const char *kListFolder = "/sys/bus/usb/devices/";

// Where libumockdev looks up the device number that stat shows for a node.
constexpr const char *kNumberFolder = "/dev/.node/";

void WriteFile(const fs::path &path, const std::string &contents) {
  std::ofstream file(path, std::ios::binary);
  file << contents;
  if (!file.flush()) throw DeskError("cannot write " + path.string());
}

void WriteFolder(const fs::path &folder, const std::vector<Attribute> &attributes,
                 const fs::path &bus) {
  fs::create_directories(folder);
  for (const auto &[name, contents] : attributes) WriteFile(folder / name, contents);
  fs::create_symlink(fs::relative(bus, folder), folder / "subsystem");
}

// "bus_usb_001_002" for "/dev/bus/usb/001/002".
std::string FlatName(const UsbDevice &device) {
  std::string name = device.NodePath().substr(std::strlen("/dev/"));
  for (char &character : name) {
    if (character == '/') character = '_';
  }
  return name;
}

void MakeNode(const fs::path &node, const std::string &contents, fs::perms permissions) {
  WriteFile(node, contents);
  fs::permissions(node, permissions);
}

// As with the udev rule for the mixers: every user may open it.
constexpr fs::perms kOpenToAll = static_cast<fs::perms>(0666);

}  // namespace

UsbTree::UsbTree(fs::path root) : root_(std::move(root)) {
  fs::create_directories(Inside(kListFolder));
  fs::create_directories(Inside(kNumberFolder));
  const UsbDevice hub = RootHub();
  Build(hub, OpenFault::kNone);
  List(hub);
}

void UsbTree::Build(const UsbDevice &device, OpenFault fault) {
  const fs::path folder = Inside(device.SysPath());
  WriteFolder(folder, device.Attributes(), Inside(kBusFolder));
  for (const UsbInterface &interface : device.Interfaces()) {
    WriteFolder(folder / interface.name, interface.attributes, Inside(kBusFolder));
  }
  fs::create_directories(Inside(device.NodePath()).parent_path());
  fs::create_symlink(device.DeviceNumber(), Inside(kNumberFolder + FlatName(device)));
  SetNode(device, fault);
}

void UsbTree::List(const UsbDevice &device) {
  const fs::path listFolder = Inside(kListFolder);
  const fs::path target = fs::relative(Inside(device.SysPath()), listFolder);
  for (const UsbInterface &interface : device.Interfaces()) {
    fs::create_symlink(target / interface.name, listFolder / interface.name);
  }
  fs::create_symlink(target, listFolder / device.name);
}

void UsbTree::Remove(const UsbDevice &device) {
  fs::remove(Inside(kListFolder + device.name));
  for (const UsbInterface &interface : device.Interfaces()) {
    fs::remove(Inside(kListFolder + interface.name));
  }
  fs::remove(Inside(device.NodePath()));
  fs::remove(Inside(kNumberFolder + FlatName(device)));
  fs::remove_all(Inside(device.SysPath()));
  held_.erase(device.name);
}

void UsbTree::SetNode(const UsbDevice &device, OpenFault fault) {
  const fs::path node = Inside(device.NodePath());
  // Renamed into place, so that a host always finds one of the two.
  fs::path fresh = node;
  fresh += ".new";
  std::map<std::string, HeldTerminal> held;
  switch (fault) {
    case OpenFault::kNone:
      MakeNode(fresh, device.Descriptors(), kOpenToAll);
      break;
    case OpenFault::kDeny:
      MakeNode(fresh, device.Descriptors(), fs::perms::none);
      break;
    case OpenFault::kRefuse:
      MakeRefusingNode(fresh);
      break;
    case OpenFault::kHold:
      fs::create_symlink(held.try_emplace(device.name).first->second.Path(), fresh);
      break;
  }
  fs::rename(fresh, node);
  held_.erase(device.name);
  held_.merge(held);
}

fs::path UsbTree::Inside(const std::string &path) const { return root_ / path.substr(1); }

}  // namespace trxsim
