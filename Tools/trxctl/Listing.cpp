#include "Listing.h"

#include <algorithm>
#include <cstring>

#include "Words.h"

namespace trxctl {
namespace {

constexpr std::size_t kColumn = 24;

std::string Row(const client::MixerResult &result) {
  std::string row = "  " + DescribeWithSerial(result.mixer);
  if (result.refusal != 0) {
    row += std::string(": may not be opened (") + std::strerror(result.refusal) + ")";
  }
  return row + '\n';
}

std::string MixersAsText(const Output &output, const client::Delivery &reachable) {
  if (!reachable.isConnected) return "No mixer is connected.\n";
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
  return {{"current", CurrentAsJson(setting)}, {"choices", ChoicesAsJson(setting)}};
}

/// Says that the settings file of a model cannot be used, if so.
void NoteFile(const Session &session, const client::Model &model) {
  if (const auto warning = FileWarning(model)) session.output.Note(*warning);
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

ExitCode Show(const Session &session) {
  const client::Delivery reachable = client::Reachable();
  std::string text = MixersAsText(session.output, reachable) + '\n' +
                     session.output.Strong(std::string(session.model.name) + " settings") + '\n';
  Json json{{"model", session.model.name},
            {"product_id", session.model.id},
            {"connected", reachable.isConnected},
            {"mixers", Json::array()},
            {"settings", Json::array()}};
  for (const client::MixerResult &result : reachable.mixers) {
    json["mixers"].push_back(AccessAsJson(result));
  }
  std::vector<std::string> hints;
  for (const client::Setting &setting : client::SettingsOf(session.model)) {
    text += Row(setting);
    if (!setting.TextOf(setting.Current())) hints.push_back("hint: " + StoreOneHint(setting));
    Json entry = NameAsJson(setting);
    entry.update(CurrentAsJson(setting));
    json["settings"].push_back(std::move(entry));
  }
  if (const auto warning = FileWarning(session.model)) hints.push_back(*warning);
  return session.output.Print({.text = text, .json = json, .notes = hints});
}

void ListChoices(const Session &session, const client::Setting &setting) {
  const int32_t current = setting.Current();
  const std::vector<std::string> choices = setting.Choices();
  const std::size_t digits = std::to_string(choices.size()).size();

  std::string text =
      Heading(session, setting, TitleOf(setting)) + ": " + CurrentAsText(setting) + '\n';
  for (std::size_t index = 0; index < choices.size(); ++index) {
    const bool isChosen = static_cast<int32_t>(index) == current;
    const std::string number = std::to_string(index + 1);
    const std::string line =
        std::string(digits - number.size(), ' ') + number + "  " + choices[index];
    text += isChosen ? "* " + session.output.Strong(line) + '\n' : "  " + line + '\n';
  }
  Json json = HeadingAsJson(setting);
  json["settable"] = setting.TakesChoices();
  json.update(StateAsJson(setting));
  session.output.Print(text, json);
  NoteFile(session, *setting.model);
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
  NoteFile(session, *first.model);
  for (const client::Setting &setting : settings) {
    Note(session, setting);
    if (!setting.TakesChoices()) break;
  }
}

}  // namespace trxctl
