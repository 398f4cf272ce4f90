// Pictures from files that may hold anything.
#pragma once

#include <QImage>

#include "layout/scaling.h"
#include "platform/file_system.h"

namespace vorlane {

// The picture in the file, in whatever format its bytes show, of whatever name; of a moving one the
// first frame. Null if it can't be loaded: the file isn't there or is damaged, the picture is empty,
// or file or picture is far larger than any part of the window.
QImage LoadPicture(FileSystem& files, TextView path);

// The picture stretched by both factors, each point a copy of one of its points. Null if nothing
// would be left of it or it would become far larger than any part of the window.
QImage ScalePicture(const QImage& picture, ScaleFactors factors);

}  // namespace vorlane
