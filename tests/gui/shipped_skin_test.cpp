// The skin, sounds and icons that are shipped are what the program needs, and every text on them
// can be read. They are made by tools/make_skin.py; this looks at the files as they are.
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "layout/main_form_layout.h"
#include "ui/program_icons.h"

namespace vorlane {

namespace {

constexpr double LeastContrast = 4.5;
constexpr int Strips = 4;

QString ShippedFile(const std::string& name) {
  return QStringLiteral(VORLANE_SOURCE_DIR "/") + QString::fromStdString(name);
}

QByteArray BytesOf(const std::string& name) {
  QFile file(ShippedFile(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return file.readAll();
}

int NumberAt(const QByteArray& bytes, int offset, int length) {
  int number = 0;
  for (int i = length; i-- > 0;) {
    number = number * 256 + static_cast<unsigned char>(bytes.at(offset + i));
  }
  return number;
}

QImage Picture(const std::string& name, const char* format) {
  QImageReader reader(ShippedFile("data/Skin/" + name));
  reader.setDecideFormatFromContent(true);
  EXPECT_EQ(reader.format(), QByteArray(format)) << name;
  QImage picture = reader.read().convertToFormat(QImage::Format_ARGB32);
  EXPECT_FALSE(picture.isNull()) << name;
  return picture;
}

// Relative luminance: 0 for black, 1 for white.
double Luminance(QRgb colour) {
  const auto linear = [](int part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
         0.0722 * linear(qBlue(colour));
}

double Contrast(QRgb one, QRgb other) {
  const double first = Luminance(one);
  const double second = Luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

// The least contrast of a text with any pixel of the ground that it stands on.
double WorstContrast(const QImage& ground, const QRect& place, QRgb text) {
  double worst = 21;
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      EXPECT_EQ(qAlpha(ground.pixel(x, y)), 255);
      worst = std::min(worst, Contrast(ground.pixel(x, y), text));
    }
  }
  return worst;
}

QRect PixelRectOf(const TwipsRect& place) {
  return {PixelsOf(place.Left), PixelsOf(place.Top), PixelsOf(place.Width), PixelsOf(place.Height)};
}

struct ButtonPicture {
  const char* Name;
  int Width;
  int Height;

  friend void PrintTo(const ButtonPicture& picture, std::ostream* out) { *out << picture.Name; }
};

constexpr ButtonPicture ButtonPictures[] = {
    {"Go", 55, 316},          {"Stop", 55, 316},           {"Help", 50, 200},
    {"Undo", 50, 200},        {"Exit", 44, 176},           {"ListFiles", 61, 112},
    {"ListFolders", 61, 112}, {"ThisFolderOnly", 61, 112}, {"IncludeSubFolders", 61, 112},
    {"DoOne", 61, 112},       {"DoAll", 61, 112},
};

class ShippedButton : public testing::TestWithParam<ButtonPicture> {
 protected:
  std::string File() const { return std::string(GetParam().Name) + ".bmp"; }
};

QImage Strip(const QImage& picture, int number) {
  const int height = picture.height() / Strips;
  return picture.copy(0, number * height, picture.width(), height);
}

bool IsSolid(const QImage& mask, int x, int y) {
  return mask.pixel(x, y) == qRgb(0, 0, 0);
}

// Which of the solid pixels are brighter than their middle: the drawing without its colours.
std::vector<bool> Drawing(const QImage& strip, const QImage& mask) {
  std::vector<double> brightness;
  for (int y = 0; y < strip.height(); ++y) {
    for (int x = 0; x < strip.width(); ++x) {
      brightness.push_back(IsSolid(mask, x, y) ? Luminance(strip.pixel(x, y)) : 0);
    }
  }
  const auto [low, high] = std::minmax_element(brightness.begin(), brightness.end());
  const double middle = (*low + *high) / 2;
  std::vector<bool> drawing(brightness.size());
  std::transform(brightness.begin(), brightness.end(), drawing.begin(),
                 [middle](double value) { return value > middle; });
  return drawing;
}

TEST_P(ShippedButton, HasItsSizeIn24Bit) {
  const QImage picture = Picture(File(), "bmp");
  EXPECT_EQ(picture.size(), QSize(GetParam().Width, GetParam().Height));
  const QByteArray bytes = BytesOf("data/Skin/" + File());
  EXPECT_EQ(bytes.left(2), QByteArray("BM"));
  EXPECT_EQ(NumberAt(bytes, 28, 2), 24);  // bits of a pixel
  EXPECT_EQ(NumberAt(bytes, 30, 4), 0);   // not compressed
}

TEST_P(ShippedButton, HasAMaskOfBlackAndWhiteThatIsOpenAboveAndBelow) {
  const QImage mask = Strip(Picture(File(), "bmp"), 3);
  int solid = 0;
  for (int y = 0; y < mask.height(); ++y) {
    for (int x = 0; x < mask.width(); ++x) {
      const QRgb pixel = mask.pixel(x, y);
      ASSERT_TRUE(pixel == qRgb(0, 0, 0) || pixel == qRgb(255, 255, 255)) << x << ',' << y;
      if (y < 2 || y >= mask.height() - 2) {
        ASSERT_FALSE(IsSolid(mask, x, y)) << x << ',' << y;
      }
      solid += IsSolid(mask, x, y) ? 1 : 0;
    }
  }
  EXPECT_TRUE(IsSolid(mask, mask.width() / 2, mask.height() / 2));
  EXPECT_GT(solid, mask.width() * mask.height() / 2);
  EXPECT_LT(solid, mask.width() * mask.height());
}

TEST_P(ShippedButton, ShowsEachStateClearly) {
  const QImage picture = Picture(File(), "bmp");
  const QImage mask = Strip(picture, 3);
  const auto brightness = [&](int strip) {
    const QImage drawn = Strip(picture, strip);
    double sum = 0;
    int pixels = 0;
    for (int y = 0; y < drawn.height(); ++y) {
      for (int x = 0; x < drawn.width(); ++x) {
        if (IsSolid(mask, x, y)) {
          sum += Luminance(drawn.pixel(x, y));
          ++pixels;
        }
      }
    }
    return sum / pixels;
  };
  EXPECT_GT(brightness(1), brightness(0) * 1.15) << "under the mouse";
  EXPECT_LT(brightness(2), brightness(0) * 0.75) << "pressed";
}

// Where the mask leaves the button open nothing of it may have been drawn: the edge would be cut.
// The rows right in front of the mask are white: a mask that is scaled down may begin there.
TEST_P(ShippedButton, DrawsNothingOutsideItsMask) {
  const QImage picture = Picture(File(), "bmp");
  const QImage mask = Strip(picture, 3);
  for (int y = 0; y < mask.height(); ++y) {
    for (int x = 0; x < mask.width(); ++x) {
      if (!IsSolid(mask, x, y)) {
        const double normal = Luminance(Strip(picture, 0).pixel(x, y));
        EXPECT_NEAR(Luminance(Strip(picture, 1).pixel(x, y)), normal, 0.1) << x << ',' << y;
        const double pressed = Luminance(Strip(picture, 2).pixel(x, y));
        if (y >= mask.height() - 2) {
          EXPECT_EQ(pressed, 1) << x << ',' << y;
        } else {
          EXPECT_NEAR(pressed, normal, 0.1) << x << ',' << y;
        }
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, ShippedButton, testing::ValuesIn(ButtonPictures),
                         [](const auto& test) { return std::string(test.param.Name); });

TEST(ShippedSkin, ThePicturesOfAPairDifferInShape) {
  const std::pair<const char*, const char*> pairs[] = {{"Go", "Stop"},
                                                       {"ListFiles", "ListFolders"},
                                                       {"ThisFolderOnly", "IncludeSubFolders"},
                                                       {"DoOne", "DoAll"}};
  for (const auto& [off, on] : pairs) {
    const QImage first = Picture(std::string(off) + ".bmp", "bmp");
    const QImage second = Picture(std::string(on) + ".bmp", "bmp");
    const std::vector<bool> one = Drawing(Strip(first, 0), Strip(first, 3));
    const std::vector<bool> other = Drawing(Strip(second, 0), Strip(second, 3));
    ASSERT_EQ(one.size(), other.size());
    std::size_t different = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
      different += one[i] != other[i] ? 1U : 0U;
    }
    // Neither the same shape nor the same with light and dark exchanged
    EXPECT_GT(different, one.size() / 16) << off;
    EXPECT_LT(different, one.size() * 15 / 16) << off;
  }
}

TEST(ShippedSkin, TheBackgroundAndTheBarsHaveTheirSizes) {
  EXPECT_EQ(Picture("Background.gif", "gif").size(), QSize(1024, 522));
  EXPECT_EQ(Picture("TopBar.gif", "gif").size(), QSize(717, 49));
  EXPECT_EQ(Picture("BottomBar.gif", "gif").size(), QSize(949, 130));
}

TEST(ShippedSkin, TheBackgroundHidesEverythingBehindIt) {
  const QImage background = Picture("Background.gif", "gif");
  for (int y = 0; y < background.height(); ++y) {
    for (int x = 0; x < background.width(); ++x) {
      ASSERT_EQ(qAlpha(background.pixel(x, y)), 255) << x << ',' << y;
    }
  }
}

TEST(ShippedSkin, HasAPlateUnderTheTitleForBlackAndWhite) {
  const QImage background = Picture("Background.gif", "gif");
  constexpr QRect title(53, 14, 164, 20);
  for (const QRgb text : {qRgb(0, 0, 0), qRgb(255, 255, 255)}) {
    EXPECT_GE(WorstContrast(background, title, text), LeastContrast);
  }
  EXPECT_EQ(background.copy(title), background.copy(title.translated(1, 0))) << "one colour";
}

// The background is stretched with the window; the labels keep their distance from an edge.
class TextsOnTheSkin : public testing::TestWithParam<QSize> {
 protected:
  void SetUp() override {
    layout_.InitResizeTags({DesignWidth, DesignHeight});
    layout_.ResizeIfChanged(TwipsOf(size_.width()), TwipsOf(size_.height()));
    layout_.SetFileStatusWidth(TwipsOf(90));
    background_ = Picture("Background.gif", "gif")
                      .scaled(size_, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }

  double OnBackground(QRect place, QRgb text) const {
    return WorstContrast(background_, place & QRect(QPoint(), size_), text);
  }

  const QSize size_ = GetParam();
  MainFormLayout layout_;
  QImage background_;
};

TEST_P(TextsOnTheSkin, TheTitleCanBeReadInBlackAndInWhite) {
  const QRect title = PixelRectOf(layout_.PlaceOf("lblTitle"));
  EXPECT_GE(OnBackground(title, qRgb(0, 0, 0)), LeastContrast);
  EXPECT_GE(OnBackground(title, qRgb(255, 255, 255)), LeastContrast);
}

TEST_P(TextsOnTheSkin, TheStatusTextsCanBeReadInWhite) {
  QRect status = PixelRectOf(layout_.PlaceOf("lblStatus"));
  status.setRight(size_.width());  // it may be as long as the window is wide
  EXPECT_GE(OnBackground(status, qRgb(255, 255, 255)), LeastContrast);
  const QRect fileStatus = PixelRectOf(layout_.PlaceOf("lblFileStatus"));
  EXPECT_GE(OnBackground(fileStatus, qRgb(255, 255, 255)), LeastContrast);
}

TEST_P(TextsOnTheSkin, TheBoxCaptionsCanBeReadOnTheBarAndWithoutIt) {
  const QImage bar = Picture("BottomBar.gif", "gif");
  const QPoint barPlace = PixelRectOf(layout_.PlaceOf("imgBottomBar")).topLeft();
  for (int box = 0; box < 6; ++box) {
    QRect caption = PixelRectOf(layout_.PlaceOf("lblRenameOption", box));
    caption.setWidth(PixelRectOf(layout_.PlaceOf("txtRenameOption", box)).width());
    const QRgb white = qRgb(255, 255, 255);
    EXPECT_GE(WorstContrast(bar, caption.translated(-barPlace), white), LeastContrast) << box;
    EXPECT_GE(OnBackground(caption, white), LeastContrast) << box;
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, TextsOnTheSkin,
                         testing::Values(QSize(996, 453), QSize(1024, 522), QSize(1400, 700),
                                         QSize(1900, 1000), QSize(1000, 1400), QSize(3840, 2100)),
                         [](const auto& test) {
                           return std::to_string(test.param.width()) + "x" +
                                  std::to_string(test.param.height());
                         });

class ShippedSound : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(ShippedSound, IsSoftPcmOfItsLength) {
  const auto& [name, milliseconds] = GetParam();
  const QByteArray bytes = BytesOf("data/Sounds/" + std::string(name) + ".wav");
  ASSERT_GT(bytes.size(), 44);
  EXPECT_EQ(bytes.left(4), QByteArray("RIFF"));
  EXPECT_EQ(NumberAt(bytes, 4, 4), bytes.size() - 8);
  EXPECT_EQ(bytes.mid(8, 8), QByteArray("WAVEfmt "));
  EXPECT_EQ(NumberAt(bytes, 20, 2), 1);      // PCM
  EXPECT_EQ(NumberAt(bytes, 22, 2), 1);      // channels
  EXPECT_EQ(NumberAt(bytes, 24, 4), 22050);  // samples per second
  EXPECT_EQ(NumberAt(bytes, 34, 2), 16);     // bits of a sample
  EXPECT_EQ(bytes.mid(36, 4), QByteArray("data"));
  EXPECT_EQ(NumberAt(bytes, 40, 4), bytes.size() - 44);
  EXPECT_EQ((bytes.size() - 44) / 2, 22050 * milliseconds / 1000);
  int peak = 0;
  for (int at = 44; at + 1 < bytes.size(); at += 2) {
    peak = std::max(peak, std::abs(static_cast<std::int16_t>(NumberAt(bytes, at, 2))));
  }
  EXPECT_GT(peak, 2000) << "can't be heard";
  EXPECT_LT(peak, 16000) << "too loud";
  const auto last =
      static_cast<std::int16_t>(NumberAt(bytes, static_cast<int>(bytes.size()) - 2, 2));
  EXPECT_LT(std::abs(last), 300) << "ends with a crack";
}

INSTANTIATE_TEST_SUITE_P(Both, ShippedSound,
                         testing::Values(std::pair("01", 120), std::pair("02", 30)),
                         [](const auto& test) { return std::string("Sound") + test.param.first; });

TEST(ShippedIcons, TheMenuIconsAreSmallAndCanBeToldFromAnyMenu) {
  for (const MenuIcon icon : {MenuIcon::Save, MenuIcon::Delete, MenuIcon::Folder}) {
    const QImage picture = MenuIconPicture(icon).toImage().convertToFormat(QImage::Format_ARGB32);
    ASSERT_EQ(picture.size(), QSize(12, 12));
    int drawn = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QRgb pixel = picture.pixel(x, y);
        if (qAlpha(pixel) == 255) {
          ++drawn;
          EXPECT_GE(Contrast(pixel, qRgb(240, 240, 240)), 3) << x << ',' << y;
          EXPECT_GE(Contrast(pixel, qRgb(45, 45, 45)), 3) << x << ',' << y;
        }
      }
    }
    EXPECT_GT(drawn, 24);
  }
}

TEST(ShippedIcons, TheApplicationIconIsThereInAllSizes) {
  const QList<QSize> sizes = ApplicationIcon().availableSizes();
  for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
    EXPECT_TRUE(sizes.contains(QSize(side, side))) << side;
    const QImage picture(ShippedFile("packaging/icons/vorlane-" + std::to_string(side) + ".png"));
    EXPECT_EQ(picture.size(), QSize(side, side));
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << side;
    EXPECT_GT(qAlpha(picture.pixel(side / 2, side / 2)), 250) << side;
  }
}

}  // namespace

}  // namespace vorlane
