#include "Output.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace trxctl {
namespace {

bool ShowsEmphasis(int descriptor) {
  const char *noColor = std::getenv("NO_COLOR");
  const char *kind = std::getenv("TERM");
  return isatty(descriptor) == 1 && (noColor == nullptr || *noColor == '\0') && kind != nullptr &&
         std::strcmp(kind, "dumb") != 0;
}

std::string Emphasised(std::string_view text, std::string_view code) {
  return "\033[" + std::string(code) + 'm' + std::string(text) + "\033[0m";
}

/// Writes all of the text; 0 or the reason why not.
int WriteAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EAGAIN) {
      // Another program made our end of the pipe non-blocking.
      pollfd ready{descriptor, POLLOUT, 0};
      poll(&ready, 1, -1);
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

/// One line, whatever bytes the texts in it hold.
std::string OneLine(const Json &json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

void WriteOutput(std::string_view text) {
  const int reason = WriteAll(STDOUT_FILENO, text);
  if (reason == 0) return;
  // Programs end quietly when nobody reads on.
  if (reason == EPIPE) throw Failure{ExitCode::kOutputFailed, "", ""};
  throw Failure{ExitCode::kOutputFailed,
                std::string("cannot write the output: ") + std::strerror(reason),
                "the command itself may have been carried out; look at where the output goes"};
}

Json ErrorAsJson(const Failure &failure) {
  Json error{{"code", static_cast<int>(failure.code)},
             {"kind", EntryOf(failure.code).kind},
             {"message", failure.message},
             {"hint", failure.hint}};
  if (!failure.choices.empty()) error["choices"] = failure.choices;
  return error;
}

}  // namespace

void ReserveStandardStreams() {
  // A folder can be had everywhere and takes no text: writing to a stream that was closed stays an
  // error.
  int descriptor = 0;
  do {
    descriptor = open("/", O_RDONLY | O_DIRECTORY);
  } while (descriptor >= STDIN_FILENO && descriptor <= STDERR_FILENO);
  if (descriptor > STDERR_FILENO) close(descriptor);
}

Output::Output(bool isJson)
    : isJson_(isJson),
      emphasisOnOutput_(!isJson && ShowsEmphasis(STDOUT_FILENO)),
      emphasisOnError_(ShowsEmphasis(STDERR_FILENO)) {}

void Output::Print(std::string_view text, const Json &json) const {
  WriteOutput(isJson_ ? OneLine(json) : std::string(text));
}

ExitCode Output::Print(const Answer &answer) const {
  Json json = answer.json;
  if (answer.failure) json["error"] = ErrorAsJson(*answer.failure);
  Print(answer.text, json);
  for (const std::string &note : answer.notes) Note(note);
  if (!answer.failure) return ExitCode::kDone;
  if (!isJson_) PrintForPeople(*answer.failure);
  return answer.failure->code;
}

void Output::Note(std::string_view text) const {
  if (!isJson_) WriteAll(STDERR_FILENO, std::string(text) + '\n');
}

void Output::Print(const Failure &failure) const {
  if (failure.message.empty()) return;
  if (isJson_ && failure.code != ExitCode::kOutputFailed &&
      WriteAll(STDOUT_FILENO, OneLine({{"error", ErrorAsJson(failure)}})) == 0) {
    return;
  }
  PrintForPeople(failure);
}

bool Output::IsSeen() const { return !isJson_ && isatty(STDERR_FILENO) == 1; }

void Output::PrintPassing(std::string_view text) const {
  // To the start of the line, the text, and nothing of what stood there before.
  WriteAll(STDERR_FILENO, '\r' + std::string(text) + "\033[K");
}

std::string Output::Strong(std::string_view text) const {
  return emphasisOnOutput_ ? Emphasised(text, "1") : std::string(text);
}

void Output::PrintForPeople(const Failure &failure) const {
  const std::string error = emphasisOnError_ ? Emphasised("error:", "1;31") : "error:";
  WriteAll(STDERR_FILENO,
           "trxctl: " + error + ' ' + failure.message + "\nhint: " + failure.hint + '\n');
}

}  // namespace trxctl
