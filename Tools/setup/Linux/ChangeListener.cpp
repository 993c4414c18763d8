#include "ChangeListener.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>
#include <cstdint>
#include <deque>

#include <TRX-SELVASetup/EventLoop.h>

#include "client/AutoApply.h"
#include "client/MixerWatch.h"
#include "client/Profiles.h"
#include "client/SessionBus.h"
#include "client/StoredSettings.h"

namespace setup {
namespace {

/// Passes on the changes of one kind of setting of one model.
class Subscription : public client::Listener {
 public:
  Subscription(const client::Model &model, const client::SettingKind &kind,
               ChangeListener &listener)
      : model_(model), kind_(kind), listener_(listener) {}

  void Changed(int32_t channel, int32_t index) noexcept override {
    Q_EMIT listener_.Announced({&kind_, &model_, channel}, index);
  }

 private:
  const client::Model &model_;
  const client::SettingKind &kind_;
  ChangeListener &listener_;
};

/// Everything that the listening thread does, on that thread. Nothing here wakes up unless
/// something has happened.
class Listening {
 public:
  explicit Listening(ChangeListener &listener) : listener_(listener) {
    for (const client::Model *model : client::ServedModels()) Subscribe(*model);
    ORV_GetNotificationDescriptor(&descriptor_);
    announcements_ = MakeNotifier(descriptor_, [this] { Deliver(); });
    plugs_ = MakeNotifier(mixers_.Descriptor(), [this] { TellMixers(); });
    laterLook_.setSingleShot(true);
    QObject::connect(&laterLook_, &QTimer::timeout, [this] { LookLater(); });
    QObject::connect(&folders_, &QFileSystemWatcher::directoryChanged, [this] { TellFiles(); });
    WatchFolders();
    LookAtBus();
  }

 private:
  using Notifier = std::unique_ptr<QSocketNotifier>;

  template <typename Function>
  static Notifier MakeNotifier(int descriptor, Function function) {
    if (descriptor < 0) return nullptr;
    auto notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), function);
    return notifier;
  }

  void Subscribe(const client::Model &model) {
    for (const client::SettingKind &kind : client::SettingKinds()) {
      // A model without this setting is refused here, and has no changes of it.
      kind.functions.listen(model.id, &subscriptions_.emplace_back(model, kind, listener_));
    }
  }

  void Deliver() {
    ORV_DispatchNotifications();
    // While there is no bus, the library looks for one about once a second, which wakes us, too.
    if (!isBusReached_) LookAtBus();
  }

  void LookAtBus() {
    const bool wasReached = isBusReached_;
    isBusReached_ = bus_.State() == client::SessionBusState::kReached;
    if (isBusReached_ == wasReached && isBusTold_) return;
    isBusTold_ = true;
    if (isBusReached_) {
      bustle_ = MakeNotifier(bus_.Descriptor(), [this] { LookAtBus(); });
    } else if (bustle_) {
      // This may run inside the notifier's own signal.
      bustle_->setEnabled(false);
      bustle_.release()->deleteLater();
    }
    Q_EMIT listener_.BusReached(isBusReached_);
  }

  // A device file may be there before the device can be seen, and is given to its user later.
  void TellMixers() {
    mixers_.Take();
    looksLeft_ = kLaterLooks;
    laterLook_.start(kPauseBetweenLooks);
    Q_EMIT listener_.MixersChanged();
  }

  void LookLater() {
    if (!mixers_.Take().empty()) Q_EMIT listener_.MixersChanged();
    if (--looksLeft_ > 0) laterLook_.start(kPauseBetweenLooks);
  }

  void WatchFolders() {
    const QStringList former = folders_.directories();
    QStringList wanted;
    for (const auto &file : {client::SettingsFileOf(client::DefaultModel()),
                             client::AutoApplyOffFile(), client::ProfilesFolder()}) {
      if (file) wanted << NearestFolder(QFile::decodeName(file->c_str()));
    }
    wanted.removeDuplicates();
    for (const QString &folder : former) {
      if (!wanted.contains(folder)) folders_.removePath(folder);
    }
    for (const QString &folder : wanted) {
      if (!former.contains(folder)) folders_.addPath(folder);
    }
  }

  /// The folder that a file is in; as long as it is not made, the nearest one above it.
  static QString NearestFolder(const QString &file) {
    QString folder = QFileInfo(file).path();
    while (!QDir(folder).exists() && folder != QDir::rootPath()) {
      folder = QFileInfo(folder).path();
    }
    return folder;
  }

  void TellFiles() {
    WatchFolders();
    Q_EMIT listener_.FilesChanged();
  }

  static constexpr int kLaterLooks = 8;
  static constexpr int kPauseBetweenLooks = 250;

  ChangeListener &listener_;
  std::deque<Subscription> subscriptions_;
  int32_t descriptor_ = -1;
  client::MixerWatch mixers_;
  client::SessionBusWatch bus_;
  bool isBusReached_ = false;
  bool isBusTold_ = false;
  Notifier announcements_;
  Notifier plugs_;
  Notifier bustle_;
  QFileSystemWatcher folders_;
  QTimer laterLook_;
  int looksLeft_ = 0;
};

class ListeningThread : public QThread {
 public:
  explicit ListeningThread(ChangeListener &listener) : listener_(listener) {}

 private:
  void run() override {
    const Listening listening(listener_);
    exec();
  }

  ChangeListener &listener_;
};

}  // namespace

struct ChangeListener::Machinery {
  explicit Machinery(ChangeListener &listener) : thread(listener) {}

  ListeningThread thread;
};

ChangeListener::ChangeListener() : machinery_(std::make_unique<Machinery>(*this)) {}

ChangeListener::~ChangeListener() {
  machinery_->thread.quit();
  machinery_->thread.wait();
}

void ChangeListener::Start() { machinery_->thread.start(); }

}  // namespace setup
