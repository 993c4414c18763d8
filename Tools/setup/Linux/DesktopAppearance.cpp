#include "DesktopAppearance.h"

#include <QThread>

#include "PortalReader.h"

namespace setup {

struct DesktopAppearance::Machinery {
  QThread thread;
};

DesktopAppearance::DesktopAppearance() : machinery_(std::make_unique<Machinery>()) {}

DesktopAppearance::~DesktopAppearance() {
  machinery_->thread.quit();
  machinery_->thread.wait();
}

void DesktopAppearance::Start() {
  auto *reader = new PortalReader;
  reader->moveToThread(&machinery_->thread);
  connect(&machinery_->thread, &QThread::finished, reader, &QObject::deleteLater);
  connect(&machinery_->thread, &QThread::started, reader, &PortalReader::Start);
  connect(reader, &PortalReader::Changed, this, &DesktopAppearance::Changed);
  machinery_->thread.start();
}

}  // namespace setup
