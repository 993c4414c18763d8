#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ExitCode.h"
#include "Json.h"

namespace trxctl {

/// Keeps the numbers of closed standard streams occupied, so that no mixer or file is opened under
/// them. Call it first.
void ReserveStandardStreams();

/// What a command answers.
struct Answer {
  /// For people, on standard output.
  std::string text;
  Json json;
  /// Lines for people that are no part of the answer, on standard error.
  std::vector<std::string> notes = {};
  /// What did not succeed although there is an answer.
  std::optional<Failure> failure = {};
};

/// Where the program writes: text for people or, with --json, one line of JSON for each answer.
class Output {
 public:
  explicit Output(bool isJson);

  /// Writes one answer to standard output, at once and in whole. Throws Failure when it cannot be
  /// written.
  void Print(std::string_view text, const Json &json) const;

  /// Writes an answer with all that belongs to it.
  ///
  /// @return how the program ends.
  ExitCode Print(const Answer &answer) const;

  /// Writes a line that is no part of the answer to standard error; nothing with --json.
  void Note(std::string_view text) const;

  /// Writes what went wrong: to standard error, or with --json to standard output in place of the
  /// answer.
  void Print(const Failure &failure) const;

  /// Whether a person sees what is written to standard error.
  bool IsSeen() const;

  /// Writes a line to standard error that the next one replaces.
  void PrintPassing(std::string_view text) const;

  /// The text as it is to stand out, where the terminal can show it.
  std::string Strong(std::string_view text) const;

 private:
  void PrintForPeople(const Failure &failure) const;

  bool isJson_;
  bool emphasisOnOutput_;
  bool emphasisOnError_;
};

}  // namespace trxctl
