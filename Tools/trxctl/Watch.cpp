#include "Watch.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <deque>
#include <memory>
#include <optional>

#include "UserInput.h"
#include "WatchLoop.h"
#include "Words.h"
#include "client/MixerWatch.h"
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
  bool hasTimestamps = false;
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

/// The time of day with its zone, to the millisecond.
std::string TimeNow() {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  const auto milliseconds =
      std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
  std::tm local{};
  localtime_r(&seconds, &local);
  std::array<char, 32> date{};
  std::array<char, 16> zone{};
  std::array<char, 8> fraction{};
  std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
  std::strftime(zone.data(), zone.size(), "%z", &local);
  std::snprintf(fraction.data(), fraction.size(), ".%03d", static_cast<int>(milliseconds));
  return std::string(date.data()) + fraction.data() + zone.data();
}

/// Waits for announcements and prints them, until it has seen enough or a signal ends it.
class Watcher {
 public:
  Watcher(const Session &session, const Request &request)
      : output_(session.output), request_(request), deadline_(Deadline(request.seconds)) {
    for (const client::Model *model : session.Models()) Subscribe(*model);
  }

  void Run() {
    PrintStart();
    while (!SeenEnough()) {
      // A deadline of the loop's own only serves to try the bus again.
      switch (loop_->Wait(NextLook(), {mixers_.Descriptor(), bus_.Descriptor()})) {
        case Waited::kForDelivery:
          PrintDelivered();
          break;
        case Waited::kForOthers:
          looksLeft_ = kLooksAtMixers;
          PrintPlugged();
          PrintBus();
          break;
        case Waited::kForEndSignal:
          return;
        case Waited::kForReader:
          ThrowReaderGone();
        case Waited::kForTime:
          if (deadline_ && Clock::now() >= *deadline_) ThrowTimedOut();
          if (looksLeft_ > 0) --looksLeft_;
          PrintPlugged();
          PrintBus();
          break;
      }
    }
  }

 private:
  static constexpr int kLooksAtMixers = 20;

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
    const bool isNeeded = busState_ != client::SessionBusState::kNotNeeded;
    Json json{{"event", "watching"}, {"models", models_}};
    if (isNeeded) json["session_bus"] = !IsBusMissing();
    output_.Print("Watching " + Joined(models_) + "; end with Ctrl-C.\n", json);
    if (IsBusMissing()) {
      output_.Note(
          "There is no session bus, so no change can be seen yet; waiting for one.\n"
          "hint: run trxctl in a desktop session, or everything together under dbus-run-session");
    }
  }

  void PrintChange(const Change &change) const {
    const client::Setting &setting = change.setting;
    Json json{{"event", "change"}};
    json.update(HeadingAsJson(setting));
    json.update(ChoiceAsJson(setting, change.index));
    const std::string text = setting.TextOf(change.index)
                                 .value_or("choice number " + std::to_string(change.index + 1LL));
    PrintLine(std::string(setting.model->name) + ' ' + TitleOf(setting) + ": " + text,
              std::move(json));
  }

  bool SeenEnough() const { return request_.count != 0 && printed_ >= request_.count; }

  void PrintDelivered() {
    for (; !queue_.empty() && !SeenEnough(); queue_.pop_front(), ++printed_) {
      PrintChange(queue_.front());
    }
  }

  /// When to wake up without a reason: at the end, to look for a bus that is gone, or for a mixer
  /// whose device file was there before it could be seen.
  std::optional<Clock::time_point> NextLook() const {
    constexpr std::chrono::milliseconds kPause{250};
    if (!IsBusMissing() && looksLeft_ == 0) return deadline_;
    const Clock::time_point next = Clock::now() + kPause;
    return deadline_ ? std::min(*deadline_, next) : next;
  }

  bool IsBusMissing() const {
    return busState_ == client::SessionBusState::kMissing ||
           busState_ == client::SessionBusState::kNoAnswer;
  }

  void PrintPlugged() {
    for (const client::PlugEvent &event : mixers_.Take()) {
      const std::string what = event.isPlugged ? "plugged in" : "unplugged";
      Json json{{"event", event.isPlugged ? "plugged" : "unplugged"}};
      json.update(MixerAsJson(event.mixer));
      PrintLine(DescribeWithSerial(event.mixer) + ": " + what, std::move(json));
    }
  }

  void PrintBus() {
    const bool wasMissing = IsBusMissing();
    busState_ = bus_.State();
    if (IsBusMissing() == wasMissing) return;
    PrintLine(IsBusMissing() ? "The session bus is gone, so no change can be seen; waiting for it."
                             : "The session bus is back.",
              {{"event", "session_bus"}, {"reached", !IsBusMissing()}});
  }

  /// Prints one event, with the time if that is wanted.
  void PrintLine(const std::string &text, Json json) const {
    if (!request_.hasTimestamps) return output_.Print(text + '\n', json);
    const std::string now = TimeNow();
    json["time"] = now;
    output_.Print(now + "  " + text + '\n', json);
  }

  [[noreturn]] void ThrowTimedOut() const {
    throw Failure{
        ExitCode::kTimedOut,
        "the time is over; " + Counted(static_cast<std::size_t>(printed_), "change") + " seen",
        "give more time with --timeout, or leave it out to wait without end"};
  }

  // Programs end quietly when nobody reads on.
  [[noreturn]] static void ThrowReaderGone() { throw Failure{ExitCode::kOutputFailed, "", ""}; }

  const Output &output_;
  const Request request_;
  const std::optional<Clock::time_point> deadline_;
  const std::unique_ptr<WatchLoop> loop_ = WatchLoop::Make();
  client::MixerWatch mixers_;
  client::SessionBusWatch bus_;
  client::SessionBusState busState_ = bus_.State();
  std::vector<std::string> models_;
  std::deque<Change> queue_;
  std::deque<Subscription> subscriptions_;
  std::int64_t printed_ = 0;
  /// How often mixers are looked for once more.
  int looksLeft_ = 0;
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
          "Changes made by any program are seen, one line each, and mixers that are plugged\n"
          "in or unplugged. All models are watched, or only the one named with --model.\n"
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
  app->add_flag("--timestamps", request->hasTimestamps, "Begin each line with the time");
  return {app, [request](const Session &session) {
            Watcher(session, *request).Run();
            return ExitCode::kDone;
          }};
}

}  // namespace trxctl
