#include "Environment.h"

#include <algorithm>
#include <array>

#include <unistd.h>

namespace trxsim {

namespace {

constexpr std::array<std::string_view, 2> kLists{"LD_PRELOAD=", "ASAN_OPTIONS="};

// "NAME=" of NAME=VALUE.
std::string_view NameOf(std::string_view entry) {
  const std::size_t equals = entry.find('=');
  return entry.substr(0, equals == std::string_view::npos ? entry.size() : equals + 1);
}

void Put(Environment &environment, const std::string &addition) {
  const std::string_view name = NameOf(addition);
  const auto old = std::find_if(environment.begin(), environment.end(), [name](const auto &entry) {
    return std::string_view(entry).starts_with(name);
  });
  if (old == environment.end()) {
    environment.push_back(addition);
    return;
  }
  const bool isList = std::find(kLists.begin(), kLists.end(), name) != kLists.end();
  const bool keepsOld = isList && old->size() > name.size();
  *old = keepsOld ? *old + ':' + addition.substr(name.size()) : addition;
}

}  // namespace

Environment EnvironmentWith(const Environment &additions) {
  Environment environment;
  for (char **entry = environ; *entry != nullptr; ++entry) environment.emplace_back(*entry);
  for (const std::string &addition : additions) Put(environment, addition);
  return environment;
}

std::vector<char *> ExecVector(std::vector<std::string> &strings) {
  std::vector<char *> pointers;
  pointers.reserve(strings.size() + 1);
  for (std::string &text : strings) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace trxsim
