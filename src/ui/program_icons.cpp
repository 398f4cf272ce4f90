#include "ui/program_icons.h"

#include <QGuiApplication>

// Without this a linker leaves the icons of a static library out. It has to stand outside of all
// namespaces.
static void InitIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace vorlane {

QIcon ApplicationIcon() {
  InitIcons();
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QStringLiteral(":/icons/vorlane-%1.png").arg(size), QSize(size, size));
  }
  return icon;
}

QPixmap MenuIconPicture(MenuIcon icon) {
  InitIcons();
  constexpr int Points = 12;
  const QLatin1String name(icon == MenuIcon::Save     ? "imgSave"
                           : icon == MenuIcon::Delete ? "imgDelete"
                                                      : "imgFolder");
  return QIcon(QStringLiteral(":/icons/%1.png").arg(name))
      .pixmap(QSize(Points, Points), qGuiApp->devicePixelRatio());
}

}  // namespace vorlane
