#include "Fault.h"

#include <algorithm>
#include <array>
#include <utility>

namespace trxsim {

namespace {

using RequestFaultName = std::pair<RequestFaultKind, std::string_view>;
using OpenFaultName = std::pair<OpenFault, std::string_view>;

constexpr std::array<RequestFaultName, 4> kRequestFaults{{
    {RequestFaultKind::Stall, "stall"},
    {RequestFaultKind::Short, "short"},
    {RequestFaultKind::NoReply, "no-reply"},
    {RequestFaultKind::Vanish, "vanish"},
}};

constexpr std::array<OpenFaultName, 3> kOpenFaults{{
    {OpenFault::Refuse, "refuse"},
    {OpenFault::Deny, "deny"},
    {OpenFault::Hold, "hold"},
}};

template <typename Table>
auto named(const Table &table, std::string_view word) -> std::optional<decltype(table[0].first)> {
  for (const auto &[kind, name] : table) {
    if (name == word) return kind;
  }
  return std::nullopt;
}

template <typename Table, typename Kind>
std::string nameOf(const Table &table, Kind wanted) {
  for (const auto &[kind, name] : table) {
    if (kind == wanted) return std::string(name);
  }
  return {};
}

std::string textOf(const RequestFault &fault) {
  std::string text = nameOf(kRequestFaults, fault.kind);
  if (fault.kind == RequestFaultKind::Short) text += ' ' + std::to_string(fault.bytes);
  return text;
}

void append(std::string &list, const std::string &item) {
  if (!list.empty()) list += ", ";
  list += item;
}

}  // namespace

void Faults::set(std::optional<RequestId> request, RequestFault fault) {
  if (request) {
    single_[*request] = fault;
  } else {
    every_ = fault;
  }
}

void Faults::clear() { *this = Faults(); }

std::optional<RequestFault> Faults::faultOf(std::optional<RequestId> request) const {
  if (request) {
    const auto found = single_.find(*request);
    if (found != single_.end()) return found->second;
  }
  return every_;
}

std::string Faults::text() const {
  std::string list;
  if (open_ != OpenFault::None) append(list, nameOf(kOpenFaults, open_));
  if (every_) append(list, textOf(*every_));
  for (const auto &[id, fault] : single_) {
    append(list, textOf(fault) + ' ' + std::string(requestEntry(id).word));
  }
  return list.empty() ? "none" : list;
}

std::optional<RequestFaultKind> requestFaultNamed(std::string_view word) {
  return named(kRequestFaults, word);
}

std::optional<OpenFault> openFaultNamed(std::string_view word) { return named(kOpenFaults, word); }

}  // namespace trxsim
