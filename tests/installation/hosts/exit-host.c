/* Sets one level while it runs and another one while it exits, when the connections of its threads
 * are gone already. */
#include <stdlib.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

static void SetAnother(void) { ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, 2); }

int main(void) {
  if (atexit(SetAnother) != 0) return 2;
  return ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, 1) == ORV_SUCCESS ? 0 : 1;
}
