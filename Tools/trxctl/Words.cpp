#include "Words.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "client/StoredSettings.h"

namespace trxctl {
namespace {

/// "mixer (location 0x14100000)", as macOS knows it.
std::string DescribeByLocation(const client::Mixer &mixer) {
  if (mixer.location == 0) return mixer.product;
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "0x%08x", mixer.location);
  return mixer.product + " (location " + digits.data() + ")";
}

std::string ReasonAsText(const client::MixerResult &result) {
  return std::strerror(result.refusal);
}

}  // namespace

std::string Printable(std::string_view text) {
  std::string result(text);
  const auto isControl = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
  };
  std::replace_if(result.begin(), result.end(), isControl, '?');
  return result;
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t kLongest = 100;
  if (text.size() <= kLongest) return '"' + Printable(text) + '"';
  std::size_t end = kLongest;
  // Not within a letter of several bytes.
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  return '"' + Printable(text.substr(0, end)) + "...\"";
}

std::string Joined(const std::vector<std::string> &parts, std::string_view separator) {
  std::string result;
  for (const std::string &part : parts) {
    if (!result.empty()) result += separator;
    result += part;
  }
  return result;
}

std::string Counted(std::size_t number, std::string_view noun) {
  return std::to_string(number) + ' ' + std::string(noun) + (number == 1 ? "" : "s");
}

std::string Lower(std::string_view text) {
  std::string result(text);
  for (char &c : result) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return result;
}

std::vector<std::string> NamesOf(const std::vector<const client::Model *> &models) {
  std::vector<std::string> names;
  names.reserve(models.size());
  for (const client::Model *model : models) names.emplace_back(model->name);
  return names;
}

std::string Describe(const client::Mixer &mixer) {
  if (mixer.bus == 0) return DescribeByLocation(mixer);
  return Printable(mixer.product) + " (bus " + std::to_string(mixer.bus) + ", address " +
         std::to_string(mixer.address) + ")";
}

std::string AccessHint(int refusal) {
  if (refusal == EACCES || refusal == EPERM) {
    return "the udev rule that comes with the library lets the user at the desk open mixers; "
           "trxctl diagnose tells what to type";
  }
  if (refusal == EBUSY) return "end the program that holds the mixer, then try again";
  return "plug the mixer out and in again, then try again";
}

std::string TitleOf(const client::Setting &setting) {
  std::string title(setting.kind->title);
  // People count the channels of a mixer from 1, as they are labelled on it.
  if (setting.kind->hasChannels) title += " channel " + std::to_string(setting.channel + 1LL);
  return title;
}

std::string CommandLineFor(const client::Setting &setting, const std::string &words) {
  std::string line = "trxctl " + std::string(setting.kind->name);
  if (setting.kind->hasChannels) line += ' ' + std::to_string(setting.channel + 1LL);
  if (!words.empty()) line += ' ' + words;
  if (setting.model != &client::DefaultModel()) {
    line += " --model " + std::string(setting.model->name);
  }
  return line;
}

std::string DescribeWithSerial(const client::Mixer &mixer) {
  const std::string serial = Printable(mixer.serial);
  return Describe(mixer) + (serial.empty() ? "" : ", serial " + serial);
}

std::string OutcomeAsText(const client::MixerResult &result) {
  if (!result.IsOpened()) return std::string("may not be opened (") + ReasonAsText(result) + ")";
  switch (result.outcome) {
    case client::Outcome::kRefused:
      return "refused it";
    case client::Outcome::kNoAnswer:
      return "did not answer";
    case client::Outcome::kGone:
      return "was unplugged";
    default:
      return "did not take it";
  }
}

std::string OutcomeHint(const client::MixerResult &result) {
  if (!result.IsOpened()) return AccessHint(result.refusal);
  if (result.outcome == client::Outcome::kGone) return "plug the mixer in again, then try again";
  return "switch the mixer off and on again, then try again; trxctl diagnose tells more";
}

std::string ChoiceAsText(const client::Setting &setting, int32_t index) {
  return setting.TextOf(index).value_or(std::to_string(index));
}

std::string CurrentAsText(const client::Setting &setting) {
  const int32_t current = setting.Current();
  const auto text = setting.TextOf(current);
  if (!text) {
    return std::to_string(current) + " (stored, but no " + std::string(setting.kind->choice) + ")";
  }
  return *text + (setting.IsStored() ? "" : " (default)");
}

std::optional<std::string> FileWarning(const client::Model &model) {
  const std::string file = client::SettingsFileOf(model).value_or("");
  if (client::StateOfFile(file).problem == client::FileProblem::kNone) return std::nullopt;
  return "warning: " + Printable(file) +
         " cannot be used, so the defaults are shown; trxctl diagnose tells why";
}

std::string StoreOneHint(const client::Setting &setting) {
  return "another program stored it; choose one: " +
         CommandLineFor(setting, Quoted(setting.Choices().back()));
}

}  // namespace trxctl
