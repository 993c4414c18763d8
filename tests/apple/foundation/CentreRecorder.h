// Records the messages to the notification centre.
#pragma once

#include <string>
#include <vector>

namespace orv {

/// Replaces the notification centre's operations during a test: messages are recorded and not
/// executed.
class CentreRecorder {
 public:
  CentreRecorder();
  CentreRecorder(const CentreRecorder &) = delete;
  CentreRecorder &operator=(const CentreRecorder &) = delete;
  ~CentreRecorder();

  /// From now on the centre raises an exception in answer to each message.
  void Raise();

  /// One line a message: its selector, then its arguments. A dictionary is shown in the order of
  /// its keys, an object by its class.
  const std::vector<std::string> &Messages() const;

  /// The observers, one a message that adds one.
  const std::vector<const void *> &Observers() const;
};

}  // namespace orv
