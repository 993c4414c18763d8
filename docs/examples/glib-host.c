/* The same host on GLib's main loop: tells of changes of the boost level, and sets it when a digit
 * is typed. */
#include <glib-unix.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

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

  ORV_RegisterBoostLevelChangedCallback(ORV_PRODUCT_TRX_SELVA, boost_changed, NULL);
  ORV_GetNotificationDescriptor(&descriptor);
  g_unix_fd_add(descriptor, G_IO_IN, notifications_arrived, NULL);
  g_unix_fd_add(STDIN_FILENO, G_IO_IN | G_IO_HUP, key_typed, loop);
  g_print("ready\n");

  g_main_loop_run(loop);
  g_main_loop_unref(loop);
  return 0;
}
