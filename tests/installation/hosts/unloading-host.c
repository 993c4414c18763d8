/* Keeps a text longer than it keeps the library: loads it, asks, closes it, and prints. */
#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

int main(void) {
  StatusCode (*getText)(ProductId, uint32_t, uint32_t, ORVStringRef *) = NULL;
  ORVStringRef text = NULL;
  void *library = dlopen("libTRX-SELVASetup.so.1", RTLD_NOW);
  void *function = library != NULL ? dlsym(library, "ORV_GetBoostLevelText") : NULL;
  if (function == NULL) return 2;
  memcpy(&getText, &function, sizeof function);
  if (getText(ORV_PRODUCT_TRX_SELVA, 1, 0, &text) != ORV_SUCCESS) return 1;
  if (dlclose(library) != 0) return 3;
  return puts(text) >= 0 ? 0 : 4;
}
