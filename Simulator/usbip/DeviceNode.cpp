#include "DeviceNode.h"

#include <cerrno>
#include <cstring>
#include <string>
#include <system_error>
#include <utility>

#include <stdlib.h>
#include <sys/mount.h>

#include "../Model/Desk.h"
#include "../OpenFaults/RefusingNode.h"

namespace trxsim {

namespace fs = std::filesystem;

namespace {

constexpr fs::perms kForEverybody = static_cast<fs::perms>(0666);

/// A new folder, removed with all that is in it.
class PassingFolder {
 public:
  PassingFolder() {
    char folder[] = "/tmp/trx-mixer-sim-XXXXXX";
    if (mkdtemp(folder) == nullptr) {
      throw DeskError(std::string("cannot make a folder for `refuse`: ") + std::strerror(errno));
    }
    path_ = folder;
  }
  ~PassingFolder() {
    std::error_code error;
    fs::remove_all(path_, error);
  }
  PassingFolder(const PassingFolder &) = delete;
  PassingFolder &operator=(const PassingFolder &) = delete;

  const fs::path &Path() const { return path_; }

 private:
  fs::path path_;
};

}  // namespace

DeviceNode::~DeviceNode() { Restore(); }

void DeviceNode::Set(OpenFault fault) {
  Restore();
  switch (fault) {
    case OpenFault::kNone:
      break;
    case OpenFault::kDeny:
      Deny();
      break;
    case OpenFault::kRefuse:
      Refuse();
      break;
    case OpenFault::kHold:
      Hold();
      break;
  }
}

void DeviceNode::Deny() {
  usual_ = fs::status(path_).permissions();
  fs::permissions(path_, fs::perms::none);
}

// The mount keeps the file after its name is removed.
void DeviceNode::Refuse() {
  const PassingFolder folder;
  MakeRefusingNode(folder.Path() / "node");
  Cover(folder.Path() / "node");
}

void DeviceNode::Hold() {
  held_.emplace();
  // The terminal belongs to this user; only its being held must keep others out.
  fs::permissions(held_->Path(), kForEverybody);
  Cover(held_->Path());
}

void DeviceNode::Restore() {
  if (std::exchange(isCovered_, false)) umount2(path_.c_str(), MNT_DETACH);
  held_.reset();
  if (!usual_) return;
  // The kernel may already have removed the node.
  std::error_code error;
  fs::permissions(path_, *std::exchange(usual_, std::nullopt), error);
}

// The kernel lets every present device be opened, so another file is mounted over the node. The
// mount ends with the node, even when this process is killed.
void DeviceNode::Cover(const fs::path &file) {
  if (mount(file.c_str(), path_.c_str(), nullptr, MS_BIND, nullptr) != 0) {
    held_.reset();
    throw DeskError("cannot mount a file over " + path_.string() + ": " + std::strerror(errno));
  }
  isCovered_ = true;
}

}  // namespace trxsim
