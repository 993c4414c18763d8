/* Notices mixers that are plugged in, and sends them the stored settings. Needs libudev. */
#ifndef PLUG_MONITOR_H
#define PLUG_MONITOR_H

#include <libudev.h>
#include <string.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

/* Starts listening. Watch the descriptor that udev_monitor_get_fd gives for reading. */
static inline struct udev_monitor *listen_for_usb_devices(void) {
  struct udev *udev = udev_new();
  struct udev_monitor *monitor = udev_monitor_new_from_netlink(udev, "udev");
  udev_monitor_filter_add_match_subsystem_devtype(monitor, "usb", "usb_device");
  udev_monitor_enable_receiving(monitor);
  udev_unref(udev);
  return monitor;
}

static inline int attribute_is(struct udev_device *device, const char *name, const char *value) {
  const char *found = udev_device_get_sysattr_value(device, name);
  return found != NULL && strcmp(found, value) == 0;
}

/* Takes one event. True when a mixer was plugged in; "model" is what its product name says. udev
 * sends "add" when this user may open the device. */
static inline int mixer_was_plugged_in(struct udev_monitor *monitor, ProductId *model) {
  struct udev_device *device = udev_monitor_receive_device(monitor);
  const char *action = device != NULL ? udev_device_get_action(device) : NULL;
  int plugged_in =
      action != NULL && strcmp(action, "add") == 0 && attribute_is(device, "idVendor", "4f52") &&
      attribute_is(device, "idProduct", "001f") &&
      ORV_GetProductId(udev_device_get_sysattr_value(device, "product"), model) == ORV_SUCCESS;
  udev_device_unref(device);
  return plugged_in;
}

/* Sends everything that this model has. What the model does not have is refused and not sent. */
static inline void send_stored_settings(ProductId model) {
  for (int32_t channel = 0; channel < 3; ++channel) {
    ORV_SetCurrentUSBInputAudio(model, channel);
    ORV_SetCurrentUSBOutputAudio(model, channel);
  }
  ORV_SetCurrentBoostLevelIndex(model);
  ORV_SetCurrentMidiChannelIndex(model);
}

#endif
