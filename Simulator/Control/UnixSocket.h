#pragma once

#include <optional>
#include <string>
#include <utility>

#include <sys/types.h>

namespace trxsim {

/// Owns one file descriptor and closes it.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor &&other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor &operator=(Descriptor &&other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  Descriptor(const Descriptor &) = delete;
  Descriptor &operator=(const Descriptor &) = delete;
  ~Descriptor();

  /// The descriptor itself, -1 when there is none.
  int Get() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }

 private:
  int number_;
};

/// A stream socket connected to `path`; none, with errno set, on failure.
Descriptor ConnectUnixSocket(const std::string &path);

/// The user who made the other end of a connected stream socket listen; nobody, with errno set,
/// when the system does not say.
std::optional<uid_t> PeerOf(const Descriptor &connected);

/// A non-blocking stream socket that listens at `path`; none, with errno set, on failure.
Descriptor ListenUnixSocket(const std::string &path);

}  // namespace trxsim
