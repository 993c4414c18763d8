#include "Watch.h"

#include <chrono>
#include <cstdlib>
#include <deque>
#include <memory>
#include <optional>

#include "UserInput.h"
#include "WatchLoop.h"
#include "Words.h"
#include "client/SessionBus.h"
#include "client/Settings.h"

namespace trxctl {
namespace {

using Clock = WatchLoop::Clock;

/// What the command line asked for.
struct Request {
  /// 0: no end.
  std::int64_t count = 0;
  /// 0: no end.
  double seconds = 0;
};

/// One announced change.
struct Change {
  client::Setting setting;
  int32_t index;
};

/// Puts the changes of one setting of one model into the queue, to be printed once delivery is
/// over.
class Subscription : public client::Listener {
 public:
  Subscription(const client::Model &model, const client::SettingKind &kind,
               std::deque<Change> &queue)
      : model_(model), kind_(kind), queue_(queue) {}

  void Changed(int32_t channel, int32_t index) noexcept override {
    queue_.push_back({{&kind_, &model_, channel}, index});
  }

 private:
  const client::Model &model_;
  const client::SettingKind &kind_;
  std::deque<Change> &queue_;
};

std::optional<Clock::time_point> Deadline(double seconds) {
  // Whoever waits longer than a year waits for ever.
  constexpr double kYear = 365.0 * 24 * 60 * 60;
  if (seconds <= 0 || seconds > kYear) return std::nullopt;
  return Clock::now() +
         std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

void PrintChange(const Output &output, const Change &change) {
  const client::Setting &setting = change.setting;
  Json json{{"event", "change"}};
  json.update(HeadingAsJson(setting));
  json.update(ChoiceAsJson(setting, change.index));
  output.Print(std::string(setting.model->name) + ' ' + TitleOf(setting) + ": " +
                   setting.TextOf(change.index).value_or("choice " + std::to_string(change.index)) +
                   '\n',
               json);
}

/// Waits for announcements and prints them, until it has seen enough or is told to end.
class Watcher {
 public:
  Watcher(const Session &session, const Request &request)
      : output_(session.output), request_(request), deadline_(Deadline(request.seconds)) {
    for (const client::Model *model : session.Models()) Subscribe(*model);
  }

  void Run() {
    PrintStart();
    while (!SeenEnough()) {
      switch (loop_->Wait(deadline_)) {
        case Waited::kForDelivery:
          PrintDelivered();
          break;
        case Waited::kForEndSignal:
          return;
        case Waited::kForReader:
          ThrowReaderGone();
        case Waited::kForTime:
          ThrowTimedOut();
      }
    }
  }

 private:
  void Subscribe(const client::Model &model) {
    models_.emplace_back(model.name);
    for (const client::SettingKind &kind : client::SettingKinds()) {
      Subscription &subscription = subscriptions_.emplace_back(model, kind, queue_);
      // A model that does not have this setting is refused here, and then has no changes of it
      // either.
      kind.functions.listen(model.id, &subscription);
    }
  }

  void PrintStart() const {
    const std::optional<bool> bus = client::HasSessionBus();
    Json json{{"event", "watching"}, {"models", models_}};
    if (bus) json["session_bus"] = *bus;
    output_.Print("Watching " + Joined(models_) + "; end with Ctrl-C.\n", json);
    if (bus && !*bus) {
      output_.Note(
          "There is no session bus, so no change can be seen yet; waiting for one.\n"
          "hint: run trxctl in a desktop session, or everything together under dbus-run-session");
    }
  }

  bool SeenEnough() const { return request_.count != 0 && printed_ >= request_.count; }

  void PrintDelivered() {
    for (; !queue_.empty() && !SeenEnough(); queue_.pop_front(), ++printed_) {
      PrintChange(output_, queue_.front());
    }
  }

  [[noreturn]] void ThrowTimedOut() const {
    throw Failure{
        ExitCode::kTimedOut,
        "the time is over; " + Counted(static_cast<std::size_t>(printed_), "change") + " seen",
        "give more time with --timeout, or leave it out to wait without end"};
  }

  [[noreturn]] static void ThrowReaderGone() {
    throw Failure{ExitCode::kOutputFailed, "cannot write the output: its reader is gone",
                  "end with --count when only the first changes are wanted"};
  }

  const Output &output_;
  const Request request_;
  const std::optional<Clock::time_point> deadline_;
  const std::unique_ptr<WatchLoop> loop_ = WatchLoop::Make();
  std::vector<std::string> models_;
  std::deque<Change> queue_;
  std::deque<Subscription> subscriptions_;
  std::int64_t printed_ = 0;
};

std::string RefusedUnless(bool isGood, const std::string &text, const std::string &noun) {
  return isGood ? "" : Quoted(text) + " is no " + noun + " above 0";
}

CLI::Validator PositiveCount() {
  return {[](const std::string &text) {
            const auto count = NumberIn<std::int64_t>(text);
            return RefusedUnless(count && *count > 0, text, "whole number");
          },
          ""};
}

CLI::Validator PositiveTime() {
  return {[](const std::string &text) {
            char *end = nullptr;
            const double seconds = std::strtod(text.c_str(), &end);
            return RefusedUnless(*end == '\0' && seconds > 0, text, "number");
          },
          ""};
}

}  // namespace

Command MakeWatch(CLI::App &program) {
  CLI::App *app = program.add_subcommand("watch", "Print each change of a setting as it happens");
  app->footer(
      std::string(
          "Changes made by any program are seen, one line each; all models are watched, or\n"
          "only the one named with --model.\n"
          "\n"
          "Examples:\n"
          "  trxctl watch                            until Ctrl-C\n"
          "  trxctl watch --count 1 --timeout 10     the next change, within 10 seconds\n"
          "  trxctl watch --json                     one JSON object a line\n") +
      kSharedOptionsHelp);
  const auto request = std::make_shared<Request>();
  app->add_option("--count", request->count, "End after this many changes")
      ->check(PositiveCount())
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
      ->type_name("N");
  app->add_option("--timeout", request->seconds, "End after this time, with exit code 5")
      ->check(PositiveTime())
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
      ->type_name("SECONDS");
  return {app, [request](const Session &session) {
            Watcher(session, *request).Run();
            return ExitCode::kDone;
          }};
}

}  // namespace trxctl
