#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace trxctl {

/// One connected mixer, as the system describes it.
struct Mixer {
  std::string product;
  unsigned bus;
  unsigned address;
  /// Empty when the mixer has none.
  std::string serial;
  /// 0 when this user may open the mixer, else the system's reason why not.
  int refusal;

  bool accessible() const { return refusal == 0; }
};

/// The connected mixers, in the order of their bus and address. Empty also when they cannot be
/// listed, as on macOS, where only the library looks for them.
std::vector<Mixer> ConnectedMixers();

/// Whether the library finds a mixer connected.
bool IsMixerConnected();

/// How many of the mixers this user may open.
std::size_t CountAccessible(const std::vector<Mixer> &mixers);

/// "TRX-SELVA (bus 1, address 5)".
std::string Describe(const Mixer &mixer);

/// The mixer as an object of the documented shape.
nlohmann::ordered_json ToJson(const Mixer &mixer);

/// What to do about the first of the mixers that may not be opened.
std::string AccessHint(const std::vector<Mixer> &mixers);

}  // namespace trxctl
