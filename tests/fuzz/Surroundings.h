// The surroundings of a fuzz target: nothing that it does reaches the user's own settings, bus or
// mixers.
#pragma once

#include <string>

namespace trxfuzz {

/// Makes a settings folder of this process's own, in memory where the system offers that, and takes
/// the session bus away. Refuses to go on when a mixer is connected. Returns the folder in which
/// the library keeps its files; it exists.
std::string MakeSurroundings();

}  // namespace trxfuzz
