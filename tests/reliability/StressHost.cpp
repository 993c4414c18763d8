// stress-host: one of many processes that use the library at once.
//
//   stress-host poster NUMBER     sets everything again and again until its input ends
//   stress-host observer          registers for everything and checks the announcements
//   stress-host reader            reads every current value again and again until its input ends
//
// Each prints "ready" when it is running. A line on standard input asks for a report, which is one
// line of JSON; a line that begins with '!' also stops a poster until its next line. The end of the
// input ends the process with a last report.
//
// An announcement does not say which process made it. So each poster has its own choices, those at
// the indexes NUMBER, NUMBER + 8, ... of the list of all choices, and sets them in a fixed order.
// From this an observer knows for each announcement which poster made it, and what the poster must
// have set before.
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../support/Constants.h"

namespace {

using namespace trxtest;  // the constants of the header

constexpr std::size_t kPosters = 8;

constexpr std::array<ProductId, 6> kModels = {kArden, kVolt, kHalden, kLumen, kMorrow, kSelva};

enum class Family { kBoost, kMidi, kInput, kOutput };

// One value of one setter.
struct Choice {
  Family family = Family::kBoost;
  ProductId product = 0;
  std::int32_t channel = 0;
  std::uint32_t index = 0;

  bool operator==(const Choice &) const = default;
};

// All settings in turn, with enough values of each for every poster.
std::vector<Choice> AllChoices() {
  std::vector<Choice> all;
  for (std::uint32_t index = 0; index < 4; ++index) {
    for (const ProductId product : kModels) all.push_back({Family::kBoost, product, 0, index});
  }
  for (std::uint32_t index = 0; index < 16; ++index) {
    all.push_back({Family::kMidi, kVolt, 0, index});
  }
  constexpr std::array<std::uint32_t, 3> kInputs = {8, 8, 7};
  for (std::int32_t channel = 0; channel < 3; ++channel) {
    for (std::uint32_t index = 0; index < kInputs[static_cast<std::size_t>(channel)]; ++index) {
      all.push_back({Family::kInput, kSelva, channel, index});
    }
  }
  for (std::uint32_t index = 0; index < 3; ++index) {
    for (std::int32_t channel = 0; channel < 5; ++channel) {
      all.push_back({Family::kOutput, kSelva, channel, index});
    }
  }
  return all;
}

// The endless sequence of one poster's choices.
class Sequence {
 public:
  explicit Sequence(std::size_t poster) : random_(static_cast<std::uint32_t>(poster) + 1) {
    const std::vector<Choice> all = AllChoices();
    for (std::size_t i = poster; i < all.size(); i += kPosters) choices_.push_back(all[i]);
  }

  const Choice &Next() { return choices_[random_() % choices_.size()]; }

  bool Has(const Choice &choice) const {
    for (const Choice &own : choices_) {
      if (own == choice) return true;
    }
    return false;
  }

 private:
  std::vector<Choice> choices_;
  std::minstd_rand random_;
};

std::vector<Sequence> AllSequences() {
  std::vector<Sequence> sequences;
  for (std::size_t poster = 0; poster < kPosters; ++poster) sequences.emplace_back(poster);
  return sequences;
}

std::string Shown(const Choice &choice) {
  constexpr std::array kNames = {"boost", "midi", "input", "output"};
  return std::string(kNames[static_cast<std::size_t>(choice.family)]) + " of " +
         std::to_string(choice.product) + " channel " + std::to_string(choice.channel) + " index " +
         std::to_string(choice.index);
}

// --- Input and output --------------------------------------------------------------------------

std::string ListOf(const std::vector<std::uint64_t> &numbers) {
  std::string list;
  for (const std::uint64_t number : numbers) {
    list += (list.empty() ? "" : ", ") + std::to_string(number);
  }
  return '[' + list + ']';
}

void Say(const std::string &line) {
  std::puts(line.c_str());
  std::fflush(stdout);
}

std::ptrdiff_t OpenDescriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return std::distance(begin(all), end(all));
}

// A report: the number of operations, for each poster or in total; the first error; the number of
// descriptors while the process is idle.
void Report(const std::vector<std::uint64_t> &counts, const std::string &wrong) {
  Say("{\"counts\": " + ListOf(counts) + ", \"wrong\": \"" + wrong +
      "\", \"descriptors\": " + std::to_string(OpenDescriptors()) + "}");
}

enum class Asked { kNothing, kReport, kStandStill, kEnd };

// Reads standard input, waiting no longer than this; without limit when it is negative.
Asked LookAtInput(int milliseconds) {
  pollfd input = {STDIN_FILENO, POLLIN, 0};
  if (poll(&input, 1, milliseconds) <= 0) return Asked::kNothing;
  char line[16];
  if (read(STDIN_FILENO, line, sizeof line) <= 0) return Asked::kEnd;
  return line[0] == '!' ? Asked::kStandStill : Asked::kReport;
}

// Keeps the first error.
class Complaint {
 public:
  void Add(const std::string &text) {
    if (text_.empty()) text_ = text;
  }
  const std::string &Text() const { return text_; }

 private:
  std::string text_;
};

// --- Posters -------------------------------------------------------------------------------------

StatusCode Set(const Choice &choice) {
  switch (choice.family) {
    case Family::kBoost:
      return ORV_SetBoostLevelIndex(choice.product, choice.index);
    case Family::kMidi:
      return ORV_SetMidiChannelIndex(choice.product, choice.index);
    case Family::kInput:
      return ORV_SetUSBInputAudio(choice.product, choice.channel, choice.index);
    case Family::kOutput:
      break;
  }
  return ORV_SetUSBOutputAudio(choice.product, choice.channel, choice.index);
}

