#pragma once

#include <vector>

#include <TRX-SELVASetup/Diagnostics.h>

namespace client {

/// What became of a request to a mixer, or of opening it.
enum class Outcome {
  kDone,          ///< The mixer took the value, or answered.
  kRefused,       ///< The mixer refused the request.
  kNoAnswer,      ///< The mixer did not answer in time.
  kGone,          ///< The mixer was unplugged meanwhile.
  kNoPermission,  ///< This user may not open the mixer.
  kBusy,          ///< Another program keeps the mixer for itself.
  kFailed,        ///< Anything else.
};

/// One request to one mixer.
struct Request {
  unsigned bus = 0;
  unsigned address = 0;
  /// On macOS, in place of bus and address.
  unsigned location = 0;
  /// False when the mixer could not be opened, so that no request was sent to it.
  bool isOpened = true;
  Outcome outcome = Outcome::kFailed;
};

/// Called after each request that this thread makes while a RequestLog lives, so that a program can
/// show what it waits for.
class RequestListener {
 public:
  virtual ~RequestListener() = default;
  virtual void Ended(const Request &request) noexcept = 0;
};

/// Sets the listener of this thread; null for none.
void SetRequestListener(RequestListener *listener);

/// The requests that this thread makes while it lives. One at a time.
class RequestLog {
 public:
  RequestLog();
  RequestLog(const RequestLog &) = delete;
  RequestLog &operator=(const RequestLog &) = delete;
  ~RequestLog();

  const std::vector<Request> &Requests() const { return requests_; }

 private:
  static void Observe(const ORVRequestReport *report, void *log);

  std::vector<Request> requests_;
};

}  // namespace client
