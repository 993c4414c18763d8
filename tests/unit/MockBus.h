// A USB made of files, in place of the machine's.
#pragma once

#include <filesystem>
#include <string>

#include <umockdev.h>

#include "DeviceHandle.h"

namespace orv {

/// Replaces /sys and /dev during a test. At the start there is a bus without entries.
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

  /// Removes an entry from the list.
  void Unlist(const std::string &name);

  /// Removes the whole bus.
  void RemoveList();

  /// The path of a node in the folder that replaces /dev.
  std::filesystem::path Node(unsigned bus, unsigned device) const;

  /// The number of its files and folders that this process has open.
  int OpenFiles() const;

 private:
  std::filesystem::path Folder(const std::string &name);

  UMockdevTestbed *testbed_;
  std::filesystem::path root_;
};

/// The node of an open unit: "node 1/5" for the one on bus 1 with number 5.
std::string NodeBehind(DeviceHandle unit);

/// The kernel's summary of a mixer.
std::string MixerSummary(unsigned bus, unsigned device);

/// The kernel's summary of a device with these ids, in the kernel's format.
std::string Summary(const std::string &product, const std::string &bus, const std::string &device);

}  // namespace orv
