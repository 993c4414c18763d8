#include "MockBus.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>

#include <unistd.h>

namespace orv {
namespace {

namespace fs = std::filesystem;

constexpr const char *kList = "sys/bus/usb/devices";
constexpr const char *kFolders = "sys/devices/pci0000:00";

constexpr std::size_t kDescriptorSize = 18;

std::string ThreeDigits(unsigned number) {
  std::string digits = std::to_string(number);
  return digits.insert(0, 3 - std::min<std::size_t>(digits.size(), 3), '0');
}

// As from a mixer, except for the ids.
std::string DeviceDescriptor(unsigned vendor, unsigned product) {
  const std::array<unsigned, kDescriptorSize> bytes = {
      18,           1, 0, 2, 0, 0, 0, 64, vendor & 0xFF, vendor >> 8, product & 0xFF,
      product >> 8, 0, 1, 1, 2, 3, 1};
  return std::string(bytes.begin(), bytes.end());
}

void Write(const fs::path &path, const std::string &contents) {
  std::ofstream(path, std::ios::binary) << contents;
}

}  // namespace

MockBus::MockBus() : testbed_(umockdev_testbed_new()) {
  gchar *root = umockdev_testbed_get_root_dir(testbed_);
  root_ = root;
  g_free(root);
  fs::create_directories(root_ / kList);
}

MockBus::~MockBus() { g_object_unref(testbed_); }

fs::path MockBus::Folder(const std::string &name) {
  const fs::path folder = root_ / kFolders / name;
  fs::create_directories(folder);
  fs::create_symlink(fs::relative(folder, root_ / kList), root_ / kList / name);
  return folder;
}

void MockBus::List(const std::string &name, const std::string &summary) {
  Write(Folder(name) / "uevent", summary);
}

void MockBus::ListDangling(const std::string &name) {
  fs::create_symlink("../../../devices/gone/" + name, root_ / kList / name);
}

void MockBus::ListWithoutSummary(const std::string &name) { Folder(name); }

void MockBus::PlugMixer(const std::string &name, unsigned bus, unsigned device) {
  MakeNode(bus, device, MAKER_USB_VENDOR_ID, 0x1F);
  List(name, MixerSummary(bus, device));
}

void MockBus::MakeNode(unsigned bus, unsigned device, unsigned vendor, unsigned product) {
  const fs::path node = Node(bus, device);
  fs::create_directories(node.parent_path());
  Write(node, DeviceDescriptor(vendor, product) + "node " + std::to_string(bus) + "/" +
                  std::to_string(device));
}

void MockBus::Unlist(const std::string &name) { fs::remove(root_ / kList / name); }

void MockBus::RemoveList() { fs::remove_all(root_ / kList); }

fs::path MockBus::Node(unsigned bus, unsigned device) const {
  return root_ / "dev/bus/usb" / ThreeDigits(bus) / ThreeDigits(device);
}

int MockBus::OpenFiles() const {
  int count = 0;
  for (const auto &descriptor : fs::directory_iterator("/proc/self/fd")) {
    std::error_code gone;  // other descriptors come and go in umockdev's own thread
    const fs::path file = fs::read_symlink(descriptor, gone);
    if (file.string().starts_with(root_.string() + "/")) ++count;
  }
  return count;
}

std::string NodeBehind(DeviceHandle unit) {
  std::array<char, 64> text = {};
  const ssize_t size = pread(unit->descriptor, text.data(), text.size(), kDescriptorSize);
  return std::string(text.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
}

std::string Summary(const std::string &product, const std::string &bus, const std::string &device) {
  return "MAJOR=189\nMINOR=1\nDEVNAME=bus/usb/" + bus + "/" + device +
         "\nDEVTYPE=usb_device\nDRIVER=usb\nPRODUCT=" + product + "\nTYPE=0/0/0\nBUSNUM=" + bus +
         "\nDEVNUM=" + device + "\n";
}

std::string MixerSummary(unsigned bus, unsigned device) {
  std::ostringstream product;
  product << std::hex << unsigned{MAKER_USB_VENDOR_ID} << "/1f/100";
  return Summary(product.str(), ThreeDigits(bus), ThreeDigits(device));
}

}  // namespace orv
