#include "Listing.h"

#include <algorithm>
#include <cstring>

#include "Words.h"

namespace trxctl {
namespace {

constexpr std::size_t kColumn = 24;

std::string Row(const client::MixerResult &result) {
  std::string row = "  " + Describe(result.mixer);
  if (!result.mixer.serial.empty()) row += ", serial " + Printable(result.mixer.serial);
  if (result.refusal != 0) {
    row += std::string(": may not be opened (") + std::strerror(result.refusal) + ")";
  }
  return row + '\n';
}

std::string MixersAsText(const Output &output, const client::Delivery &reachable) {
  if (!reachable.connected) return "No mixer is connected.\n";
  std::string text = output.Strong("Connected mixers") + '\n';
  int refusal = 0;
  for (const client::MixerResult &result : reachable.mixers) {
    text += Row(result);
    if (refusal == 0) refusal = result.refusal;
  }
  if (reachable.mixers.empty()) text += "  at least one, but the system does not tell which\n";
  if (refusal != 0) text += "hint: " + AccessHint(refusal) + '\n';
  return text;
}

std::string Row(const client::Setting &setting) {
  std::string title = TitleOf(setting);
  title.resize(std::max(kColumn, title.size() + 2), ' ');
  return "  " + title + CurrentAsText(setting) + '\n';
}

Json ChoicesAsJson(const client::Setting &setting) {
  Json json = Json::array();
  const auto count = static_cast<int32_t>(setting.Choices().size());
  for (int32_t index = 0; index < count; ++index) json.push_back(ChoiceAsJson(setting, index));
  return json;
}

/// What an answer tells of one setting: what is stored and what there is to choose from.
Json StateAsJson(const client::Setting &setting) {
  return {{"current", ChoiceAsJson(setting, setting.Current())},
          {"choices", ChoicesAsJson(setting)}};
}

/// Hints that are no part of the list.
void Note(const Session &session, const client::Setting &setting) {
  if (!setting.TakesChoices()) {
    session.output.Note("hint: " + std::string(setting.model->name) +
                        " takes no choice from this list; see trxctl " +
                        std::string(setting.kind->name) + " --help for --raw");
  } else if (!setting.TextOf(setting.Current())) {
    session.output.Note("hint: " + StoreOneHint(setting));
  }
}

std::string Heading(const Session &session, const client::Setting &setting,
                    const std::string &title) {
  return session.output.Strong(std::string(setting.model->name) + ' ' + title);
}

}  // namespace

void Show(const Session &session) {
  const client::Delivery reachable = client::Reachable();
  std::string text = MixersAsText(session.output, reachable) + '\n' +
                     session.output.Strong(std::string(session.model.name) + " settings") + '\n';
  Json json{{"model", session.model.name},
            {"product_id", session.model.id},
            {"connected", reachable.connected},
            {"mixers", DeliveryAsJson(reachable)["mixers"]},
            {"settings", Json::array()}};
  for (const client::Setting &setting : client::SettingsOf(session.model)) {
    text += Row(setting);
    Json entry = NameAsJson(setting);
    entry.update(ChoiceAsJson(setting, setting.Current()));
    json["settings"].push_back(std::move(entry));
  }
  session.output.Print(text, json);
}

void ListChoices(const Session &session, const client::Setting &setting) {
  const int32_t current = setting.Current();
  const std::vector<std::string> choices = setting.Choices();
  const std::size_t first = setting.kind->firstNumber;
  const std::size_t digits = std::to_string(first + choices.size() - 1).size();

  std::string text =
      Heading(session, setting, TitleOf(setting)) + ": " + CurrentAsText(setting) + '\n';
  for (std::size_t index = 0; index < choices.size(); ++index) {
    const bool isChosen = static_cast<int32_t>(index) == current;
    const std::string number = std::to_string(first + index);
    const std::string line =
        std::string(digits - number.size(), ' ') + number + "  " + choices[index];
    text += isChosen ? "* " + session.output.Strong(line) + '\n' : "  " + line + '\n';
  }
  Json json = HeadingAsJson(setting);
  json["settable"] = setting.TakesChoices();
  json.update(StateAsJson(setting));
  session.output.Print(text, json);
  Note(session, setting);
}

void ListChannels(const Session &session, const std::vector<client::Setting> &settings) {
  const client::Setting &first = settings.front();
  std::string text = Heading(session, first, std::string(first.kind->title)) + '\n';
  Json json{{"model", first.model->name},
            {"setting", first.kind->name},
            {"settable", first.TakesChoices()},
            {"channels", Json::array()}};
  for (const client::Setting &setting : settings) {
    text +=
        "  channel " + std::to_string(setting.channel + 1) + "  " + CurrentAsText(setting) + '\n';
    Json entry{{"channel", setting.channel + 1}};
    entry.update(StateAsJson(setting));
    json["channels"].push_back(std::move(entry));
  }
  session.output.Print(text, json);
  for (const client::Setting &setting : settings) {
    Note(session, setting);
    if (!setting.TakesChoices()) break;
  }
}

}  // namespace trxctl