int Post(std::size_t poster) {
  Sequence sequence(poster);
  Complaint complaint;
  std::uint64_t count = 0;
  Say("ready");
  for (Asked asked = Asked::kNothing; asked != Asked::kEnd; asked = LookAtInput(0)) {
    if (asked == Asked::kStandStill) {
      Report({count}, complaint.Text());
      asked = LookAtInput(-1);
    }
    if (asked == Asked::kReport) Report({count}, complaint.Text());
    if (asked == Asked::kEnd) break;
    const Choice &choice = sequence.Next();
    const StatusCode status = Set(choice);
    // Only the input routing may give a warning.
    const bool isWell =
        status == kSuccess || (status == kSuccessWithWarning && choice.family == Family::kInput);
    if (!isWell) complaint.Add(Shown(choice) + " is answered with " + std::to_string(status));
    ++count;
  }
  Report({count}, complaint.Text());
  return 0;
}

// --- Observers -----------------------------------------------------------------------------------

std::vector<Sequence> expected = AllSequences();
std::vector<std::uint64_t> heard(kPosters);
Complaint observed;

void Observe(const Choice &choice) {
  for (std::size_t poster = 0; poster < kPosters; ++poster) {
    if (!expected[poster].Has(choice)) continue;
    ++heard[poster];
    const Choice next = expected[poster].Next();
    if (!(next == choice)) {
      observed.Add("number " + std::to_string(heard[poster]) + " of poster " +
                   std::to_string(poster) + " is " + Shown(choice) + " instead of " + Shown(next));
    }
    return;
  }
  observed.Add("nobody sets " + Shown(choice));
}

ProductId ProductOf(void *context) { return *static_cast<const ProductId *>(context); }

void BoostChanged(std::int32_t index, void *context) {
  Observe({Family::kBoost, ProductOf(context), 0, static_cast<std::uint32_t>(index)});
}

void MidiChanged(std::int32_t index, void *context) {
  Observe({Family::kMidi, ProductOf(context), 0, static_cast<std::uint32_t>(index)});
}

void InputChanged(std::int32_t channel, std::int32_t index, void *context) {
  Observe({Family::kInput, ProductOf(context), channel, static_cast<std::uint32_t>(index)});
}

void OutputChanged(std::int32_t channel, std::int32_t index, void *context) {
  Observe({Family::kOutput, ProductOf(context), channel, static_cast<std::uint32_t>(index)});
}

void RegisterForEverything() {
  static std::array<ProductId, 6> contexts = kModels;
  for (ProductId &product : contexts) {
    if (ORV_RegisterBoostLevelChangedCallback(product, BoostChanged, &product) != kSuccess ||
        ORV_RegisterInputAudioChangedCallback(product, InputChanged, &product) != kSuccess ||
        ORV_RegisterOutputAudioChangedCallback(product, OutputChanged, &product) != kSuccess) {
      observed.Add("a registration is refused");
    }
  }
  if (ORV_RegisterMidiChannelChangedCallback(kVolt, MidiChanged, &contexts[1]) != kSuccess) {
    observed.Add("a registration is refused");
  }
}

int Watch() {
  RegisterForEverything();
  Say("ready");
  pollfd loop[2] = {{-1, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
  ORV_GetNotificationDescriptor(&loop[0].fd);
  for (Asked asked = Asked::kNothing; asked != Asked::kEnd;) {
    poll(loop, 2, -1);
    if (loop[0].revents != 0) ORV_DispatchNotifications();
    if (loop[1].revents == 0) continue;
    asked = LookAtInput(0);
    Report(heard, observed.Text());
  }
  return 0;
}

// --- Readers -------------------------------------------------------------------------------------

void Expect(const char *what, StatusCode status, std::int32_t value, std::int32_t limit,
            Complaint &complaint) {
  if (status == kSuccess && value >= 0 && value < limit) return;
  complaint.Add(std::string(what) + " is " + std::to_string(value) + ", with status " +
                std::to_string(status));
}

void ReadEverything(Complaint &complaint) {
  for (const ProductId product : kModels) {
    std::int32_t level = -77;
    const StatusCode status = ORV_GetCurrentBoostLevelIndex(product, &level);
    Expect("boost", status, level, 4, complaint);
  }
  std::int32_t midi = -77;
  const StatusCode midiStatus = ORV_GetCurrentMidiChannelIndex(kVolt, &midi);
  Expect("midi", midiStatus, midi, 16, complaint);
  for (std::int32_t channel = 0; channel < 3; ++channel) {
    std::int32_t input = -77;
    const StatusCode inputStatus = ORV_GetCurrentUSBInputAudioIndex(kSelva, channel, &input);
    Expect("input", inputStatus, input, 8, complaint);
    std::int32_t output = -77;
    const StatusCode outputStatus = ORV_GetCurrentUSBOutputAudioIndex(kSelva, channel, &output);
    Expect("output", outputStatus, output, 3, complaint);
  }
}

int Read() {
  Complaint complaint;
  std::uint64_t count = 0;
  Say("ready");
  for (Asked asked = Asked::kNothing; asked != Asked::kEnd; asked = LookAtInput(1)) {
    if (asked == Asked::kReport) Report({count}, complaint.Text());
    ReadEverything(complaint);
    ++count;
  }
  Report({count}, complaint.Text());
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const std::string_view role = argc > 1 ? argv[1] : "";
  if (role == "poster" && argc > 2) return Post(std::strtoul(argv[2], nullptr, 10));
  if (role == "observer") return Watch();
  if (role == "reader") return Read();
  std::fputs("stress-host poster NUMBER | observer | reader\n", stderr);
  return 2;
}
