// The tests of the bus need umockdev's preloaded library. The program starts itself again with it,
// so that it can be started like any other.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr const char *kPreload = "libumockdev-preload.so.0";

void Prepend(const char *variable, const std::string &value, char separator) {
  const char *const before = std::getenv(variable);
  const std::string all = before != nullptr ? value + separator + before : value;
  setenv(variable, all.c_str(), 1);
}

bool IsLoaded() {
  void *const library = dlopen(kPreload, RTLD_LAZY | RTLD_NOLOAD);
  if (library != nullptr) dlclose(library);
  return library != nullptr;
}

// Set for the program's second start, to prevent a third.
constexpr const char *kSecondStart = "TRX_BUS_TESTS_SECOND_START";

}  // namespace

// The thread sanitizer does not see how GLib synchronises its own threads. These tests run the
// library on one thread only.
extern "C" __attribute__((visibility("default"))) const char *__tsan_default_suppressions() {
  return "race:libglib-2.0.so\nrace:libgobject-2.0.so\nrace:libgio-2.0.so\n"
         "race:libumockdev.so\nrace:libumockdev-preload.so\n";
}

int main(int argc, char **argv) {
  if (!IsLoaded()) {
    if (std::getenv(kSecondStart) != nullptr) {
      std::fprintf(stderr, "%s cannot be loaded\n", kPreload);
      return 1;
    }
    Prepend("LD_PRELOAD", kPreload, ':');
    setenv(kSecondStart, "1", 1);
    Prepend("ASAN_OPTIONS", "verify_asan_link_order=0", ':');
    execv("/proc/self/exe", argv);
    std::perror("exec");
    return 1;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
