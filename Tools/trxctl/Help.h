#pragma once

#include <memory>
#include <string>

#include <CLI/CLI.hpp>

namespace trxctl {

/// Lays out the help: the parser's own layout, with the words and the brevity that people at a
/// terminal expect.
class HelpFormat : public CLI::Formatter {
 public:
  static std::shared_ptr<HelpFormat> Make() {
    auto format = std::make_shared<HelpFormat>();
    format->column_width(20);
    format->label("SUBCOMMAND", "COMMAND");
    format->label("Positionals", "Arguments");
    return format;
  }

  /// Behind an option only the name of its value, behind an argument nothing.
  std::string make_option_opts(const CLI::Option *option) const override {
    const bool hasValue = option->get_type_size() != 0 && !option->get_positional();
    return hasValue ? ' ' + option->get_type_name() : "";
  }
};

}  // namespace trxctl
