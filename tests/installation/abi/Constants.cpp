// The exported functions take and return plain numbers, so no type of theirs contains the
// interface's constants. This function's type does, and so the description of this module has them.
#include <TRX-SELVASetup/Diagnostics.h>
#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

extern "C" ORV_EXPORT void Constants(decltype(ORV_PRODUCT_TRX_SELVA), decltype(ORV_SUCCESS),
                                     decltype(ORV_REQUEST_OPEN), decltype(ORV_OUTCOME_DONE)) {}
