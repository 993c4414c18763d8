// The input is a command line of trxctl, one word on each line; a zero byte stands for a line break
// in a word. No mixer is connected and there is no bus.
#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>
#include <sanitizer/common_interface_defs.h>
#include <sys/mman.h>
#include <unistd.h>

#include "CommandLine.h"
#include "Promise.h"
#include "Surroundings.h"
#include "client/Profiles.h"

namespace trxfuzz {
namespace {

constexpr std::size_t kMostWords = 20;
constexpr int kHighestExitCode = 9;
constexpr int kOutputFailed = 6;

using Lines = std::vector<std::string>;

/// Captures what is written to a standard stream while it exists.
class StreamInMemory {
 public:
  explicit StreamInMemory(int number)
      : number_(number), file_(memfd_create("stream", MFD_CLOEXEC)) {
    dup2(file_, number_);
  }
  StreamInMemory(const StreamInMemory &) = delete;
  StreamInMemory &operator=(const StreamInMemory &) = delete;
  ~StreamInMemory() {
    close(number_);
    close(file_);
  }

  std::string Text() const {
    std::string text(static_cast<std::size_t>(lseek(file_, 0, SEEK_END)), '\0');
    const ssize_t size = pread(file_, text.data(), text.size(), 0);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    return text;
  }

 private:
  int number_;
  int file_;
};

/// While it exists, the user asks the program to end, so a command that waits returns at once.
class EndAsked {
 public:
  EndAsked() {
    sigemptyset(&ends_);
    sigaddset(&ends_, SIGTERM);
    sigprocmask(SIG_BLOCK, &ends_, &before_);
    std::raise(SIGTERM);
  }
  EndAsked(const EndAsked &) = delete;
  EndAsked &operator=(const EndAsked &) = delete;
  ~EndAsked() {
    const timespec atOnce = {};
    sigtimedwait(&ends_, nullptr, &atOnce);
    sigprocmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t ends_;
  sigset_t before_;
};

Lines Split(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

/// The result of one run of trxctl.
struct Outcome {
  int code;
  std::string output;
  std::string error;
};

Outcome RunTrxctl(Lines words) {
  std::vector<char *> arguments;
  for (std::string &word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const StreamInMemory output(STDOUT_FILENO);
  const StreamInMemory error(STDERR_FILENO);
  const EndAsked ended;
  const int code = trxctl::RunCommandLine(static_cast<int>(arguments.size() - 1), arguments.data());
  return {code, output.Text(), error.Text()};
}

// The hint after an unexpected error.
constexpr std::string_view kUnexpected = "this should not happen";

void CheckJson(const Outcome &outcome) {
  Promise(outcome.error.empty(), "JSON leaves standard error empty", outcome.error);
  const Lines lines = Split(outcome.output);
  Promise(!lines.empty() && outcome.output.ends_with('\n'), "JSON answers in whole lines",
          outcome.output);
  for (const std::string &line : lines) {
    const auto json = nlohmann::json::parse(line, nullptr, false);
    Promise(json.is_object(), "each line is one JSON object", line);
    const auto &error = json.contains("error") ? json["error"] : json;
    if (&line == &lines.back() && outcome.code != 0) {
      Promise(error.value("code", -1) == outcome.code, "JSON tells the exit code", line);
    }
    Promise(outcome.code != 0 || !json.contains("error"), "what is done is no error", line);
    Promise(!error.value("hint", "").starts_with(kUnexpected), "no failure is unexpected", line);
  }
}

bool IsError(const std::string &line) { return line.starts_with("trxctl: error: "); }

void CheckText(const Outcome &outcome) {
  const Lines output = Split(outcome.output);
  const Lines error = Split(outcome.error);
  Promise(std::none_of(output.begin(), output.end(), IsError), "errors go to standard error",
          outcome.output);
  const auto errors = std::count_if(error.begin(), error.end(), IsError);
  if (outcome.code == 0) {
    Promise(errors == 0, "what is done is no error", outcome.error);
  } else if (errors != 0 || outcome.output.empty()) {
    Promise(errors == 1 && error.size() >= 2 && IsError(error[error.size() - 2]) &&
                error.back().starts_with("hint: "),
            "a failure ends with an error and a hint", outcome.error);
    Promise(!error.back().starts_with("hint: " + std::string(kUnexpected)),
            "no failure is unexpected", outcome.error);
  } else {
    Promise(std::any_of(output.begin(), output.end(),
                        [](const std::string &line) { return line.starts_with("problem  "); }),
            "only an examination that found a problem fails without an error", outcome.output);
  }
}

void CheckCharacters(const std::string &text) {
  const auto steers = [](char character) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x20 && character != '\n' && character != '\t') || byte == 0x7F;
  };
  Promise(std::none_of(text.begin(), text.end(), steers), "no output steers the terminal", text);
}

// Without a profile from before no command line can export one, wherever it says.
void EmptyFolder(const std::string &folder) {
  std::filesystem::remove_all(*client::ProfilesFolder());
  for (const auto &entry : std::filesystem::directory_iterator(folder)) {
    const std::string name = entry.path().filename();
    Promise(name == "com.orvikaudio.autoapply-off" ||
                (name.starts_with("com.orvikaudio.") && name.ends_with("autosetup.plist")),
            "only settings files are left behind", name);
    std::filesystem::remove(entry.path());
  }
}

Lines WordsIn(std::string_view input) {
  Lines words = Split(input);
  words.resize(std::min(words.size(), kMostWords));
  for (std::string &word : words) std::replace(word.begin(), word.end(), '\0', '\n');
  words.insert(words.begin(), "trxctl");
  return words;
}

void Run(std::string_view input) {
  static const std::string folder = MakeSurroundings();
  EmptyFolder(folder);
  const Lines words = WordsIn(input);
  const Outcome outcome = RunTrxctl(words);
  Promise(outcome.code >= 0 && outcome.code <= kHighestExitCode && outcome.code != kOutputFailed,
          "the exit code is one of those documented", std::to_string(outcome.code));
  CheckCharacters(outcome.output);
  CheckCharacters(outcome.error);
  const bool isCompletion = words.size() > 1 && words[1] == "complete";
  if (!isCompletion && std::find(words.begin(), words.end(), "--json") != words.end()) {
    CheckJson(outcome);
  } else {
    CheckText(outcome);
  }
}

}  // namespace
}  // namespace trxfuzz

// From here on the fuzzer, too, has no standard streams; it uses a copy.
extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments) {
  static std::vector<char *> extended(*arguments, *arguments + *count);
  static std::string leaveStreams = "-close_fd_mask=3";
  extended.push_back(leaveStreams.data());
  *count = static_cast<int>(extended.size());
  extended.push_back(nullptr);
  *arguments = extended.data();

  trxfuzz::reportDescriptor = dup(STDERR_FILENO);
  for (const char *variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG", "NO_COLOR"}) {
    unsetenv(variable);
  }
  setenv("TRX_SYSTEM_ROOT", BUILT_SYSTEM_ROOT, 1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  trxfuzz::Run(std::string_view(reinterpret_cast<const char *>(data), size));
  return 0;
}
