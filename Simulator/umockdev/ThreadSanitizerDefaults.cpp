// Only in a build with the thread sanitizer: it cannot see how libraries that were built without it
// keep their threads apart, and takes their every step for a race. Our own code stays under watch.

extern "C" const char *__tsan_default_suppressions();

extern "C" __attribute__((visibility("default"))) const char *__tsan_default_suppressions() {
  return "race_top:libumockdev.so\n"
         "race_top:libgobject-2.0.so\n"
         "race_top:libglib-2.0.so\n"
         "race_top:libgio-2.0.so\n"
         "called_from_lib:libumockdev.so\n"
         "called_from_lib:libgobject-2.0.so\n"
         "called_from_lib:libglib-2.0.so\n"
         "called_from_lib:libgio-2.0.so\n";
}
