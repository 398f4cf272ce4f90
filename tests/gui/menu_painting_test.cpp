// What a pop-up menu shows, pixel by pixel.
#include "gui/menu_world.h"
#include "gui/pixel_rows.h"
#include "ui/mod_menu_ctl.h"

namespace vorlane {
namespace {

constexpr QRgb SomeRed = 0xFFFF0000;
constexpr QRgb SomeGreen = 0xFF00FF00;

QImage Square(QRgb color, int size = 12) {
  QImage picture(size, size, QImage::Format_RGB32);
  picture.fill(color);
  return picture;
}

// A picture of a menu made by the tests' own hands.
class Drawing {
 public:
  Drawing(QSize size, const QFont& font) : Image(size, QImage::Format_RGB32), font_(font) {
    Image.fill(MenuWorld::Face);
  }
  Drawing& Fill(QRect place, QRgb color) {
    QPainter(&Image).fillRect(place, QColor::fromRgb(color));
    return *this;
  }
  Drawing& Write(QPoint corner, const char* text, QRgb color) {
    QPainter painter(&Image);
    painter.setFont(font_);
    painter.setPen(QColor::fromRgb(color));
    painter.drawText(corner + QPoint(0, QFontMetrics(font_).ascent()), QString::fromUtf8(text));
    return *this;
  }
  Drawing& Put(QPoint corner, const QImage& picture) {
    QPainter(&Image).drawImage(corner, picture);
    return *this;
  }
  // The flat frame.
  Drawing& Frame() {
    for (const QRect& side : {QRect(0, 0, Image.width(), 1), QRect(0, 0, 1, Image.height()),
                              QRect(0, Image.height() - 1, Image.width(), 1),
                              QRect(Image.width() - 1, 0, 1, Image.height())}) {
      Fill(side, MenuWorld::FaceDark);
    }
    return *this;
  }

  QImage Image;

 private:
  QFont font_;
};

struct MenuPainting : MenuWorld {
  MenuPainting() { Menu.Properties().Style = 2; }

  // The menu as it opens, or as the moves leave it.
  QImage Shown(std::function<void(QWidget&)> moves = {}, const QImage& left = {}) {
    QImage picture;
    Show(
        [&](QWidget& form) {
          if (moves) {
            moves(form);
          }
          picture = PictureOf(form);
          Release(form, {});
        },
        {200, 150}, left);
    return picture;
  }
  QSize SizeOf(const char* widest, int rows, int extra) const {
    return {WidthOf(widest) + extra, rows * RowHeight() + 8};
  }
  void AddTwo() {
    Add("Some words");
    Add("More");
  }
};

TEST_F(MenuPainting, ColdRowsStandBelowEachOther) {
  AddTwo();
  Drawing expected(SizeOf("Some words", 2, 8), Font);
  expected.Write({4, 4}, "Some words", Words).Write({4, RowTop(2)}, "More", Words).Frame();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
}

TEST_F(MenuPainting, TheWidestRowGivesTheWidth) {
  Add("More");
  Add("Some words");
  EXPECT_EQ(Shown().size(), SizeOf("Some words", 2, 8));
}

// From one pixel to the left of the text to five before the right edge, one pixel into the next
// row.
TEST_F(MenuPainting, TheHotRowHasABar) {
  AddTwo();
  const QSize size = SizeOf("Some words", 2, 8);
  Drawing expected(size, Font);
  expected.Write({4, RowTop(2)}, "More", Words)
      .Fill({QPoint(3, 4), QPoint(size.width() - 5, 4 + RowHeight())}, Bar)
      .Write({4, 4}, "Some words", BarWords)
      .Frame();
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) { Point(form, 1); }), expected.Image));
}

TEST_F(MenuPainting, TheRowThatWasHotIsCleaned) {
  AddTwo();
  const QSize size = SizeOf("Some words", 2, 8);
  Drawing expected(size, Font);
  expected.Write({4, 4}, "Some words", Words)
      .Fill({QPoint(3, RowTop(2)), QPoint(size.width() - 5, RowTop(2) + RowHeight())}, Bar)
      .Write({4, RowTop(2)}, "More", BarWords)
      .Frame();
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) {
                            Point(form, 1);
                            Point(form, 2);
                          }),
                          expected.Image));
}

TEST_F(MenuPainting, OutsideNoRowIsHot) {
  AddTwo();
  const QImage cold = Shown();
  AddTwo();
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) {
                            Point(form, 2);
                            Move(form, {-1, 5});
                          }),
                          cold));
}

