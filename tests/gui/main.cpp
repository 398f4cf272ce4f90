// The window's tests run on a screen in memory, each in a home folder of its own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>
#include <QTemporaryDir>

#include "ui/application_look.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VORLANE_SOURCE_DIR "/tests/gui/screen.json");
  qputenv("VORLANE_NO_FADE", "1");
  const QTemporaryDir home;
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME",
                           "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
    qputenv(name, home.path().toLocal8Bit());
  }
  QApplication app(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  vorlane::SetApplicationLook();
  return RUN_ALL_TESTS();
}
