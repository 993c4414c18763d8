#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Output.h"

namespace trxctl {

/// The word that asks for completions; the shells' completion scripts begin their question with it.
inline constexpr char kCompleteWord[] = "complete";

/// Prints what the last of the words, as typed so far, could become: one candidate a line, with
/// what it is behind a tab where there is something to say.
///
/// @param program  the command line as the parser knows it.
/// @param words    the words behind the program's name, as the shell has them, quotes included; the
///                 last is the one that the cursor is in, possibly empty.
void Complete(const CLI::App &program, std::vector<std::string> words, const Output &output);

}  // namespace trxctl
