#include "Fault.h"

#include <algorithm>
#include <array>
#include <utility>

namespace trxsim {

namespace {

using RequestFaultName = std::pair<RequestFaultKind, std::string_view>;
using OpenFaultName = std::pair<OpenFault, std::string_view>;

constexpr std::array<RequestFaultName, 4> kRequestFaults{{
    {RequestFaultKind::kStall, "stall"},
    {RequestFaultKind::kShort, "short"},
    {RequestFaultKind::kNoReply, "no-reply"},
    {RequestFaultKind::kVanish, "vanish"},
}};

constexpr std::array<OpenFaultName, 3> kOpenFaults{{
    {OpenFault::kRefuse, "refuse"},
    {OpenFault::kDeny, "deny"},
    {OpenFault::kHold, "hold"},
}};

template <typename Table>
auto Named(const Table &table, std::string_view word) -> std::optional<decltype(table[0].first)> {
  for (const auto &[kind, name] : table) {
    if (name == word) return kind;
  }
  return std::nullopt;
}

template <typename Table, typename Kind>
std::string NameOf(const Table &table, Kind wanted) {
  for (const auto &[kind, name] : table) {
    if (kind == wanted) return std::string(name);
  }
  return {};
}

std::string TextOf(const RequestFault &fault) {
  std::string text = NameOf(kRequestFaults, fault.kind);
  if (fault.kind == RequestFaultKind::kShort) text += ' ' + std::to_string(fault.bytes);
  return text;
}

void Append(std::string &list, const std::string &item) {
  if (!list.empty()) list += ", ";
  list += item;
}

}  // namespace

void Faults::Set(std::optional<RequestId> request, RequestFault fault) {
  if (request) {
    single_[*request] = fault;
  } else {
    every_ = fault;
  }
}

void Faults::Clear() { *this = Faults(); }

std::optional<RequestFault> Faults::FaultOf(std::optional<RequestId> request) const {
  if (request) {
    const auto found = single_.find(*request);
    if (found != single_.end()) return found->second;
  }
  return every_;
}

std::string Faults::Text() const {
  std::string list;
  if (open_ != OpenFault::kNone) Append(list, NameOf(kOpenFaults, open_));
  if (every_) Append(list, TextOf(*every_));
  for (const auto &[id, fault] : single_) {
    Append(list, TextOf(fault) + ' ' + std::string(EntryOf(id).word));
  }
  return list.empty() ? "none" : list;
}

std::optional<RequestFaultKind> RequestFaultNamed(std::string_view word) {
  return Named(kRequestFaults, word);
}

std::optional<OpenFault> OpenFaultNamed(std::string_view word) { return Named(kOpenFaults, word); }

}  // namespace trxsim
