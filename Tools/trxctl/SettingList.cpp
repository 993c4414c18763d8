#include "SettingList.h"

#include "Text.h"

namespace trxctl {
namespace {

using Json = nlohmann::ordered_json;

Json ChoicesAsJson(const Knob &knob) {
  Json json = Json::array();
  const auto count = static_cast<int32_t>(knob.Choices().size());
  for (int32_t index = 0; index < count; ++index) json.push_back(ChoiceAsJson(knob, index));
  return json;
}

/// What an answer tells of one knob: what is stored and what there is to choose from.
Json StateAsJson(const Knob &knob) {
  return {{"current", ChoiceAsJson(knob, knob.Current())}, {"choices", ChoicesAsJson(knob)}};
}

/// Hints that are no part of the list.
void Note(const Session &session, const Knob &knob) {
  if (!knob.TakesChoices()) {
    session.terminal.Note("hint: " + std::string(knob.model().name) +
                          " takes no choice from this list; see " + "trxctl " +
                          std::string(knob.setting().name) + " --help for --raw");
  } else if (!knob.TextOf(knob.Current())) {
    session.terminal.Note("hint: " + StoreOneHint(knob));
  }
}

std::string Title(const Session &session, const Knob &knob, const std::string &title) {
  return session.terminal.Strong(std::string(knob.model().name) + ' ' + title);
}

}  // namespace

void ListChoices(const Session &session, const Knob &knob) {
  const int32_t current = knob.Current();
  const std::vector<std::string> choices = knob.Choices();
  const std::size_t first = knob.setting().first_number;
  const std::size_t digits = std::to_string(first + choices.size() - 1).size();

  std::string text = Title(session, knob, knob.Title()) + ": " + CurrentAsText(knob) + '\n';
  for (std::size_t index = 0; index < choices.size(); ++index) {
    const bool chosen = static_cast<int32_t>(index) == current;
    const std::string number = std::to_string(first + index);
    const std::string line =
        std::string(digits - number.size(), ' ') + number + "  " + choices[index];
    text += chosen ? "* " + session.terminal.Strong(line) + '\n' : "  " + line + '\n';
  }
  Json json = HeadingAsJson(knob);
  json["settable"] = knob.TakesChoices();
  json.update(StateAsJson(knob));
  session.terminal.Print(text, json);
  Note(session, knob);
}

void ListChannels(const Session &session, const std::vector<Knob> &knobs) {
  const Knob &first = knobs.front();
  std::string text = Title(session, first, std::string(first.setting().title)) + '\n';
  Json json{{"model", first.model().name},
            {"setting", first.setting().name},
            {"settable", first.TakesChoices()},
            {"channels", Json::array()}};
  for (const Knob &knob : knobs) {
    text += "  channel " + std::to_string(knob.channel() + 1) + "  " + CurrentAsText(knob) + '\n';
    Json entry{{"channel", knob.channel() + 1}};
    entry.update(StateAsJson(knob));
    json["channels"].push_back(std::move(entry));
  }
  session.terminal.Print(text, json);
  for (const Knob &knob : knobs) {
    Note(session, knob);
    if (!knob.TakesChoices()) break;
  }
}

std::string CurrentAsText(const Knob &knob) {
  const int32_t current = knob.Current();
  return knob.TextOf(current).value_or(std::to_string(current) + " (stored, but no " +
                                       std::string(knob.setting().choice) + ")");
}

std::string StoreOneHint(const Knob &knob) {
  return "another program stored it; choose one: " +
         knob.CommandLine(Quoted(knob.Choices().back()));
}

Json ChoiceAsJson(const Knob &knob, int32_t index) {
  Json json{{"index", index}, {"text", nullptr}};
  if (const auto text = knob.TextOf(index)) json["text"] = *text;
  return json;
}

Json NameAsJson(const Knob &knob) {
  Json json{{"setting", knob.setting().name}};
  if (knob.channel() != kNoChannel) json["channel"] = knob.channel() + 1LL;
  return json;
}

Json HeadingAsJson(const Knob &knob) {
  Json json{{"model", knob.model().name}};
  json.update(NameAsJson(knob));
  return json;
}

}  // namespace trxctl
