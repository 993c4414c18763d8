#include "CallLines.h"

namespace trxtest {

const char *const kMasterPortFunction = MASTER_PORT_FUNCTION;

}  // namespace trxtest
