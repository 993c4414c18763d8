#pragma once

#include <memory>
#include <string>
#include <utility>

#include <CLI/CLI.hpp>

namespace trxsim {

/// Help texts with a usage line of our own: CLI11 does not know which arguments follow the options.
class UsageFormatter : public CLI::Formatter {
 public:
  explicit UsageFormatter(std::string usage) : usage_(std::move(usage)) {}

  std::string make_usage(const CLI::App *, std::string) const override {
    return "Usage: " + usage_ + '\n';
  }

 private:
  std::string usage_;
};

}  // namespace trxsim
