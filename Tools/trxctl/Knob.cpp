#include "Knob.h"

#include "LibraryText.h"

namespace trxctl {

bool Knob::Offered() const {
  uint32_t count = 0;
  return setting_.functions.count(model_.id, channel_, &count) == ORV_SUCCESS;
}

bool Knob::TakesChoices() const {
  return setting_.extras.takes_choices == nullptr || setting_.extras.takes_choices(model_.id);
}

std::string Knob::Title() const {
  std::string title(setting_.title);
  // People count the channels of a mixer from 1, as they are labelled on it.
  if (channel_ != kNoChannel) title += " channel " + std::to_string(channel_ + 1LL);
  return title;
}

std::string Knob::CommandLine(const std::string &words) const {
  std::string line = "trxctl " + std::string(setting_.name);
  if (channel_ != kNoChannel) line += ' ' + std::to_string(channel_ + 1LL);
  if (!words.empty()) line += ' ' + words;
  if (model_.name != kDefaultModel) line += " --model " + std::string(model_.name);
  return line;
}

std::vector<std::string> Knob::Choices() const {
  std::vector<std::string> choices;
  while (const auto text = TextOf(static_cast<int32_t>(choices.size()))) choices.push_back(*text);
  return choices;
}

std::optional<std::string> Knob::TextOf(int32_t index) const {
  // The text functions answer for some numbers that are no choices, so the count decides.
  uint32_t count = 0;
  ORVStringRef text = nullptr;
  if (setting_.functions.count(model_.id, channel_, &count) != ORV_SUCCESS ||
      static_cast<uint32_t>(index) >= count ||
      setting_.functions.text(model_.id, channel_, static_cast<uint32_t>(index), &text) !=
          ORV_SUCCESS) {
    return std::nullopt;
  }
  return CharactersOf(text);
}

int32_t Knob::Current() const {
  int32_t index = -1;
  setting_.functions.get(model_.id, channel_, &index);
  return index;
}

StatusCode Knob::Set(uint32_t index) const {
  return setting_.functions.set(model_.id, channel_, index);
}

bool Knob::CanSendAgain(int32_t index) const {
  return setting_.again_count == 0 || index < setting_.again_count;
}

bool Knob::SetAgain() const { return setting_.functions.again(model_.id, channel_) == ORV_SUCCESS; }

std::vector<Knob> KnobsOf(const Setting &setting, const Model &model) {
  std::vector<Knob> knobs;
  for (int32_t channel = setting.has_channels ? 0 : kNoChannel;
       Knob(setting, model, channel).Offered(); ++channel) {
    knobs.emplace_back(setting, model, channel);
    if (!setting.has_channels) break;
  }
  return knobs;
}

}  // namespace trxctl
