#include "PortalReader.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <array>

namespace setup {
namespace {

constexpr char kService[] = "org.freedesktop.portal.Desktop";
constexpr char kPath[] = "/org/freedesktop/portal/desktop";
constexpr char kInterface[] = "org.freedesktop.portal.Settings";

constexpr std::array<Wish, 3> kWishes{{
    {"org.freedesktop.appearance", "color-scheme", &Appearance::isDark},
    {"org.freedesktop.appearance", "contrast", &Appearance::isHighContrast},
    {"org.gnome.desktop.a11y.interface", "high-contrast", &Appearance::isHighContrast},
}};

/// Values stand in variants, one or two deep.
QVariant Unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

/// 1 is "dark" and "high contrast", 0 and 2 are not; true is yes.
bool IsYes(const QVariant &value) { return Unwrapped(value).toInt() == 1; }

}  // namespace

void PortalReader::Start() {
  // Without it, Qt refuses to connect a slot that takes one, and does not say so.
  qDBusRegisterMetaType<QDBusVariant>();
  QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "appearance");
  if (!bus.isConnected()) return;
  bus.connect(kService, kPath, kInterface, "SettingChanged", this,
              SLOT(SettingChanged(QString, QString, QDBusVariant)));
  for (const Wish &wish : kWishes) Ask(bus, wish);
}

void PortalReader::SettingChanged(const QString &space, const QString &key,
                                  const QDBusVariant &value) {
  for (const Wish &wish : kWishes) {
    if (space == wish.space && key == wish.key) Note(wish, IsYes(value.variant()));
  }
}

void PortalReader::Ask(const QDBusConnection &bus, const Wish &wish) {
  QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
  question << QString(wish.space) << QString(wish.key);
  auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, &wish] {
    const QDBusPendingReply<QVariant> reply = *watcher;
    // Desktops that do not know a wish answer with an error.
    if (!reply.isError() && IsYes(reply.value())) Note(wish, true);
    watcher->deleteLater();
  });
}

void PortalReader::Note(const Wish &wish, bool isWished) {
  now_.*wish.member = isWished;
  Q_EMIT Changed(now_);
}

}  // namespace setup
