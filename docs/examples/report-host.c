/* Sets the boost level and prints what became of it at each mixer, and where it is stored. */
#include <stdio.h>

#include <TRX-SELVASetup/Diagnostics.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

static const char *words(int32_t outcome) {
  switch (outcome) {
    case ORV_OUTCOME_DONE:
      return "done";
    case ORV_OUTCOME_SHORT_REPLY:
      return "short reply";
    case ORV_OUTCOME_REFUSED:
      return "refused";
    case ORV_OUTCOME_NO_ANSWER:
      return "no answer";
    case ORV_OUTCOME_GONE:
      return "unplugged";
    case ORV_OUTCOME_NO_PERMISSION:
      return "no permission to open it";
    case ORV_OUTCOME_BUSY:
      return "another program holds it";
    default:
      return "failed";
  }
}

static void request_ended(const ORVRequestReport *report, void *context) {
  int *taken = context;
  printf("bus %u, address %u: %s\n", (unsigned)report->bus, (unsigned)report->address,
         words(report->outcome));
  if (report->outcome == ORV_OUTCOME_DONE) ++*taken;
}

int main(void) {
  int taken = 0;
  ORVStringRef path = NULL;

  ORV_ObserveRequests(request_ended, &taken);
  ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, 1);
  ORV_ObserveRequests(NULL, NULL);

  printf("taken by %d\n", taken);
  if (ORV_GetSettingsFilePath(ORV_PRODUCT_TRX_SELVA, &path) == ORV_SUCCESS) {
    printf("stored in %s\n", path);
  }
  return 0;
}
