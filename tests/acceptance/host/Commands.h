// The commands of acceptance-host, one a line; each is answered by one line "= ANSWER". A callback
// that runs prints "! TAG INDEX" or "! TAG CHANNEL INDEX", an observer "! kind KIND outcome
// OUTCOME".
//
//   call FUNCTION NUMBER...           calls an exported function; answers its status, then what it
//                                     handed out
//   register FUNCTION PRODUCT TAG     registers a callback whose context is the tag
//   unregister FUNCTION PRODUCT
//   levels PRODUCT COUNT              sets the boost level COUNT times, 0 1 2 3 0 1 ...
//   observe-requests                  reports of the requests made from now on are printed
//   stop-receiving, go-on-receiving   the event loop leaves notifications alone, or not
//   give-up admin                     goes on without what lets it open what others hold
//   give-up root                      goes on as the user nobody, if it was root
//   give-up space                     goes on as on a full disk: no file can be written
#pragma once

#include <string>

namespace trxtest {

/// Carries out the complete lines of what was read so far; keeps the rest.
void CarryOut(std::string &input);

/// Whether the event loop is to deliver notifications now.
bool IsReceiving();

}  // namespace trxtest
