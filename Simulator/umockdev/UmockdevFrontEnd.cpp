#include "UmockdevFrontEnd.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <vector>

#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "../Model/Desk.h"

namespace trxsim {

namespace fs = std::filesystem;

namespace {

constexpr int kLastDeviceNumber = 127;

// The kernel refuses longer data stages in a control request.
constexpr unsigned kLongestDataStage = 4096;

std::string TakeText(gchar *text) {
  std::string copy(text);
  g_free(text);
  return copy;
}

void Fail(UMockdevIoctlClient &client, int error) {
  umockdev_ioctl_client_complete(&client, -1, error);
}

// libumockdev warns when it drops the connection of a client that was killed during a request. That
// is of no interest to the user.
void LogUnlessDroppedClient(const gchar *domain, GLogLevelFlags level, const gchar *message,
                            gpointer) {
  if (std::string_view(message).find("Destroying IoctlClient") != std::string_view::npos) return;
  g_log_default_handler(domain, level, message, nullptr);
}

}  // namespace

/// A request that its unit does not answer. Owned by its timer.
struct UmockdevFrontEnd::Pending {
  UmockdevFrontEnd *owner;
  std::unique_ptr<UMockdevIoctlClient, ObjectRelease> client;
  int number;
  GSource *timer;
};

UmockdevFrontEnd::UmockdevFrontEnd()
    : testbed_(umockdev_testbed_new()),
      handler_(umockdev_ioctl_base_new()),
      tree_(RootFolder()),
      events_(RootFolder()) {
  g_log_set_default_handler(LogUnlessDroppedClient, nullptr);
  g_signal_connect(handler_.get(), "handle-ioctl", G_CALLBACK(OnIoctl), this);
  // Programs that root starts as another user must be able to reach their mixers.
  if (geteuid() == 0) fs::permissions(RootFolder(), static_cast<fs::perms>(0755));
}

UmockdevFrontEnd::~UmockdevFrontEnd() {
  std::vector<int> numbers;
  {
    const std::lock_guard lock(mutex_);
    unitOfNode_.clear();
    for (const auto &[number, device] : plugged_) numbers.push_back(number);
  }
  for (const int number : numbers) EndPending(number);
  // The thread of the testbed, which uses the rest, ends here.
  testbed_.reset();
}

std::string UmockdevFrontEnd::RootFolder() const {
  return TakeText(umockdev_testbed_get_root_dir(testbed_.get()));
}

BusAddress UmockdevFrontEnd::Plug(int number, const UsbIdentity &identity, OpenFault fault) {
  const UsbDevice device{"1-" + std::to_string(number), {1, NextDeviceNumber()}, identity};
  tree_.Build(device, fault);
  Attach(device.NodePath());
  {
    const std::lock_guard lock(mutex_);
    plugged_.emplace(number, device);
    unitOfNode_.emplace(device.NodePath(), number);
  }
  tree_.List(device);
  events_.Send("add", device);
  return device.address;
}

void UmockdevFrontEnd::Unplug(int number) {
  UsbDevice device;
  {
    const std::lock_guard lock(mutex_);
    device = plugged_.at(number);
    plugged_.erase(number);
    unitOfNode_.erase(device.NodePath());
  }
  tree_.Remove(device);
  events_.Send("remove", device);
  EndPending(number);
}

void UmockdevFrontEnd::SetOpenFault(int number, OpenFault fault) {
  UsbDevice device;
  {
    const std::lock_guard lock(mutex_);
    device = plugged_.at(number);
  }
  tree_.SetNode(device, fault);
}

gboolean UmockdevFrontEnd::OnIoctl(UMockdevIoctlBase *, UMockdevIoctlClient *client,
                                   gpointer self) {
  return static_cast<UmockdevFrontEnd *>(self)->Handle(*client) ? TRUE : FALSE;
}

bool UmockdevFrontEnd::Handle(UMockdevIoctlClient &client) {
  int number = 0;
  {
    const std::lock_guard lock(mutex_);
    const auto found = unitOfNode_.find(umockdev_ioctl_client_get_devnode(&client));
    if (found != unitOfNode_.end()) number = found->second;
  }
  if (number == 0) {
    Fail(client, ENODEV);
    return true;
  }
  if (umockdev_ioctl_client_get_request(&client) != static_cast<gulong>(USBDEVFS_CONTROL)) {
    return false;
  }
  Control(client, number);
  return true;
}

void UmockdevFrontEnd::Control(UMockdevIoctlClient &client, int number) {
  using Data = std::unique_ptr<UMockdevIoctlData, ObjectRelease>;
  const Data setup(umockdev_ioctl_data_resolve(umockdev_ioctl_client_get_arg(&client), 0,
                                               sizeof(usbdevfs_ctrltransfer), nullptr));
  if (!setup) {
    Fail(client, EFAULT);
    return;
  }
  const auto &packet = *reinterpret_cast<const usbdevfs_ctrltransfer *>(setup->data);
  if (packet.wLength > kLongestDataStage) {
    Fail(client, EINVAL);
    return;
  }
  Data data;
  if (packet.wLength > 0) {
    data.reset(umockdev_ioctl_data_resolve(setup.get(), offsetof(usbdevfs_ctrltransfer, data),
                                           packet.wLength, nullptr));
    if (!data) {
      Fail(client, EFAULT);
      return;
    }
  }
  const TransferResult result = requests_.Transfer(
      number, {packet.bRequestType, packet.bRequest, packet.wValue, packet.wIndex, packet.wLength});
  switch (result.outcome) {
    case Outcome::kDone:
      std::copy(result.data.begin(), result.data.end(), data ? data->data : nullptr);
      umockdev_ioctl_client_complete(&client, static_cast<glong>(result.data.size()), 0);
      break;
    case Outcome::kStalled:
      Fail(client, EPIPE);
      break;
    case Outcome::kNoReply:
      WaitInVain(client, number, packet.timeout);
      break;
    case Outcome::kUnplugged:
    case Outcome::kGone:
      Fail(client, ENODEV);
      break;
  }
}

void UmockdevFrontEnd::WaitInVain(UMockdevIoctlClient &client, int number, unsigned milliseconds) {
  const std::lock_guard lock(mutex_);
  if (!unitOfNode_.contains(umockdev_ioctl_client_get_devnode(&client))) {
    Fail(client, ENODEV);
    return;
  }
  // In usbfs, a time-out of 0 means to wait without limit.
  GSource *timer = g_timeout_source_new(milliseconds == 0 ? G_MAXUINT : milliseconds);
  auto *pending = new Pending{this,
                              std::unique_ptr<UMockdevIoctlClient, ObjectRelease>(
                                  static_cast<UMockdevIoctlClient *>(g_object_ref(&client))),
                              number, timer};
  g_source_set_callback(timer, OnTimeOut, pending,
                        [](gpointer gone) { delete static_cast<Pending *>(gone); });
  pending_.insert(pending);
  g_source_attach(timer, g_main_context_get_thread_default());
  g_source_unref(timer);
}

gboolean UmockdevFrontEnd::OnTimeOut(gpointer pending) {
  auto *self = static_cast<Pending *>(pending);
  const std::lock_guard lock(self->owner->mutex_);
  if (self->owner->pending_.erase(self) != 0) Fail(*self->client, ETIMEDOUT);
  return G_SOURCE_REMOVE;
}

void UmockdevFrontEnd::EndPending(int number) {
  std::vector<std::unique_ptr<GSource, decltype(&g_source_unref)>> timers;
  {
    const std::lock_guard lock(mutex_);
    for (auto next = pending_.begin(); next != pending_.end();) {
      Pending *const one = *next;
      if (one->number != number) {
        ++next;
        continue;
      }
      next = pending_.erase(next);
      Fail(*one->client, ENODEV);
      timers.emplace_back(g_source_ref(one->timer), g_source_unref);
    }
  }
  for (const auto &timer : timers) g_source_destroy(timer.get());
}

void UmockdevFrontEnd::Attach(const std::string &node) {
  // The handler stays attached after an unplug: a host may just be opening the node.
  if (!attached_.insert(node).second) return;
  GError *error = nullptr;
  if (umockdev_testbed_attach_ioctl(testbed_.get(), node.c_str(), handler_.get(), &error) ==
      FALSE) {
    const std::string reason = error->message;
    g_error_free(error);
    throw DeskError("cannot listen for " + node + ": " + reason);
  }
  fs::permissions(RootFolder() + "/ioctl" + node, static_cast<fs::perms>(0666));
}

int UmockdevFrontEnd::NextDeviceNumber() {
  const std::lock_guard lock(mutex_);
  for (int tried = 0; tried < kLastDeviceNumber; ++tried) {
    // 2 follows the last number, as in the kernel: 1 is the root hub.
    lastDeviceNumber_ = lastDeviceNumber_ == kLastDeviceNumber ? 2 : lastDeviceNumber_ + 1;
    const UsbDevice candidate{"", {1, lastDeviceNumber_}, {}};
    if (!unitOfNode_.contains(candidate.NodePath())) return lastDeviceNumber_;
  }
  throw DeskError("the bus is full; `unplug` a unit first");
}

}  // namespace trxsim
