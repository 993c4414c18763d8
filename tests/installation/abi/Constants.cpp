// The constants of the interface are in no type of a function: the functions take and return plain
// numbers. Here is one that has them, so that the description of this module does too.
#include <TRX-SELVASetup/Diagnostics.h>
#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

extern "C" ORV_EXPORT void Constants(decltype(ORV_PRODUCT_TRX_SELVA), decltype(ORV_SUCCESS),
                                     decltype(ORV_REQUEST_OPEN), decltype(ORV_OUTCOME_DONE)) {}
