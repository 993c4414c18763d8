#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "../Model/Desk.h"

namespace trxsim {

/// The answer to one control command.
struct CommandReply {
  std::vector<std::string> lines;
  bool refused = false;
  std::string error;  ///< Why it was refused, with a hint.

  /// The reply as it goes over the control socket: the lines, then "ok" or "error TEXT".
  std::string WireText() const;
};

/// The answer to the command "help": all commands with their arguments.
std::vector<std::string> CommandHelp();

/// Executes control commands on a desk. Any bytes are accepted as a command. Safe for any number of
/// threads.
class CommandInterpreter {
 public:
  /// `environment` is what the command "environment" answers, one NAME=VALUE each.
  CommandInterpreter(Desk &desk, std::vector<std::string> environment);

  /// Executes one command line, given without its end of line.
  CommandReply Execute(std::string_view line);

 private:
  Desk &desk_;
  std::vector<std::string> environment_;
};

}  // namespace trxsim
