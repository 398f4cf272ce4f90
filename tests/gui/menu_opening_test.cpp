// The pop-up menu that opens step by step, and the menu's properties.
#include "gui/menu_world.h"

namespace vorlane {
namespace {

using MenuOpeningTest = MenuWorld;

TEST_F(MenuOpeningTest, AnOpeningMenuGrowsStepByStep) {
  Menu.Properties().OpenAnimated = true;
  for (int i = 0; i < 12; ++i) {
    Add("A rather wide caption");
  }
  class SizeWatch final : public QObject {
   public:
    bool eventFilter(QObject* watched, QEvent* event) override {
      if (event->type() == QEvent::Paint && watched->objectName() == "frmMenuCtl") {
        Sizes.push_back(static_cast<QWidget*>(watched)->size());
      }
      return false;
    }
    std::vector<QSize> Sizes;
  } watch;
  qApp->installEventFilter(&watch);
  QSize opened;
  Show([&](QWidget& form) {
    opened = form.size();
    Release(form, {});
  });
  const int height = 12 * RowHeight() + 8;
  ASSERT_EQ(height, 164);
  ASSERT_GT(WidthOf("A rather wide caption"), 101);
  EXPECT_EQ(opened, QSize(101, height));  // where the width had come to
  const auto has = [&](QSize size) {
    return std::find(watch.Sizes.begin(), watch.Sizes.end(), size) != watch.Sizes.end();
  };
  EXPECT_TRUE(has({34, 34}));  // 510 twips
  EXPECT_TRUE(has({67, 67}));  // 1010
  EXPECT_TRUE(has({101, 101}));
}

TEST_F(MenuOpeningTest, AnOpeningMenuWithIconsAndPictureComesOutWider) {
  Menu.Properties().UseIcons = true;
  Menu.Properties().UseLeftImage = true;
  for (const bool animated : {false, true}) {
    Menu.Properties().OpenAnimated = animated;
    Menu.Properties().MenuAnimSpeed = 200;
    for (int i = 0; i < 30; ++i) {
      Add("Row");
    }
    int width = 0;
    Show([&](QWidget& form) {
      width = form.width();
      Release(form, {});
    });
    EXPECT_EQ(width, WidthOf("Row") + (animated ? 64 : 48));
  }
}

TEST_F(MenuOpeningTest, AStepAboveTheHeightLeavesTheMenuNarrow) {
  Menu.Properties().OpenAnimated = true;
  Menu.Properties().MenuAnimSpeed = 5000;
  Add("First");
  QSize size;
  Show([&](QWidget& form) {
    size = form.size();
    Release(form, {});
  });
  EXPECT_EQ(size, QSize(1, RowHeight() + 8));  // 10 twips wide
}

TEST_F(MenuOpeningTest, AnOpenedMenuHasItsStripAndPictureAtItsFinalHeight) {
  constexpr QRgb Strip = 0xFF00FF00;
  constexpr QRgb Red = 0xFFFF0000;
  Menu.Properties().OpenAnimated = true;
  Menu.Properties().MenuAnimSpeed = 100;
  Menu.Properties().Style = 2;
  Menu.Properties().UseLeftImage = true;
  Menu.Properties().LeftPicBackColor = 0x00FF00;
  QImage left(10, 10, QImage::Format_RGB32);
  left.fill(Red);
  for (int i = 0; i < 20; ++i) {
    Add("Row");
  }
  QImage shown;
  Show(
      [&](QWidget& form) {
        shown = PictureOf(form);
        Release(form, {});
      },
      {200, 150}, left);
  const int height = 20 * RowHeight() + 8;
  ASSERT_EQ(shown.height(), height);
  for (int y = 1; y < height - 1; ++y) {
    const bool isStrip = y >= 3 && y < height - 3;
    const bool isPicture = y >= height - 3 - 10 && y < height - 3;
    EXPECT_EQ(shown.pixel(17, y), isStrip ? Strip : Face) << y;
    EXPECT_EQ(shown.pixel(2, y), isPicture ? Red : isStrip ? Strip : Face) << y;
  }
}

TEST_F(MenuOpeningTest, AReleaseDuringTheOpeningEndsTheMenu) {
  Menu.Properties().OpenAnimated = true;
  Menu.Properties().MenuAnimSpeed = 15;
  ActsWhileOpening = true;
  for (int i = 0; i < 30; ++i) {
    Add("Row");
  }
  int height = 0;
  EXPECT_TRUE(Show([&](QWidget& form) {
    height = form.height();
    Release(form, {});
  }));
  EXPECT_LT(height, 30 * RowHeight());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MenuOpeningTest, WithoutAStepTheOpeningEndsAllTheSame) {
  Menu.Properties().OpenAnimated = true;
  Menu.Properties().MenuAnimSpeed = 0;
  Add("Row");
  EXPECT_TRUE(Show([&](QWidget& form) { Release(form, {}); }));
}

// Properties and items.

TEST_F(MenuOpeningTest, PropertiesHaveTheirDefaults) {
  const MenuProperties defaults = ReadMenuProperties({}, Owner.font());
  EXPECT_EQ(defaults.BackColor, 0x8000000FU);
  EXPECT_TRUE(defaults.Enabled);
  EXPECT_EQ(defaults.Font, Owner.font());
  EXPECT_EQ(defaults.ItemForeColor, 0x80000007U);
  EXPECT_EQ(defaults.ItemHotBackColor, 0x8000000DU);
  EXPECT_EQ(defaults.ItemHotForeColor, 0x8000000EU);
  EXPECT_EQ(defaults.LeftPicBackColor, 0x8000000FU);
  EXPECT_EQ(defaults.MenuAnimSpeed, 500);
  EXPECT_EQ(defaults.MouseOverSelectionType, 0);
  EXPECT_FALSE(defaults.OpenAnimated);
  EXPECT_EQ(defaults.Style, 0);
  EXPECT_FALSE(defaults.UseIcons);
  EXPECT_FALSE(defaults.UseLeftImage);
}

TEST_F(MenuOpeningTest, OnlyWhatDiffersFromTheDefaultsIsStored) {
  Menu.ReadProperties({});
  EXPECT_TRUE(Menu.WriteProperties().isEmpty());
  MenuProperties& properties = Menu.Properties();
  properties.BackColor = 1;
  properties.Enabled = false;
  properties.Font = Font;
  properties.ItemForeColor = 2;
  properties.ItemHotBackColor = 3;
  properties.ItemHotForeColor = 4;
  properties.LeftPicBackColor = 5;
  properties.MenuAnimSpeed = 6.5;
  properties.MouseOverSelectionType = 2;
  properties.OpenAnimated = true;
  properties.Style = 1;
  properties.UseIcons = true;
  properties.UseLeftImage = true;
  const QVariantMap stored = Menu.WriteProperties();
  EXPECT_EQ(stored.keys(), QStringList({"BackColor", "Enabled", "Font", "ItemForeColor",
                                        "ItemHotBackColor", "ItemHotForeColor", "LeftPicBackColor",
                                        "MenuAnimSpeed", "MouseOverSelectionType", "OpenAnimated",
                                        "Style", "UseIcons", "UseLeftImage"}));
  Menu.ReadProperties({});
  EXPECT_TRUE(Menu.WriteProperties().isEmpty());
  Menu.ReadProperties(stored);
  EXPECT_EQ(Menu.WriteProperties(), stored);
}

TEST_F(MenuOpeningTest, AnOpeningMenuMovesAwayFromTheScreensEdges) {
  Menu.Properties().OpenAnimated = true;
  Menu.Properties().MenuAnimSpeed = 60;
  ASSERT_EQ(RowHeight(), 13);
  for (int i = 0; i < 40; ++i) {
    Add("Row");
  }
  const QRect place = PlaceAt({1395, 1045});
  EXPECT_EQ(place.x() + place.width(), 1400);
  EXPECT_EQ(place.y(), 525);  // moved for 7870 twips, the last step before the 7920
}

}  // namespace
}  // namespace vorlane
