#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace client {

/// The file with the rule that lets the user at the desk open mixers.
inline constexpr std::string_view kUdevRule = "70-trx-selva.rules";

/// The file with the rule that has a mixer's stored settings sent again when it is plugged in.
inline constexpr std::string_view kReapplyRule = "71-trx-reapply.rules";

/// The folders that udev reads rules from.
std::span<const std::string_view> UdevRuleFolders();

/// Those of the folders in which a rule is installed.
std::vector<std::string> FoldersWithRule(std::span<const std::string_view> folders,
                                         std::string_view rule = kUdevRule);

/// The rule that was installed, or built, with this program; its name alone when it is not there.
std::string RuleBesideProgram();

}  // namespace client
