// Suppressions of the thread sanitizer for this rig. The sanitizer tracks descriptors through the
// functions that open and close them, but umockdev's preloaded library calls the C library
// directly. So a thread that closes a folder seems to race with another thread that had a file of
// the same number open before. The code under test never passes a descriptor to another thread.
extern "C" __attribute__((visibility("default"))) const char *__tsan_default_suppressions();

extern "C" const char *__tsan_default_suppressions() { return "race:closedir\n"; }
