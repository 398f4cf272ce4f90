#include "ui/qt_message_loop.h"

#include <QCoreApplication>
#include <QTimer>

namespace vorlane {

namespace {

constexpr qint64 MillisecondsBetween = 5;

}  // namespace

void QtMessageLoop::Yield() {
  if (sinceEvents_.elapsed() >= MillisecondsBetween) {
    QCoreApplication::processEvents();
    sinceEvents_.start();
  }
}

void QtMessageLoop::YieldBlocking(int milliseconds) {
  QTimer wakeUp;
  wakeUp.setSingleShot(true);
  wakeUp.start(milliseconds);
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  sinceEvents_.start();
}

}  // namespace vorlane
