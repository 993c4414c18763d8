#include "Commands.h"

#include <cstdint>
#include <functional>
#include <iostream>
#include <list>
#include <map>
#include <sstream>
#include <stdexcept>
#include <vector>

#include <TRX-SELVASetup/Diagnostics.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Rights.h"

namespace trxtest {
namespace {

using Numbers = std::vector<std::uint32_t>;

// --- Exported functions ----------------------------------------------------------------------

template <typename Result>
std::string StatusAnd(StatusCode status, const Result &result) {
  std::ostringstream answer;
  answer << status;
  if (status == ORV_SUCCESS) answer << ' ' << result;
  return answer.str();
}

const std::map<std::string, std::function<std::string(const Numbers &)>> kFunctions = {
    {"ORV_IsUSBConnection",
     [](const Numbers &n) { return std::to_string(ORV_IsUSBConnection(n.at(0))); }},
    {"ORV_SetBoostLevelIndex",
     [](const Numbers &n) { return std::to_string(ORV_SetBoostLevelIndex(n.at(0), n.at(1))); }},
    {"ORV_SetCurrentBoostLevelIndex",
     [](const Numbers &n) { return std::to_string(ORV_SetCurrentBoostLevelIndex(n.at(0))); }},
    {"ORV_GetCurrentBoostLevelIndex",
     [](const Numbers &n) {
       std::int32_t index = -1;
       const StatusCode status = ORV_GetCurrentBoostLevelIndex(n.at(0), &index);
       return StatusAnd(status, index);
     }},
};

template <typename Callback>
struct Registration {
  StatusCode (*put)(ProductId, Callback, void *);
  StatusCode (*takeAway)(ProductId, Callback);
};

const std::map<std::string, Registration<IndexCallback>> kIndexKinds = {
    {"BoostLevel",
     {ORV_RegisterBoostLevelChangedCallback, ORV_UnregisterBoostLevelChangedCallback}},
    {"MidiChannel",
     {ORV_RegisterMidiChannelChangedCallback, ORV_UnregisterMidiChannelChangedCallback}},
};

const std::map<std::string, Registration<ChannelIndexCallback>> kChannelKinds = {
    {"InputAudio",
     {ORV_RegisterInputAudioChangedCallback, ORV_UnregisterInputAudioChangedCallback}},
    {"OutputAudio",
     {ORV_RegisterOutputAudioChangedCallback, ORV_UnregisterOutputAudioChangedCallback}},
};

void IndexChanged(std::int32_t index, void *tag) {
  std::cout << "! " << *static_cast<std::string *>(tag) << ' ' << index << std::endl;
}

void ChannelIndexChanged(std::int32_t channel, std::int32_t index, void *tag) {
  std::cout << "! " << *static_cast<std::string *>(tag) << ' ' << channel << ' ' << index
            << std::endl;
}

void RequestEnded(const ORVRequestReport *report, void *) {
  std::cout << "! kind " << report->kind << " outcome " << report->outcome << std::endl;
}

// --- Commands --------------------------------------------------------------------------------

bool isReceiving = true;

std::string Call(std::istream &words) {
  std::string name;
  words >> name;
  Numbers numbers;
  for (std::uint32_t number = 0; words >> number;) numbers.push_back(number);
  return kFunctions.at(name)(numbers);
}

// A context must live as long as the process.
std::string *KeepTag(const std::string &tag) {
  static std::list<std::string> tags;
  return &tags.emplace_back(tag);
}

std::string Register(std::istream &words) {
  std::string kind;
  ProductId product = 0;
  std::string tag;
  words >> kind >> product >> tag;
  if (const auto found = kIndexKinds.find(kind); found != kIndexKinds.end()) {
    return std::to_string(found->second.put(product, IndexChanged, KeepTag(tag)));
  }
  return std::to_string(kChannelKinds.at(kind).put(product, ChannelIndexChanged, KeepTag(tag)));
}

std::string Unregister(std::istream &words) {
  std::string kind;
  ProductId product = 0;
  words >> kind >> product;
  if (const auto found = kIndexKinds.find(kind); found != kIndexKinds.end()) {
    return std::to_string(found->second.takeAway(product, IndexChanged));
  }
  return std::to_string(kChannelKinds.at(kind).takeAway(product, ChannelIndexChanged));
}

std::string SetLevels(std::istream &words) {
  ProductId product = 0;
  std::uint32_t count = 0;
  words >> product >> count;
  for (std::uint32_t i = 0; i < count; ++i) {
    const StatusCode status = ORV_SetBoostLevelIndex(product, i % 4);
    if (status != ORV_SUCCESS) return std::to_string(status);
  }
  return std::to_string(ORV_SUCCESS);
}

const std::map<std::string, std::string (*)()> kThingsToGiveUp = {
    {"admin", GiveUpAdmin}, {"root", GiveUpRoot}, {"space", GiveUpSpace}};

std::string GiveUp(std::istream &words) {
  std::string what;
  words >> what;
  return kThingsToGiveUp.at(what)();
}

const std::map<std::string, std::function<std::string(std::istream &)>> kCommands = {
    {"call", Call},
    {"register", Register},
    {"unregister", Unregister},
    {"levels", SetLevels},
    {"stop-receiving",
     [](std::istream &) {
       isReceiving = false;
       return std::string("done");
     }},
    {"go-on-receiving",
     [](std::istream &) {
       isReceiving = true;
       return std::string("done");
     }},
    {"give-up", GiveUp},
    {"observe-requests",
     [](std::istream &) { return std::to_string(ORV_ObserveRequests(RequestEnded, nullptr)); }},
};

std::string Answer(const std::string &line) {
  std::istringstream words(line);
  std::string command;
  words >> command;
  try {
    return kCommands.at(command)(words);
  } catch (const std::out_of_range &) {
    return "not understood: " + line;
  }
}

}  // namespace

bool IsReceiving() { return isReceiving; }

void CarryOut(std::string &input) {
  for (std::size_t end = input.find('\n'); end != std::string::npos; end = input.find('\n')) {
    const std::string line = input.substr(0, end);
    input.erase(0, end + 1);
    // Reports made during the call have their own lines.
    const std::string answer = Answer(line);
    std::cout << "= " << answer << std::endl;
  }
}

}  // namespace trxtest
