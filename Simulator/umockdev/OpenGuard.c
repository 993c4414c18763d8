/* Loaded into every program that runs under the software mixers, before libumockdev-preload.
 *
 * libumockdev-preload keeps a table of 50 opened devices in each process. An open that fails takes
 * a place in it under descriptor -1 and keeps it, and a full table ends the program; telling it
 * that -1 is closed gives the place back. And a node that is not in the testbed it opens on the
 * real machine: a host that is just opening a mixer when it is unplugged would reach whatever real
 * device has that address. Here such an open fails, as it does when the kernel removed the node.
 *
 * It also reads the table under a lock but writes it without one. When two threads open a mixer at
 * once, both may take the same place: the descriptor of one is forgotten, and its next request
 * fails with ENOTTY without reaching the mixer. Here whatever writes the table holds that lock.
 */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>

#define EXPORTED __attribute__((visibility("default")))

typedef int OpenFunction(const char *, int, ...);
typedef int CheckedOpenFunction(const char *, int);
typedef int CloseFunction(int);
typedef FILE *FileOpenFunction(const char *, const char *);
typedef int FileCloseFunction(FILE *);

int __open_2(const char *path, int flags);
int __open64_2(const char *path, int flags);

static int BeginsWith(const char *path, const char *beginning) {
  return path != NULL && strncmp(path, beginning, strlen(beginning)) == 0;
}

/* Sets a function pointer to what this library stands in front of. */
static void FindNext(const char *name, void *pointer) {
  void *address = dlsym(RTLD_NEXT, name);
  if (address == NULL) abort();
  memcpy(pointer, &address, sizeof address);
}

/* --- The lock of the table --- */

static pthread_mutex_t ownLock;
static pthread_mutex_t *tableLock;

/* Recursive, for a signal handler that closes a file in the middle of an open. */
static void MakeTableLock(void) {
  pthread_mutexattr_t recursive;
  pthread_mutexattr_init(&recursive);
  pthread_mutexattr_settype(&recursive, PTHREAD_MUTEX_RECURSIVE);
  pthread_mutex_init(tableLock, &recursive);
  pthread_mutexattr_destroy(&recursive);
}

static void FindTableLock(void);

static void LockTable(void) {
  static pthread_once_t once = PTHREAD_ONCE_INIT;
  pthread_once(&once, FindTableLock);
  pthread_mutex_lock(tableLock);
}

static void UnlockTable(void) { pthread_mutex_unlock(tableLock); }

/* A forked child must not wait for threads that only its parent has. */
static void FindTableLock(void) {
  void *ofReader = dlsym(RTLD_DEFAULT, "ioctl_lock");
  tableLock = ofReader != NULL ? ofReader : &ownLock;
  MakeTableLock();
  pthread_atfork(LockTable, UnlockTable, MakeTableLock);
}

/* --- What opens and closes --- */

static int IsMissing(const char *path) {
  const char *testbed = getenv("UMOCKDEV_DIR");
  char inside[PATH_MAX];
  struct stat status;
  if (testbed == NULL || !BeginsWith(path, "/dev/bus/usb/")) return 0;
  const int length = snprintf(inside, sizeof inside, "%s%s", testbed, path);
  if (length < 0 || (size_t)length >= sizeof inside) return 1;
  return lstat(inside, &status) != 0;
}

static int FailMissing(void) {
  errno = ENOENT;
  return -1;
}

static int IsDevice(const char *path) { return BeginsWith(path, "/dev/"); }

/* Closes without touching the table's lock: the caller holds it. */
static void GivePlaceBack(void) {
  const int error = errno;
  CloseFunction *next;
  FindNext("close", &next);
  next(-1);
  errno = error;
}

#define GUARDED_OPEN(name)                               \
  EXPORTED int name(const char *path, int flags, ...) {  \
    OpenFunction *next;                                  \
    mode_t mode = 0;                                     \
    if ((flags & (O_CREAT | O_TMPFILE)) != 0) {          \
      va_list arguments;                                 \
      va_start(arguments, flags);                        \
      mode = va_arg(arguments, mode_t);                  \
      va_end(arguments);                                 \
    }                                                    \
    if (IsMissing(path)) return FailMissing();           \
    FindNext(#name, &next);                              \
    if (!IsDevice(path)) return next(path, flags, mode); \
    LockTable();                                         \
    const int descriptor = next(path, flags, mode);      \
    if (descriptor < 0) GivePlaceBack();                 \
    UnlockTable();                                       \
    return descriptor;                                   \
  }

#define GUARDED_CHECKED_OPEN(name)                 \
  EXPORTED int name(const char *path, int flags) { \
    CheckedOpenFunction *next;                     \
    if (IsMissing(path)) return FailMissing();     \
    FindNext(#name, &next);                        \
    if (!IsDevice(path)) return next(path, flags); \
    LockTable();                                   \
    const int descriptor = next(path, flags);      \
    if (descriptor < 0) GivePlaceBack();           \
    UnlockTable();                                 \
    return descriptor;                             \
  }

#define GUARDED_FILE_OPEN(name)                             \
  EXPORTED FILE *name(const char *path, const char *mode) { \
    FileOpenFunction *next;                                 \
    FindNext(#name, &next);                                 \
    if (!IsDevice(path)) return next(path, mode);           \
    LockTable();                                            \
    FILE *const file = next(path, mode);                    \
    UnlockTable();                                          \
    return file;                                            \
  }

GUARDED_OPEN(open)
GUARDED_OPEN(open64)
GUARDED_CHECKED_OPEN(__open_2)
GUARDED_CHECKED_OPEN(__open64_2)
GUARDED_FILE_OPEN(fopen)
GUARDED_FILE_OPEN(fopen64)

EXPORTED int close(int descriptor) {
  CloseFunction *next;
  FindNext("close", &next);
  LockTable();
  const int result = next(descriptor);
  UnlockTable();
  return result;
}

EXPORTED int fclose(FILE *file) {
  FileCloseFunction *next;
  FindNext("fclose", &next);
  LockTable();
  const int result = next(file);
  UnlockTable();
  return result;
}
