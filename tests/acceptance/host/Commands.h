// The commands of acceptance-host, one a line; each is answered by one line "= ANSWER". A callback
// that runs prints "! TAG INDEX" or "! TAG CHANNEL INDEX", an observer "! kind KIND outcome
// OUTCOME".
//
//   call FUNCTION NUMBER...           calls an exported function; answers its status and its
//                                     results
//   register FUNCTION PRODUCT TAG     registers a callback whose context is the tag
//   unregister FUNCTION PRODUCT
//   levels PRODUCT COUNT              sets the boost level COUNT times, 0 1 2 3 0 1 ...
//   observe-requests                  reports of the requests made from now on are printed
//   stop-receiving, go-on-receiving   the event loop ignores notifications, or not
//   give-up admin                     drops the privilege to open what others hold
//   give-up root                      becomes the user nobody, if it was root
//   give-up space                     as on a full disk: no file can be written
#pragma once

#include <string>

namespace trxtest {

/// Runs the complete lines of what was read so far; keeps the rest.
void CarryOut(std::string &input);

/// Whether the event loop should deliver notifications now.
bool IsReceiving();

}  // namespace trxtest