TEST_F(MenuPainting, ADottedBoxIsAsWideAsTheText) {
  Menu.Properties().MouseOverSelectionType = 2;
  Add("Some words");
  Add("More");
  const QImage shown = Shown([&](QWidget& form) { Point(form, 2); });
  const int top = RowTop(2);
  const int bottom = top + RowHeight() - 1;
  const int right = 4 + WidthOf("More");
  for (int x = 3; x < right; x += 2) {
    EXPECT_EQ(shown.pixel(x, top), Bar) << x;
    EXPECT_NE(shown.pixel(x + 1, top), x + 1 == right ? 0U : Bar) << x;
  }
  EXPECT_EQ(shown.pixel(right, top), Bar);  // where the next side begins
  EXPECT_EQ(shown.pixel(right, bottom), Bar);
  EXPECT_EQ(shown.pixel(right, top + 1), Face);
  EXPECT_EQ(shown.pixel(right, top + 2), Bar);
  EXPECT_NE(shown.pixel(right + 1, top), Bar);
  EXPECT_NE(shown.pixel(5, bottom + 1), Bar);
}

TEST_F(MenuPainting, AnyOtherNumberIsASolidBox) {
  for (const int type : {1, 3, -1}) {
    Menu.Properties().MouseOverSelectionType = type;
    AddTwo();
    Drawing expected(SizeOf("Some words", 2, 8), Font);
    const QRect box(QPoint(3, RowTop(2)), QPoint(4 + WidthOf("More"), RowTop(3) - 1));
    expected.Write({4, 4}, "Some words", Words)
        .Fill(box, Bar)
        .Fill(box.adjusted(1, 1, -1, -1), Face)
        .Write({4, RowTop(2)}, "More", BarWords)
        .Frame();
    EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) { Point(form, 2); }), expected.Image));
  }
}

TEST_F(MenuPainting, ARowWhoseBarHasTheBackColorChangesItsWordsAlone) {
  const auto add = [&] {
    Menu.AddItem("Some words", "a", true, {}, MenuCtl::OwnColor, MenuCtl::OwnColor,
                 Menu.Properties().BackColor);
  };
  const QSize size = SizeOf("Some words", 1, 8);
  add();
  Drawing hot(size, Font);
  hot.Write({4, 4}, "Some words", BarWords).Frame();
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) { Point(form, 1); }), hot.Image));
  add();
  Drawing cold(size, Font);
  cold.Write({4, 4}, "Some words", Words).Frame();
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) {
                            Point(form, 1);
                            Move(form, {-1, 5});
                          }),
                          cold.Image));
}

TEST_F(MenuPainting, AnItemMayHaveColorsOfItsOwn) {
  Menu.AddItem("Some words", "a", true, {}, 0x646400, 0x0000FF, 0x00FF00);
  const QSize size = SizeOf("Some words", 1, 8);
  Drawing hot(size, Font);
  hot.Fill({QPoint(3, 4), QPoint(size.width() - 5, 4 + RowHeight())}, SomeGreen)
      .Write({4, 4}, "Some words", SomeRed)
      .Frame();
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) { Point(form, 1); }), hot.Image));
  Menu.AddItem("Some words", "a", true, {}, 0x646400, 0x0000FF, 0x00FF00);
  Drawing cold(size, Font);
  cold.Write({4, 4}, "Some words", 0xFF006464).Frame();
  EXPECT_TRUE(SamePicture(Shown(), cold.Image));
}

TEST_F(MenuPainting, AnItemKeepsTheColorsOfTheMomentWhenItWasAdded) {
  MenuProperties& properties = Menu.Properties();
  properties.ItemForeColor = 0x0000FF;
  properties.ItemHotForeColor = 0x00FF00;
  properties.ItemHotBackColor = 0xFF0000;
  AddTwo();
  properties.ItemForeColor = properties.ItemHotForeColor = properties.ItemHotBackColor = 0;
  const QSize size = SizeOf("Some words", 2, 8);
  Drawing expected(size, Font);
  expected.Write({4, RowTop(2)}, "More", SomeRed)
      .Fill({QPoint(3, 4), QPoint(size.width() - 5, 4 + RowHeight())}, 0xFF0000FF)
      .Write({4, 4}, "Some words", SomeGreen)
      .Frame();
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) { Point(form, 1); }), expected.Image));
}

TEST_F(MenuPainting, ADisabledRowLooksEngravedAlsoUnderThePointer) {
  Drawing expected(SizeOf("Some words", 2, 8), Font);
  expected.Write({5, 5}, "Some words", FaceLight)
      .Write({4, 4}, "Some words", FaceDark)
      .Write({4, RowTop(2)}, "More", Words)
      .Frame();
  Add("Some words", "a", false);
  Add("More");
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
  Add("Some words", "a", false);
  Add("More");
  EXPECT_TRUE(SamePicture(Shown([&](QWidget& form) { Point(form, 1); }), expected.Image));
}

