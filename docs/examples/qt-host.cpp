// Prints changes of the boost level, sets it when a digit is typed, and sends the stored settings
// to a mixer that is plugged in: on Qt's event loop. Qt 5.15 or 6.
#include <QCoreApplication>
#include <QSocketNotifier>
#include <cstdio>

#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "plug-monitor.h"

static void BoostChanged(int32_t index, void * /*context*/) {
  ORVStringRef text = "not a level";
  ORV_GetBoostLevelText(ORV_PRODUCT_TRX_SELVA, static_cast<uint32_t>(index), 0, &text);
  std::printf("boost level: %s\n", text);
}

static void UsbDeviceCameOrWent(udev_monitor *monitor) {
  ProductId model = 0;
  if (!mixer_was_plugged_in(monitor, &model)) return;
  send_stored_settings(model);
  std::puts("settings sent to the new mixer");
}

static void KeyTyped() {
  char key = 0;
  if (read(STDIN_FILENO, &key, 1) != 1) return QCoreApplication::quit();
  if (key < '0' || key > '3') return;
  ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, static_cast<uint32_t>(key - '0'));
}

int main(int argc, char **argv) {
  QCoreApplication host(argc, argv);
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  udev_monitor *monitor = listen_for_usb_devices();

  int32_t descriptor = -1;
  ORV_RegisterBoostLevelChangedCallback(ORV_PRODUCT_TRX_SELVA, BoostChanged, nullptr);
  ORV_GetNotificationDescriptor(&descriptor);
  QSocketNotifier notifications(descriptor, QSocketNotifier::Read);
  QObject::connect(&notifications, &QSocketNotifier::activated,
                   [] { ORV_DispatchNotifications(); });

  QSocketNotifier usbDevices(udev_monitor_get_fd(monitor), QSocketNotifier::Read);
  QObject::connect(&usbDevices, &QSocketNotifier::activated,
                   [monitor] { UsbDeviceCameOrWent(monitor); });

  QSocketNotifier keys(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&keys, &QSocketNotifier::activated, KeyTyped);
  std::puts("ready");

  const int status = QCoreApplication::exec();
  udev_monitor_unref(monitor);
  return status;
}
