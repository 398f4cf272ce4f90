#include "ui/fade_out.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QThread>

namespace vorlane {

namespace {

constexpr qint64 FadeMilliseconds = 1000;
constexpr unsigned long StepMilliseconds = 16;

bool IsFadeWanted() {
  return QGuiApplication::platformName() == QLatin1String("xcb") &&
         qEnvironmentVariable("VORLANE_NO_FADE") != QLatin1String("1");
}

}  // namespace

void FadeOut(QWidget& window) {
  if (!window.isVisible() || window.isMinimized() || !IsFadeWanted()) {
    return;
  }
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < FadeMilliseconds) {
    const auto passed = static_cast<double>(time.elapsed()) / static_cast<double>(FadeMilliseconds);
    window.setWindowOpacity(1 - passed);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QThread::msleep(StepMilliseconds);
  }
}

}  // namespace vorlane
