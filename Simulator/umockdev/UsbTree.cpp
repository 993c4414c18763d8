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

void writeFile(const fs::path &path, const std::string &contents) {
  std::ofstream file(path, std::ios::binary);
  file << contents;
  if (!file.flush()) throw DeskError("cannot write " + path.string());
}

void writeFolder(const fs::path &folder, const std::vector<Attribute> &attributes,
                 const fs::path &bus) {
  fs::create_directories(folder);
  for (const auto &[name, contents] : attributes) writeFile(folder / name, contents);
  fs::create_symlink(fs::relative(bus, folder), folder / "subsystem");
}

// "bus_usb_001_002" for "/dev/bus/usb/001/002".
std::string flatName(const UsbDevice &device) {
  std::string name = device.nodePath().substr(std::strlen("/dev/"));
  for (char &character : name) {
    if (character == '/') character = '_';
  }
  return name;
}

void makeNode(const fs::path &node, const std::string &contents, fs::perms permissions) {
  writeFile(node, contents);
  fs::permissions(node, permissions);
}

// As a udev rule for the mixer leaves it: everybody at the desk may open it.
constexpr fs::perms kOpenToAll = static_cast<fs::perms>(0666);

}  // namespace

UsbTree::UsbTree(fs::path root) : root_(std::move(root)) {
  fs::create_directories(inside(kListFolder));
  fs::create_directories(inside(kNumberFolder));
  const UsbDevice hub = rootHub();
  build(hub, OpenFault::None);
  list(hub);
}

void UsbTree::build(const UsbDevice &device, OpenFault fault) {
  const fs::path folder = inside(device.sysPath());
  writeFolder(folder, device.attributes(), inside(kBusFolder));
  for (const UsbInterface &interface : device.interfaces()) {
    writeFolder(folder / interface.name, interface.attributes, inside(kBusFolder));
  }
  fs::create_directories(inside(device.nodePath()).parent_path());
  fs::create_symlink(device.deviceNumber(), inside(kNumberFolder + flatName(device)));
  setNode(device, fault);
}

void UsbTree::list(const UsbDevice &device) {
  const fs::path listFolder = inside(kListFolder);
  const fs::path target = fs::relative(inside(device.sysPath()), listFolder);
  for (const UsbInterface &interface : device.interfaces()) {
    fs::create_symlink(target / interface.name, listFolder / interface.name);
  }
  fs::create_symlink(target, listFolder / device.name);
}

void UsbTree::remove(const UsbDevice &device) {
  fs::remove(inside(kListFolder + device.name));
  for (const UsbInterface &interface : device.interfaces()) {
    fs::remove(inside(kListFolder + interface.name));
  }
  fs::remove(inside(device.nodePath()));
  fs::remove(inside(kNumberFolder + flatName(device)));
  fs::remove_all(inside(device.sysPath()));
  held_.erase(device.name);
}

void UsbTree::setNode(const UsbDevice &device, OpenFault fault) {
  const fs::path node = inside(device.nodePath());
  // Put in place by renaming, so that a host finds the one or the other and never nothing.
  fs::path fresh = node;
  fresh += ".new";
  std::map<std::string, HeldTerminal> held;
  switch (fault) {
    case OpenFault::None:
      makeNode(fresh, device.descriptors(), kOpenToAll);
      break;
    case OpenFault::Deny:
      makeNode(fresh, device.descriptors(), fs::perms::none);
      break;
    case OpenFault::Refuse:
      makeRefusingNode(fresh);
      break;
    case OpenFault::Hold:
      fs::create_symlink(held.try_emplace(device.name).first->second.path(), fresh);
      break;
  }
  fs::rename(fresh, node);
  held_.erase(device.name);
  held_.merge(held);
}

fs::path UsbTree::inside(const std::string &path) const { return root_ / path.substr(1); }

}  // namespace trxsim
