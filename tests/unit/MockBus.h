// A USB of a test's own in the place of the machine's, as files.
#pragma once

#include <filesystem>
#include <string>

#include <umockdev.h>

#include "DeviceHandle.h"

namespace orv {

/// Stands in the place of /sys and /dev for the length of a test. At the start there is a bus
/// without any entry.
class MockBus {
 public:
  MockBus();
  MockBus(const MockBus &) = delete;
  MockBus &operator=(const MockBus &) = delete;
  ~MockBus();

  /// Lists an entry with this summary, as the kernel does: a link to a folder elsewhere.
  void List(const std::string &name, const std::string &summary);

  /// Lists a link that leads nowhere.
  void ListDangling(const std::string &name);

  /// Lists an entry whose folder is empty.
  void ListWithoutSummary(const std::string &name);

  /// Lists an entry with a mixer's summary, and makes its node.
  void PlugMixer(const std::string &name, unsigned bus, unsigned device);

  /// Makes the node of a device with these ids, whatever is listed.
  void MakeNode(unsigned bus, unsigned device, unsigned vendor, unsigned product);

  /// Takes an entry off the list.
  void Unlist(const std::string &name);

  /// Takes the whole bus away.
  void RemoveList();

  /// The path of a node in the folder that stands for /dev.
  std::filesystem::path Node(unsigned bus, unsigned device) const;

  /// How many of its files and folders this process has open.
  int OpenFiles() const;

 private:
  std::filesystem::path Folder(const std::string &name);

  UMockdevTestbed *testbed_;
  std::filesystem::path root_;
};

/// Which node an open unit has: "node 1/5" for the one on bus 1 with number 5.
std::string NodeBehind(DeviceHandle unit);

/// What the kernel says of a mixer.
std::string MixerSummary(unsigned bus, unsigned device);

/// What the kernel says of a device with these ids, written as it writes them.
std::string Summary(const std::string &product, const std::string &bus, const std::string &device);

}  // namespace orv
