// The parts of a change notification.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orv {

/// The keys of a notification's dictionary. Other programs may add entries of their own: they are
/// passed over.
inline constexpr const char *kProductIdKey = "ProductID";
inline constexpr const char *kChannelKey = "Channel";
inline constexpr const char *kIndexKey = "Index";
inline constexpr std::array kNotificationKeys = {kProductIdKey, kChannelKey, kIndexKey};

/// The dictionary of integers that a notification carries. Keeps the order in which its keys were
/// first set.
class UserInfo {
 public:
  using Entry = std::pair<std::string, std::int32_t>;

  UserInfo() = default;
  UserInfo(std::initializer_list<Entry> entries) : entries_(entries) {}

  const std::vector<Entry> &Entries() const { return entries_; }

  /// The value of a key; 0 when the key is missing.
  std::int32_t IntegerForKey(std::string_view key) const {
    for (const Entry &entry : entries_) {
      if (entry.first == key) return entry.second;
    }
    return 0;
  }

  /// Sets a key, in place of what it held before.
  void Set(std::string_view key, std::int32_t value) {
    for (Entry &entry : entries_) {
      if (entry.first == key) {
        entry.second = value;
        return;
      }
    }
    entries_.emplace_back(key, value);
  }

 private:
  std::vector<Entry> entries_;
};

/// A notification as it reaches an observer.
struct Notification {
  std::string name;
  UserInfo userInfo;
};

}  // namespace orv
