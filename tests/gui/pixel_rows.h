// Pictures as rows of letters, one for each pixel, so that a test shows what it expects.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QStringList>
#include <map>
#include <ostream>

namespace vorlane {

// "?" for a colour that has no letter.
inline QStringList PixelRows(const QImage& picture, const std::map<QRgb, char>& letters) {
  QStringList rows;
  for (int y = 0; y < picture.height(); ++y) {
    QString row;
    for (int x = 0; x < picture.width(); ++x) {
      const auto letter = letters.find(picture.pixel(x, y));
      row += QLatin1Char(letter == letters.end() ? '?' : letter->second);
    }
    rows << row;
  }
  return rows;
}

// Equal pixel by pixel; otherwise says where the first difference is.
inline testing::AssertionResult SamePicture(const QImage& shown, const QImage& expected) {
  if (shown.size() != expected.size()) {
    return testing::AssertionFailure()
           << "size " << shown.width() << "x" << shown.height() << ", expected " << expected.width()
           << "x" << expected.height();
  }
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      if (shown.pixel(x, y) != expected.pixel(x, y)) {
        return testing::AssertionFailure()
               << "at " << x << "," << y << ": " << shown.pixelColor(x, y).name().toStdString()
               << ", expected " << expected.pixelColor(x, y).name().toStdString();
      }
    }
  }
  return testing::AssertionSuccess();
}

}  // namespace vorlane
