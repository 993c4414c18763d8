#include "Watch.h"

#include <chrono>
#include <deque>
#include <memory>
#include <optional>

#include "Announcements.h"
#include "Failure.h"
#include "Knob.h"
#include "SessionBus.h"
#include "Setting.h"
#include "SettingList.h"
#include "Text.h"

namespace trxctl {
namespace {

using Clock = Announcements::Clock;

/// What the command line asked for.
struct Request {
  /// 0: no end.
  std::int64_t count = 0;
  /// 0: no end.
  double seconds = 0;
};

/// One announced change.
struct Change {
  const Model *model;
  const Setting *setting;
  int32_t channel;
  int32_t index;
};

/// Puts the changes of one setting of one model into the queue, to be printed once delivery is
/// over.
class Subscription : public Listener {
 public:
  Subscription(const Model &model, const Setting &setting, std::deque<Change> &queue)
      : model_(model), setting_(setting), queue_(queue) {}

  void Changed(int32_t channel, int32_t index) noexcept override {
    queue_.push_back({&model_, &setting_, channel, index});
  }

 private:
  const Model &model_;
  const Setting &setting_;
  std::deque<Change> &queue_;
};

std::optional<Clock::time_point> Deadline(double seconds) {
  // Whoever waits longer than a year waits for ever.
  constexpr double kYear = 365.0 * 24 * 60 * 60;
  if (seconds <= 0 || seconds > kYear) return std::nullopt;
  return Clock::now() +
         std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

void PrintChange(const Terminal &terminal, const Change &change) {
  const Knob knob(*change.setting, *change.model, change.channel);
  nlohmann::ordered_json json{{"event", "change"}};
  json.update(HeadingAsJson(knob));
  json.update(ChoiceAsJson(knob, change.index));
  terminal.Print(std::string(change.model->name) + ' ' + knob.Title() + ": " +
                     knob.TextOf(change.index).value_or("choice " + std::to_string(change.index)) +
                     '\n',
                 json);
}

/// Waits for announcements and prints them, until it has seen enough or is told to end.
class Watcher {
 public:
  Watcher(const Session &session, const Request &request)
      : terminal_(session.terminal), request_(request), deadline_(Deadline(request.seconds)) {
    for (const Model &model : Models()) {
      if (session.model_given ? model.id == session.model.id : model.served) Subscribe(model);
    }
  }

  void Run() {
    PrintStart();
    while (!SeenEnough()) {
      switch (announcements_->Wait(deadline_)) {
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
  void Subscribe(const Model &model) {
    models_.emplace_back(model.name);
    for (const Setting &setting : Settings()) {
      Subscription &subscription = subscriptions_.emplace_back(model, setting, queue_);
      // A model that does not have this setting is refused here, and then has no changes of it
      // either.
      setting.functions.listen(model.id, &subscription);
    }
  }

  void PrintStart() const {
    const std::optional<bool> bus = HasSessionBus();
    nlohmann::ordered_json json{{"event", "watching"}, {"models", models_}};
    if (bus) json["session_bus"] = *bus;
    terminal_.Print("Watching " + Joined(models_) + "; end with Ctrl-C.\n", json);
    if (bus && !*bus) {
      terminal_.Note(
          "There is no session bus, so no change can be seen yet; waiting for one.\n"
          "hint: run trxctl in a desktop session, or everything together under dbus-run-session");
    }
  }

  bool SeenEnough() const { return request_.count != 0 && printed_ >= request_.count; }

  void PrintDelivered() {
    for (; !queue_.empty() && !SeenEnough(); queue_.pop_front(), ++printed_) {
      PrintChange(terminal_, queue_.front());
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

  const Terminal &terminal_;
  const Request request_;
  const std::optional<Clock::time_point> deadline_;
  const std::unique_ptr<Announcements> announcements_ = Announcements::Make();
  std::vector<std::string> models_;
  std::deque<Change> queue_;
  std::deque<Subscription> subscriptions_;
  std::int64_t printed_ = 0;
};

/// Refuses all but numbers above 0, in words for people.
template <typename Number>
CLI::Validator Positive(const std::string &noun) {
  return {[noun](const std::string &text) {
            Number number{};
            const bool positive = CLI::detail::lexical_cast(text, number) && number > 0;
            return positive ? std::string() : Quoted(text) + " is no " + noun + " above 0";
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
      ->check(Positive<std::int64_t>("whole number"))
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
      ->type_name("N");
  app->add_option("--timeout", request->seconds, "End after this time, with exit code 5")
      ->check(Positive<double>("number"))
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
      ->type_name("SECONDS");
  return {app, [request](const Session &session) {
            Watcher(session, *request).Run();
            return ExitCode::kDone;
          }};
}

}  // namespace trxctl