TEST_F(MenuPainting, ALineIsTwoLines) {
  Add("Some words");
  Add("", "Seperator");
  const QSize size = SizeOf("Some words", 2, 8);
  ASSERT_EQ(RowHeight(), 13);
  Drawing expected(size, Font);
  expected.Write({4, 4}, "Some words", Words)
      .Fill({4, RowTop(2) + 6, size.width() - 9, 1}, FaceDark)
      .Fill({4, RowTop(2) + 7, size.width() - 9, 1}, FaceLight)
      .Frame();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
}

TEST_F(MenuPainting, TheOtherSpellingIsABlankRow) {
  Add("Some words");
  Add("", "Separator", false);
  Drawing expected(SizeOf("Some words", 2, 8), Font);
  expected.Write({4, 4}, "Some words", Words).Frame();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
}

TEST_F(MenuPainting, IconsStandBesideTheWords) {
  Menu.Properties().UseIcons = true;
  const QSize size = SizeOf("Some words", 3, 28);
  const auto add = [&] {
    Menu.AddItem("Some words", "a", true, Square(SomeRed));
    Menu.AddItem("Some words", "b", false, Square(SomeGreen));
    Menu.AddItem("Some words", "c", true);  // none
  };
  Drawing expected(size, Font);
  expected.Put({4, 4}, Square(SomeRed)).Put({4, RowTop(2)}, Square(SomeGreen));
  expected.Write({23, RowTop(2) + 1}, "Some words", FaceLight)
      .Write({22, RowTop(2)}, "Some words", FaceDark)
      .Write({22, RowTop(3)}, "Some words", Words);
  Drawing hot = expected;
  expected.Write({22, 4}, "Some words", Words).Frame();
  add();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
  // The bar leaves the icon as it stands.
  hot.Fill({QPoint(21, 4), QPoint(size.width() - 5, 4 + RowHeight())}, Bar)
      .Write({22, 4}, "Some words", BarWords)
      .Frame();
  add();
  QImage shown = Shown([&](QWidget& form) { Point(form, 1); });
  EXPECT_TRUE(SamePicture(shown.copy(0, 0, size.width(), RowTop(2)),
                          hot.Image.copy(0, 0, size.width(), RowTop(2))));
}

TEST_F(MenuPainting, IconsThatArentUsedDontShow) {
  Menu.AddItem("Some words", "a", true, Square(SomeRed));
  Drawing expected(SizeOf("Some words", 1, 8), Font);
  expected.Write({4, 4}, "Some words", Words).Frame();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
}

TEST_F(MenuPainting, AStripWithAPictureStandsOnTheLeft) {
  Menu.Properties().UseLeftImage = true;
  Menu.Properties().LeftPicBackColor = 0x00FF00;
  Add("Some words");
  Add("", "seperator");
  const QSize size = SizeOf("Some words", 2, 28);
  Drawing expected(size, Font);
  expected.Fill({QPoint(2, 3), QPoint(17, size.height() - 4)}, SomeGreen)
      .Put({2, size.height() - 3 - 10}, Square(SomeRed, 10))
      .Write({22, 4}, "Some words", Words)
      .Fill({20, RowTop(2) + 6, size.width() - 25, 1}, FaceDark)
      .Fill({20, RowTop(2) + 7, size.width() - 25, 1}, FaceLight)
      .Frame();
  EXPECT_TRUE(SamePicture(Shown({}, Square(SomeRed, 10)), expected.Image));
}

TEST_F(MenuPainting, AStripNeedsNoPicture) {
  Menu.Properties().UseLeftImage = true;
  Menu.Properties().LeftPicBackColor = 0x00FF00;
  Add("Some words");
  const QSize size = SizeOf("Some words", 1, 28);
  Drawing expected(size, Font);
  expected.Fill({QPoint(2, 3), QPoint(17, size.height() - 4)}, SomeGreen)
      .Write({22, 4}, "Some words", Words)
      .Frame();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
}

TEST_F(MenuPainting, IconsStandBehindTheStrip) {
  Menu.Properties().UseLeftImage = true;
  Menu.Properties().UseIcons = true;
  Menu.AddItem("Some words", "a", true, Square(SomeRed));
  const QSize size = SizeOf("Some words", 1, 48);
  Drawing expected(size, Font);
  expected.Put({20, 4}, Square(SomeRed)).Write({40, 4}, "Some words", Words).Frame();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
}

