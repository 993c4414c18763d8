// What the thread sanitizer must know about this rig. It follows descriptors through the functions
// that open and close them, but the library that umockdev loads in front of it calls the C library
// past it: a thread that closes a folder seems to race with another thread that had a file of the
// same number open before. Nothing in the code under test hands a descriptor to another thread.
extern "C" __attribute__((visibility("default"))) const char *__tsan_default_suppressions();

extern "C" const char *__tsan_default_suppressions() { return "race:closedir\n"; }
