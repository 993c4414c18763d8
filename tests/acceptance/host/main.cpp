// acceptance-host: a process with the library that does what it is told.
//
// One command a line on standard input; each is answered by one line "= ANSWER". A callback that
// runs prints "! TAG INDEX" or "! TAG CHANNEL INDEX". While no command is there the process sits in
// its event loop.
//
//   call FUNCTION NUMBER...           calls an exported function; answers its status, then what it
//                                     handed out
//   register FUNCTION PRODUCT TAG     registers a callback whose context is the tag
//   unregister FUNCTION PRODUCT
//   levels PRODUCT COUNT              sets the boost level COUNT times, 0 1 2 3 0 1 ...
//   stop-receiving, go-on-receiving   the event loop leaves notifications alone, or not
//   give-up admin                     goes on without CAP_SYS_ADMIN
//   give-up root                      goes on as the user nobody, if it was root
//   give-up space                     goes on as on a full disk: no file can be written
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <iostream>
#include <list>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <grp.h>
#include <linux/capability.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace {

using Numbers = std::vector<std::uint32_t>;

constexpr uid_t kNobody = 65534;

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

// --- Commands --------------------------------------------------------------------------------

bool receiving = true;

std::string Call(std::istream &words) {
  std::string name;
  words >> name;
  Numbers numbers;
  for (std::uint32_t number = 0; words >> number;) numbers.push_back(number);
  return kFunctions.at(name)(numbers);
}

// A context is handed back as long as the process lives.
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

// An ordinary user does not have it in the first place.
std::string GiveUpAdmin() {
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct sets[_LINUX_CAPABILITY_U32S_3] = {};
  if (syscall(SYS_capget, &header, sets) != 0) return "failed";
  constexpr std::uint32_t kBit = 1U << CAP_SYS_ADMIN;
  sets[0].effective &= ~kBit;
  sets[0].permitted &= ~kBit;
  return syscall(SYS_capset, &header, sets) == 0 ? "done" : "failed";
}

std::string GiveUpRoot() {
  if (geteuid() != 0) return "done";
  const bool isDone = setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
  return isDone ? "done" : "failed";
}

std::string GiveUpSpace() {
  signal(SIGXFSZ, SIG_IGN);
  const rlimit nothing = {0, 0};
  return setrlimit(RLIMIT_FSIZE, &nothing) == 0 ? "done" : "failed";
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
       receiving = false;
       return std::string("done");
     }},
    {"go-on-receiving",
     [](std::istream &) {
       receiving = true;
       return std::string("done");
     }},
    {"give-up", GiveUp},
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

// Carries out the complete lines of what was read so far; keeps the rest.
void CarryOut(std::string &input) {
  for (std::size_t end = input.find('\n'); end != std::string::npos; end = input.find('\n')) {
    const std::string line = input.substr(0, end);
    input.erase(0, end + 1);
    std::cout << "= " << Answer(line) << std::endl;
  }
}

}  // namespace

int main() {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  std::string input;
  pollfd waiting[2] = {{STDIN_FILENO, POLLIN, 0}, {-1, POLLIN, 0}};
  for (;;) {
    std::int32_t descriptor = -1;
    ORV_GetNotificationDescriptor(&descriptor);
    waiting[1].fd = receiving ? descriptor : -1;
    if (poll(waiting, 2, -1) < 0) continue;
    if (waiting[1].revents != 0) ORV_DispatchNotifications();
    if (waiting[0].revents == 0) continue;
    char part[4096];
    const ssize_t size = read(STDIN_FILENO, part, sizeof part);
    if (size <= 0) return 0;
    input.append(part, static_cast<std::size_t>(size));
    CarryOut(input);
  }
}
