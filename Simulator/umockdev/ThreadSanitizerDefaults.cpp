// Only for the thread sanitizer. It does not see how libraries that were built without it
// synchronise their threads, and reports races in them. Our own code is still checked.

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
