/* Lists what the first recording channel can carry, chooses the signal given as a number, and shows
 * the warning that the state of the mixer calls for. */
#include <stdio.h>
#include <stdlib.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

enum { MODEL = ORV_PRODUCT_TRX_SELVA, CHANNEL = 0, LANGUAGE_OF_THE_SYSTEM = 99 };

int main(int argc, char **argv) {
  int32_t count = 0;
  int32_t stored = 0;
  StatusCode status = ORV_SUCCESS;
  ORVStringRef text = NULL;

  ORV_GetNumOfInputAudioIndex(MODEL, CHANNEL, &count);
  ORV_GetCurrentUSBInputAudioIndex(MODEL, CHANNEL, &stored);
  for (int32_t index = 0; index < count; ++index) {
    ORV_GetUSBInputAudioText(MODEL, CHANNEL, (uint32_t)index, 0, &text);
    printf("%c %d  %s\n", index == stored ? '*' : ' ', index, text);
  }
  if (argc < 2) return 0;

  status = ORV_SetUSBInputAudio(MODEL, CHANNEL, (uint32_t)strtoul(argv[1], NULL, 10));
  if (status == ORV_SUCCESS_WITH_WARNING) {
    ORV_GetWarningTextForSetUSBAudioInput(MODEL, CHANNEL, status, LANGUAGE_OF_THE_SYSTEM, &text);
    if (text != NULL) printf("%s\n", text);
  }
  return status == ORV_BAD_ARGUMENT ? 1 : 0;
}
