// The same idea on Qt's event loop: tells of changes of the boost level until it is ended.
#include <QCoreApplication>
#include <QDebug>
#include <QSocketNotifier>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

static void boostChanged(int32_t index, void * /*context*/) {
  ORVStringRef text = "not a level";
  ORV_GetBoostLevelText(ORV_PRODUCT_TRX_SELVA, static_cast<uint32_t>(index), 0, &text);
  qInfo().noquote() << "boost level:" << QString::fromUtf8(text);
}

int main(int argc, char **argv) {
  QCoreApplication host(argc, argv);

  ORV_RegisterBoostLevelChangedCallback(ORV_PRODUCT_TRX_SELVA, boostChanged, nullptr);
  int32_t descriptor = -1;
  ORV_GetNotificationDescriptor(&descriptor);
  QSocketNotifier notifications(descriptor, QSocketNotifier::Read);
  QObject::connect(&notifications, &QSocketNotifier::activated,
                   [] { ORV_DispatchNotifications(); });

  return host.exec();
}
