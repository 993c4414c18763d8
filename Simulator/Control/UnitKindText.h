#pragma once

#include <string>
#include <vector>

#include "../Model/UnitKind.h"

namespace trxsim {

/// The kind of unit that `word` names: a mixer model in any case ("TRX-VOLT"), or the ids of
/// another device ("1234:0001"). Throws `CommandError`.
UnitKind ParseUnitKind(const std::string &word);

/// The units that `text` names: how many mixers of the first model ("2"), or their kinds, separated
/// by commas ("TRX-SELVA,TRX-VOLT"). Throws `CommandError`.
std::vector<UnitKind> ParseUnits(const std::string &text);

/// The names of all models, separated by commas.
std::string ModelNames();

/// The maker's vendor id as it is written in ids, such as "4f52".
std::string MakerIdText();

}  // namespace trxsim
