#include "Show.h"

#include <cstring>

#include "Knob.h"
#include "MixerList.h"
#include "Setting.h"
#include "SettingList.h"
#include "Text.h"

namespace trxctl {
namespace {

constexpr std::size_t kColumn = 24;

std::string Row(const Mixer &mixer) {
  std::string row = "  " + Describe(mixer);
  if (!mixer.serial.empty()) row += ", serial " + mixer.serial;
  if (!mixer.accessible()) {
    row += std::string(": may not be opened (") + std::strerror(mixer.refusal) + ")";
  }
  return row + '\n';
}

std::string MixersAsText(const Terminal &terminal, bool connected,
                         const std::vector<Mixer> &mixers) {
  if (!connected) return "No mixer is connected.\n";
  std::string text = terminal.Strong("Connected mixers") + '\n';
  for (const Mixer &mixer : mixers) text += Row(mixer);
  if (mixers.empty()) text += "  at least one, but the system does not tell which\n";
  if (CountAccessible(mixers) < mixers.size()) text += "hint: " + AccessHint(mixers) + '\n';
  return text;
}

std::string Row(const Knob &knob) {
  std::string title = knob.Title();
  title.resize(std::max(kColumn, title.size() + 2), ' ');
  return "  " + title + CurrentAsText(knob) + '\n';
}

}  // namespace

void Show(const Session &session) {
  const bool connected = IsMixerConnected();
  const std::vector<Mixer> mixers = connected ? ConnectedMixers() : std::vector<Mixer>();

  std::string text = MixersAsText(session.terminal, connected, mixers) + '\n' +
                     session.terminal.Strong(std::string(session.model.name) + " settings") + '\n';
  nlohmann::ordered_json json{{"model", session.model.name},
                              {"product_id", session.model.id},
                              {"connected", connected},
                              {"mixers", nlohmann::ordered_json::array()},
                              {"settings", nlohmann::ordered_json::array()}};
  for (const Mixer &mixer : mixers) json["mixers"].push_back(ToJson(mixer));
  for (const Setting &setting : Settings()) {
    for (const Knob &knob : KnobsOf(setting, session.model)) {
      text += Row(knob);
      nlohmann::ordered_json entry = NameAsJson(knob);
      entry.update(ChoiceAsJson(knob, knob.Current()));
      json["settings"].push_back(std::move(entry));
    }
  }
  session.terminal.Print(text, json);
}

}  // namespace trxctl
