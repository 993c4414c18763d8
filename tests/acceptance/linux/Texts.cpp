#include "../Texts.h"

#include <set>

namespace trxtest {

ORVStringRef TextOf(const std::string &characters) {
  static std::set<std::string> texts;
  return texts.insert(characters).first->c_str();
}

std::string CharactersOf(ORVStringRef text) { return text != nullptr ? text : "(null)"; }

}  // namespace trxtest
