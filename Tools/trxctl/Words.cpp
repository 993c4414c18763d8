#include "Words.h"

#include <algorithm>
#include <cerrno>

namespace trxctl {

std::string Printable(std::string_view text) {
  std::string result(text);
  const auto isControl = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
  };
  std::replace_if(result.begin(), result.end(), isControl, '?');
  return result;
}

std::string Quoted(std::string_view text) { return '"' + Printable(text) + '"'; }

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
  return Printable(mixer.product) + " (bus " + std::to_string(mixer.bus) + ", address " +
         std::to_string(mixer.address) + ")";
}

std::string AccessHint(int refusal) {
  if (refusal == EACCES || refusal == EPERM) {
    return "the udev rule that comes with the library lets the user at the desk open mixers; "
           "once it is installed, plug the mixer in again";
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

std::string CurrentAsText(const client::Setting &setting) {
  const int32_t current = setting.Current();
  return setting.TextOf(current).value_or(std::to_string(current) + " (stored, but no " +
                                          std::string(setting.kind->choice) + ")");
}

std::string StoreOneHint(const client::Setting &setting) {
  return "another program stored it; choose one: " +
         CommandLineFor(setting, Quoted(setting.Choices().back()));
}

}  // namespace trxctl
