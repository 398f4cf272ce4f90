// The program's own icons, which are built into it.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace vorlane {

enum class MenuIcon : unsigned char { Save, Delete, Folder };

// In all sizes that a desktop asks for.
QIcon ApplicationIcon();

// 12 by 12 points, for the rows of the favorites menu. Readable on light and dark menus.
QPixmap MenuIconPicture(MenuIcon icon);

}  // namespace vorlane
