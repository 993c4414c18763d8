// The one part of the kit that needs a JSON library: profiles are files that people read and carry
// to other machines. It is kept out of all headers, so that clients are free to use another.
#include "ProfileFormat.h"

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <utility>

#include <nlohmann/json.hpp>

#include "ProfileFault.h"
#include "ProfileNames.h"

namespace client {
namespace {

using Json = nlohmann::json;

/// Keeps members in the order in which they were written.
using OrderedJson = nlohmann::ordered_json;

constexpr std::int64_t kFormat = 1;
/// Lists and objects in one another.
constexpr int kMostLevels = 16;
constexpr int kIndent = 2;

/// Parses a text that came from anywhere, which must be one JSON value and no more.
Json Parsed(const std::string &text) {
  if (text.size() > kLargestProfileFile) throw ProfileFault{ProfileProblem::kTooLarge};
  if (!IsUtf8(text)) throw ProfileFault{ProfileProblem::kNoUtf8};
  std::vector<std::set<std::string>> members;
  const auto look = [&members](int depth, Json::parse_event_t event, const Json &parsed) {
    const bool opensObject = event == Json::parse_event_t::object_start;
    const bool opensList = event == Json::parse_event_t::array_start;
    if ((opensObject || opensList) && depth == kMostLevels) {
      throw ProfileFault{ProfileProblem::kTooDeep};
    }
    if (opensObject) members.emplace_back();
    if (event == Json::parse_event_t::object_end) members.pop_back();
    // The parser would keep the last one and say nothing.
    if (event == Json::parse_event_t::key && !members.back().insert(parsed).second) {
      throw ProfileFault{ProfileProblem::kMemberTwice, parsed};
    }
    return true;
  };
  Json json = Json::parse(text, look, false);
  if (json.is_discarded()) throw ProfileFault{ProfileProblem::kNoJson};
  return json;
}

const Json &Member(const Json &object, const std::string &name) {
  if (!object.is_object()) throw ProfileFault{ProfileProblem::kNotObject};
  const auto member = object.find(name);
  if (member == object.end()) throw ProfileFault{ProfileProblem::kNoMember, name};
  return *member;
}

std::string TextAt(const Json &object, const std::string &name) {
  const Json &member = Member(object, name);
  if (!member.is_string()) throw ProfileFault{ProfileProblem::kNotText, name};
  return member;
}

std::int64_t NumberAt(const Json &object, const std::string &name) {
  const Json &member = Member(object, name);
  const bool isTooLarge =
      member.is_number_unsigned() &&
      member.get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()};
  if (!member.is_number_integer() || isTooLarge) {
    throw ProfileFault{ProfileProblem::kNotNumber, name};
  }
  return member;
}

const Model &ModelAt(const Json &object) {
  const std::string name = TextAt(object, "model");
  for (const Model *model : ServedModels()) {
    if (model->name == name) return *model;
  }
  throw ProfileFault{ProfileProblem::kUnknownModel, name};
}

/// The settings of the kind that is named; one, or one for each channel.
std::vector<Setting> SettingsNamed(const std::string &name, const Model &model) {
  std::vector<Setting> settings;
  for (const SettingKind &kind : SettingKinds()) {
    if (kind.name == name) settings = SettingsOf(kind, model);
  }
  if (settings.empty()) {
    throw ProfileFault{.problem = ProfileProblem::kUnknownSetting, .what = name, .model = &model};
  }
  return settings;
}

Setting SettingIn(const Json &entry, const Model &model) {
  const std::vector<Setting> settings = SettingsNamed(TextAt(entry, "setting"), model);
  const Setting &first = settings.front();
  if (!first.TakesChoices()) {
    throw ProfileFault{
        .problem = ProfileProblem::kNotTaken, .model = first.model, .setting = first};
  }
  if (!first.kind->hasChannels) {
    if (!entry.contains("channel")) return first;
    throw ProfileFault{
        .problem = ProfileProblem::kNoChannels, .model = first.model, .setting = first};
  }
  const std::int64_t channel = NumberAt(entry, "channel");
  if (channel < 1 || channel > static_cast<std::int64_t>(settings.size())) {
    throw ProfileFault{.problem = ProfileProblem::kUnknownChannel,
                       .number = channel,
                       .model = first.model,
                       .setting = first};
  }
  return settings[static_cast<std::size_t>(channel - 1)];
}

ProfileChoice ChoiceIn(const Json &entry, const Model &model) {
  const Setting setting = SettingIn(entry, model);
  const std::int64_t index = NumberAt(entry, "index");
  const std::string text = TextAt(entry, "text");
  const std::vector<std::string> choices = setting.Choices();
  const auto faultOf = [&](ProfileProblem problem) {
    return ProfileFault{.problem = problem,
                        .what = text,
                        .number = index,
                        .model = setting.model,
                        .setting = setting};
  };
  if (std::find(choices.begin(), choices.end(), text) == choices.end()) {
    throw faultOf(ProfileProblem::kUnknownText);
  }
  const bool isChoice = index >= 0 && index < static_cast<std::int64_t>(choices.size());
  if (!isChoice || choices[static_cast<std::size_t>(index)] != text) {
    throw faultOf(ProfileProblem::kDisagree);
  }
  return {setting, static_cast<int32_t>(index)};
}

void Add(Profile &profile, const ProfileChoice &choice) {
  const Setting &setting = choice.setting;
  const bool isTwice =
      std::any_of(profile.choices.begin(), profile.choices.end(), [&](const ProfileChoice &other) {
        return other.setting.kind == setting.kind && other.setting.channel == setting.channel;
      });
  if (isTwice) {
    throw ProfileFault{
        .problem = ProfileProblem::kSettingTwice, .model = setting.model, .setting = setting};
  }
  profile.choices.push_back(choice);
}

OrderedJson AsJson(const ProfileChoice &choice) {
  OrderedJson json{{"setting", choice.setting.kind->name}};
  // As people count them.
  if (choice.setting.kind->hasChannels) json["channel"] = choice.setting.channel + 1;
  json["index"] = choice.index;
  json["text"] = choice.setting.TextOf(choice.index).value_or("");
  return json;
}

}  // namespace

std::string TextOfProfile(const Profile &profile) {
  OrderedJson json{{"format", kFormat},
                   {"name", profile.name},
                   {"model", profile.model->name},
                   {"settings", OrderedJson::array()}};
  for (const ProfileChoice &choice : profile.choices) json["settings"].push_back(AsJson(choice));
  return json.dump(kIndent) + '\n';
}

Profile ProfileInText(const std::string &text) {
  const Json json = Parsed(text);
  // First: in another format anything may look otherwise.
  const std::int64_t format = NumberAt(json, "format");
  if (format != kFormat) {
    throw ProfileFault{.problem = ProfileProblem::kOtherFormat, .number = format};
  }
  Profile profile{.name = TextAt(json, "name"), .model = &ModelAt(json)};
  CheckProfileName(profile.name);
  const Json &settings = Member(json, "settings");
  if (!settings.is_array()) throw ProfileFault{ProfileProblem::kNotList, "settings"};
  if (settings.empty()) throw ProfileFault{ProfileProblem::kNoSettings};
  for (const Json &entry : settings) Add(profile, ChoiceIn(entry, *profile.model));
  return profile;
}

std::string TextWithName(const std::string &text, const std::string &name) {
  OrderedJson json = OrderedJson::parse(text);
  json["name"] = name;
  return json.dump(kIndent) + '\n';
}

}  // namespace client
