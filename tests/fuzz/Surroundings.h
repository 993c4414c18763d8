// Private surroundings for a fuzz target, so that it cannot reach the user's settings, bus or
// mixers.
#pragma once

#include <string>

namespace trxfuzz {

/// Makes a private settings folder, in memory if possible, and hides the session bus. Refuses to
/// continue when a mixer is connected. Returns the folder of the library's files, which exists.
std::string MakeSurroundings();

}  // namespace trxfuzz
