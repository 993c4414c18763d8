#include "Environment.h"

#include <cstdlib>

namespace orv {

Environment::Environment(std::initializer_list<Variable> variables)
    : Environment(std::vector<Variable>(variables)) {}

Environment::Environment(const std::vector<Variable> &variables) {
  for (const Variable &variable : variables) {
    const char *const value = std::getenv(variable.first.c_str());
    before_.emplace_back(variable.first,
                         value != nullptr ? std::optional<std::string>(value) : std::nullopt);
    Put(variable);
  }
}

// In reverse order: a variable that was named twice gets its original value.
Environment::~Environment() {
  for (auto variable = before_.rbegin(); variable != before_.rend(); ++variable) Put(*variable);
}

void Environment::Put(const Variable &variable) {
  if (variable.second) {
    setenv(variable.first.c_str(), variable.second->c_str(), 1);
  } else {
    unsetenv(variable.first.c_str());
  }
}

std::vector<Environment::Variable> OnlyLanguage(const std::vector<Environment::Variable> &set) {
  std::vector<Environment::Variable> variables = {{"LANGUAGE", std::nullopt},
                                                  {"LC_ALL", std::nullopt},
                                                  {"LC_MESSAGES", std::nullopt},
                                                  {"LANG", std::nullopt}};
  variables.insert(variables.end(), set.begin(), set.end());
  return variables;
}

}  // namespace orv