TEST_F(MenuPainting, EachStyleHasItsFrame) {
  for (const int style : {0, 1, 2, 7}) {
    Menu.Properties().Style = style;
    Add("Some words");
    const QSize size = SizeOf("Some words", 1, 8);
    FormCanvas canvas;
    canvas.BackColor = 0x646464;
    canvas.Resize(size);
    if (style == 0) {
      DrawFrameEtched(canvas, {}, {}, false);
    } else if (style == 1) {
      DrawFrameLayered(canvas, 3, {}, {}, false, Boxes);
    } else {
      DrawFrameFlat(canvas, ColorToWorkOut, 1, {});
    }
    Drawing expected(size, Font);
    expected.Write({4, 4}, "Some words", Words);
    QImage shown = Shown();
    for (QImage* picture : {&shown, &expected.Image}) {
      picture->convertTo(QImage::Format_RGB32);
    }
    // The words leave the four pixels of the frame alone.
    for (int y = 0; y < size.height(); ++y) {
      for (int x = 0; x < size.width(); ++x) {
        const bool isFrame = x < 3 || y < 3 || x >= size.width() - 3 || y >= size.height() - 3;
        const QImage& source = isFrame ? canvas.Picture() : expected.Image;
        ASSERT_EQ(shown.pixel(x, y), source.pixel(x, y)) << style << " " << x << "," << y;
      }
    }
  }
}

// Captions that fill their rows would cover what a bar leaves in the row below it, if that row were
// printed anew.
TEST_F(MenuPainting, AMoveDrawsNothingButTheTwoRowsThatChange) {
  const char* const full = "\u2588\u2588\u2588\u2588";
  Menu.Properties().UseIcons = true;
  for (int i = 0; i < 5; ++i) {
    Menu.AddItem(QString::fromUtf8(full), "a", true, Square(SomeRed));
  }
  const QSize size = SizeOf(full, 5, 28);
  Drawing expected(size, Font);
  for (int row = 1; row <= 5; ++row) {
    expected.Put({4, RowTop(row)}, Square(SomeRed)).Write({22, RowTop(row)}, full, Words);
  }
  expected.Frame();
  const auto bar = [&](int row) {
    return QRect(QPoint(21, RowTop(row)), QPoint(size.width() - 5, RowTop(row) + RowHeight()));
  };
  const QImage shown = Shown([&](QWidget& form) {
    EXPECT_TRUE(SamePicture(PictureOf(form), expected.Image));
    Point(form, 2);
    expected.Fill(bar(2), Bar).Write({22, RowTop(2)}, full, BarWords);
    EXPECT_TRUE(SamePicture(PictureOf(form), expected.Image));
    Point(form, 4);
    expected.Fill(bar(2), Face).Write({22, RowTop(2)}, full, Words);
    expected.Fill(bar(4), Bar).Write({22, RowTop(4)}, full, BarWords);
  });
  EXPECT_TRUE(SamePicture(shown, expected.Image));
}

// Smooth letters that were printed over themselves would get fatter.
TEST_F(MenuPainting, MovesDontFattenDisabledRows) {
  Font.setStyleStrategy(QFont::PreferAntialias);
  Menu.Properties().Font = Font;
  Add("Some words", "a", false);
  AddTwo();
  const QImage cold = Shown();
  Add("Some words", "a", false);
  AddTwo();
  const QImage after = Shown([&](QWidget& form) {
    for (int i = 0; i < 5; ++i) {
      Point(form, 1);
      Point(form, 2);
      Point(form, 3);
    }
    Point(form, 1);
  });
  EXPECT_TRUE(SamePicture(after.copy(0, 0, after.width(), RowTop(2)),
                          cold.copy(0, 0, cold.width(), RowTop(2))));
}

TEST_F(MenuPainting, ACaptionIsOneLine) {
  Add("two\nlines");
  QImage shown = Shown();
  EXPECT_EQ(shown.height(), RowHeight() + 8);
  EXPECT_EQ(shown.width(), WidthOf("two\u240Alines") + 8);
}

TEST_F(MenuPainting, AnOpenedMenuIsDrawnWhole) {
  Menu.Properties().OpenAnimated = true;
  Menu.Properties().MenuAnimSpeed = 60;
  for (int i = 0; i < 40; ++i) {
    Add("Word");
  }
  Drawing expected(SizeOf("Word", 40, 8), Font);
  for (int row = 1; row <= 40; ++row) {
    expected.Write({4, RowTop(row)}, "Word", Words);
  }
  expected.Frame();
  EXPECT_TRUE(SamePicture(Shown(), expected.Image));
}

TEST_F(MenuPainting, ARowThatIsHotWhileTheMenuOpensKeepsItsIcon) {
  Menu.Properties().OpenAnimated = true;
  Menu.Properties().UseIcons = true;
  Menu.Properties().MenuAnimSpeed = 60;
  ActsWhileOpening = true;
  for (int i = 0; i < 40; ++i) {
    Menu.AddItem(QStringLiteral("Word"), QStringLiteral("a"), true, Square(SomeRed));
  }
  QImage shown;
  Show([&](QWidget& form) {
    Move(form, {2, 4});
    QTimer::singleShot(300, &form, [&] {
      shown = PictureOf(form);
      Release(form, {});
    });
  });
  EXPECT_EQ(shown.pixel(6, 8), SomeRed);
}

}  // namespace
}  // namespace vorlane
