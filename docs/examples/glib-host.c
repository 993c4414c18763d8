/* Prints changes of the boost level, sets it when a digit is typed, and sends the stored settings
 * to a mixer that is plugged in: on GLib's main loop. */
#include <glib-unix.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "plug-monitor.h"

static void boost_changed(int32_t index, void *context) {
  ORVStringRef text = "not a level";
  (void)context;
  ORV_GetBoostLevelText(ORV_PRODUCT_TRX_SELVA, (uint32_t)index, 0, &text);
  g_print("boost level: %s\n", text);
}

static gboolean notifications_arrived(gint descriptor, GIOCondition condition, gpointer data) {
  (void)descriptor, (void)condition, (void)data;
  ORV_DispatchNotifications();
  return G_SOURCE_CONTINUE;
}

static gboolean usb_device_came_or_went(gint descriptor, GIOCondition condition, gpointer monitor) {
  ProductId model = 0;
  (void)descriptor, (void)condition;
  if (mixer_was_plugged_in(monitor, &model)) {
    send_stored_settings(model);
    g_print("settings sent to the new mixer\n");
  }
  return G_SOURCE_CONTINUE;
}

static gboolean key_typed(gint descriptor, GIOCondition condition, gpointer loop) {
  char key = 0;
  (void)condition;
  if (read(descriptor, &key, 1) != 1) {
    g_main_loop_quit(loop);
    return G_SOURCE_REMOVE;
  }
  if (key >= '0' && key <= '3') {
    ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, (uint32_t)(key - '0'));
  }
  return G_SOURCE_CONTINUE;
}

int main(void) {
  int32_t descriptor = -1;
  GMainLoop *loop = g_main_loop_new(NULL, FALSE);
  struct udev_monitor *monitor = listen_for_usb_devices();

  ORV_RegisterBoostLevelChangedCallback(ORV_PRODUCT_TRX_SELVA, boost_changed, NULL);
  ORV_GetNotificationDescriptor(&descriptor);
  g_unix_fd_add(descriptor, G_IO_IN, notifications_arrived, NULL);
  g_unix_fd_add(udev_monitor_get_fd(monitor), G_IO_IN, usb_device_came_or_went, monitor);
  g_unix_fd_add(STDIN_FILENO, G_IO_IN | G_IO_HUP, key_typed, loop);
  g_print("ready\n");

  g_main_loop_run(loop);
  udev_monitor_unref(monitor);
  g_main_loop_unref(loop);
  return 0;
}
