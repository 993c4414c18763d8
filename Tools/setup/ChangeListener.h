#pragma once

#include <QObject>
#include <memory>

#include "client/Settings.h"

namespace setup {

/// Tells what happens outside this program: settings that any program changed, mixers that come
/// and go, the settings folder, the session bus. One for the life of the process, as the library
/// keeps what is registered with it.
///
/// The signals come from another thread, where the platform needs one: registering and delivering
/// may wait for a session bus that does not answer.
class ChangeListener : public QObject {
  Q_OBJECT

 public:
  ChangeListener();
  ~ChangeListener() override;

  /// Begins to listen.
  void Start();

 Q_SIGNALS:
  /// A setting was changed, by this program or another one.
  void Announced(const client::Setting &setting, int index);
  /// Mixers were plugged in or out, or their device files changed.
  void MixersChanged();
  /// Something was written to the settings folder.
  void FilesChanged();
  /// Whether announcements arrive; said once at the start and after each change.
  void BusReached(bool isReached);

 private:
  /// What the platform needs for it.
  struct Machinery;
  std::unique_ptr<Machinery> machinery_;
};

}  // namespace setup
