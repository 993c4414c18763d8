/* Prints changes of the boost level and of the input routing of TRX-SELVA, whoever makes them.
 * Sends the stored settings to a mixer that is plugged in. A digit from 0 to 3 on standard input
 * sets the boost level; the end of the input ends the program. */
#include <errno.h>
#include <poll.h>
#include <stdio.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "plug-monitor.h"

static void boost_changed(int32_t index, void *context) {
  ORVStringRef text = "not a level";
  (void)context;
  ORV_GetBoostLevelText(ORV_PRODUCT_TRX_SELVA, (uint32_t)index, 0, &text);
  printf("boost level: %s\n", text);
}

static void input_changed(int32_t channel, int32_t index, void *context) {
  ORVStringRef text = "not a choice";
  (void)context;
  ORV_GetUSBInputAudioText(ORV_PRODUCT_TRX_SELVA, channel, (uint32_t)index, 0, &text);
  printf("recording channel %d: %s\n", channel + 1, text);
}

static void usb_device_came_or_went(struct udev_monitor *monitor) {
  ProductId model = 0;
  if (!mixer_was_plugged_in(monitor, &model)) return;
  send_stored_settings(model);
  puts("settings sent to the new mixer");
}

/* Sets the level that was typed. Zero at the end of the input. */
static int key_typed(void) {
  char key = 0;
  if (read(STDIN_FILENO, &key, 1) != 1) return 0;
  if (key >= '0' && key <= '3') {
    ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, (uint32_t)(key - '0'));
  }
  return 1;
}

int main(void) {
  struct udev_monitor *monitor = listen_for_usb_devices();
  struct pollfd loop[3] = {
      {-1, POLLIN, 0}, {udev_monitor_get_fd(monitor), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
  setvbuf(stdout, NULL, _IOLBF, 0);

  ORV_RegisterBoostLevelChangedCallback(ORV_PRODUCT_TRX_SELVA, boost_changed, NULL);
  ORV_RegisterInputAudioChangedCallback(ORV_PRODUCT_TRX_SELVA, input_changed, NULL);
  ORV_GetNotificationDescriptor(&loop[0].fd);
  puts("ready");

  for (;;) {
    if (poll(loop, 3, -1) < 0) {
      if (errno == EINTR) continue;
      return 1;
    }
    if (loop[0].revents != 0) ORV_DispatchNotifications();
    if (loop[1].revents != 0) usb_device_came_or_went(monitor);
    if (loop[2].revents != 0 && !key_typed()) return 0;
  }
}
