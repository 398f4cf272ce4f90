#include "ui/picture_file.h"

#include <QBuffer>
#include <QImageReader>
#include <cmath>

#include "platform/failure.h"

namespace vorlane {

namespace {

constexpr std::uint64_t MostBytes = 64ULL << 20U;
constexpr int LongestSide = 8192;
constexpr qint64 MostPixels = 32LL << 20U;

bool IsUsable(const QSize& size) {
  return !size.isEmpty() && size.width() <= LongestSide && size.height() <= LongestSide &&
         qint64{size.width()} * size.height() <= MostPixels;
}

}  // namespace

QImage LoadPicture(FileSystem& files, TextView path) {
  std::string bytes;
  const bool isRead = Attempt([&] {
    if (files.StatusOf(path).Size <= MostBytes) {
      bytes = files.ReadFileBytes(path);
    }
  });
  if (!isRead || bytes.empty()) {
    return {};
  }
  QByteArray content = QByteArray::fromStdString(bytes);
  QBuffer buffer(&content);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  const QSize told = reader.size();  // invalid for formats that tell it only in the end
  if (told.isValid() && !IsUsable(told)) {
    return {};
  }
  const QImage picture = reader.read();
  return IsUsable(picture.size()) ? picture : QImage();
}

QImage ScalePicture(const QImage& picture, ScaleFactors factors) {
  const double width = std::round(picture.width() * factors.X);
  const double height = std::round(picture.height() * factors.Y);
  if (std::abs(width) > LongestSide || std::abs(height) > LongestSide) {
    return {};
  }
  const QSize size(static_cast<int>(width), static_cast<int>(height));
  return IsUsable(size) ? picture.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                        : QImage();
}

}  // namespace vorlane
