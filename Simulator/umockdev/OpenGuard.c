/* Loaded into every program that runs under the software mixers, before libumockdev-preload.
 *
 * libumockdev-preload keeps a table of 50 opened devices in each process. An open that fails takes
 * a place in it under descriptor -1 and keeps it, and a full table ends the program; telling it
 * that -1 is closed gives the place back. And a node that is not in the testbed it opens on the
 * real machine: a host that is just opening a mixer when it is unplugged would reach whatever real
 * device has that address. Here such an open fails, as it does when the kernel removed the node.
 */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>

#define EXPORTED __attribute__((visibility("default")))

typedef int open_function(const char *, int, ...);
typedef int checked_open_function(const char *, int);
typedef int close_function(int);

int __open_2(const char *path, int flags);
int __open64_2(const char *path, int flags);

static int begins_with(const char *path, const char *beginning) {
  return path != NULL && strncmp(path, beginning, strlen(beginning)) == 0;
}

/* Sets a function pointer to what this library stands in front of. */
static void find_next(const char *name, void *pointer) {
  void *address = dlsym(RTLD_NEXT, name);
  if (address == NULL) abort();
  memcpy(pointer, &address, sizeof address);
}

static int is_missing(const char *path) {
  const char *testbed = getenv("UMOCKDEV_DIR");
  char inside[PATH_MAX];
  struct stat status;
  if (testbed == NULL || !begins_with(path, "/dev/bus/usb/")) return 0;
  const int length = snprintf(inside, sizeof inside, "%s%s", testbed, path);
  if (length < 0 || (size_t)length >= sizeof inside) return 1;
  return lstat(inside, &status) != 0;
}

static int fail_missing(void) {
  errno = ENOENT;
  return -1;
}

static int give_place_back(int descriptor, const char *path) {
  if (descriptor >= 0 || !begins_with(path, "/dev/")) return descriptor;
  const int error = errno;
  close_function *next;
  find_next("close", &next);
  next(-1);
  errno = error;
  return -1;
}

#define GUARDED_OPEN(name)                                 \
  EXPORTED int name(const char *path, int flags, ...) {    \
    open_function *next;                                   \
    mode_t mode = 0;                                       \
    if ((flags & (O_CREAT | O_TMPFILE)) != 0) {            \
      va_list arguments;                                   \
      va_start(arguments, flags);                          \
      mode = va_arg(arguments, mode_t);                    \
      va_end(arguments);                                   \
    }                                                      \
    if (is_missing(path)) return fail_missing();           \
    find_next(#name, &next);                               \
    return give_place_back(next(path, flags, mode), path); \
  }

#define GUARDED_CHECKED_OPEN(name)                   \
  EXPORTED int name(const char *path, int flags) {   \
    checked_open_function *next;                     \
    if (is_missing(path)) return fail_missing();     \
    find_next(#name, &next);                         \
    return give_place_back(next(path, flags), path); \
  }

GUARDED_OPEN(open)
GUARDED_OPEN(open64)
GUARDED_CHECKED_OPEN(__open_2)
GUARDED_CHECKED_OPEN(__open64_2)
