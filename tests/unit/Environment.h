// Environment variables for one test.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orv {

/// Sets variables, or removes those without a value, and restores all of them at the end. One
/// thread only: the environment belongs to the whole process.
class Environment {
 public:
  using Variable = std::pair<std::string, std::optional<std::string>>;

  Environment(std::initializer_list<Variable> variables);
  explicit Environment(const std::vector<Variable> &variables);
  Environment(const Environment &) = delete;
  Environment &operator=(const Environment &) = delete;
  ~Environment();

 private:
  static void Put(const Variable &variable);

  std::vector<Variable> before_;
};

/// Only these variables in the environment name the user's language.
std::vector<Environment::Variable> OnlyLanguage(const std::vector<Environment::Variable> &set);

}  // namespace orv
