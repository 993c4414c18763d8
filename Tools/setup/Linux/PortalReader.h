#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QString>

#include "DesktopAppearance.h"

namespace setup {

/// A wish of the desktop, as its portal names it.
struct Wish {
  const char *space;
  const char *key;
  bool Appearance::*member;
};

/// Asks the desktop's portal, and listens to it. For a thread of its own: reaching a session bus
/// that does not answer waits.
class PortalReader : public QObject {
  Q_OBJECT

 public:
  void Start();

 public Q_SLOTS:
  void SettingChanged(const QString &space, const QString &key, const QDBusVariant &value);

 Q_SIGNALS:
  void Changed(const setup::Appearance &appearance);

 private:
  void Ask(const QDBusConnection &bus, const Wish &wish);
  void Note(const Wish &wish, bool isWished);

  Appearance now_;
};

}  // namespace setup
