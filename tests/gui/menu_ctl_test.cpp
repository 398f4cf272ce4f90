// The pop-up menu: how it opens, follows the mouse and the keys, and ends.
#include "gui/menu_world.h"

namespace vorlane {
namespace {

using MenuCtlTest = MenuWorld;
using ClickList = std::vector<MenuWorld::Click>;

TEST_F(MenuCtlTest, AReleaseOnARowChoosesIt) {
  Add("First", "a");
  Add("Second", "b");
  EXPECT_TRUE(Show([&](QWidget& form) { Choose(form, 2); }));
  EXPECT_EQ(Clicks, (ClickList{{2, "Second", "b"}}));
}

TEST_F(MenuCtlTest, AnyButtonChooses) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    Add("First", "a");
    Show([&](QWidget& form) {
      Point(form, 1);
      Release(form, {5, 8}, button);
    });
  }
  EXPECT_EQ(Clicks.size(), 3U);
}

TEST_F(MenuCtlTest, APressDoesNothing) {
  Add("First", "a");
  bool stays = false;
  Show([&](QWidget& form) {
    Point(form, 1);
    Press(form, {5, 8});
    Press(form, {-50, -50});
    stays = form.isVisible();
    Release(form, {5, 8});
  });
  EXPECT_TRUE(stays);
  EXPECT_EQ(Clicks.size(), 1U);
}

TEST_F(MenuCtlTest, AReleaseOutsideChoosesNothingAndUsesTheListUp) {
  Add("First", "a");
  EXPECT_TRUE(Show([&](QWidget& form) {
    Point(form, 1);
    Move(form, {-1, 8});
    Release(form, {-1, 8});
  }));
  EXPECT_TRUE(Clicks.empty());
  int height = 0;
  Add("Only one", "b");
  Show([&](QWidget& form) {
    height = form.height();
    Choose(form, 1);
  });
  EXPECT_EQ(height, RowHeight() + 8);
  EXPECT_EQ(Clicks, (ClickList{{1, "Only one", "b"}}));
}

TEST_F(MenuCtlTest, AReleaseWithoutAMoveChoosesNothing) {
  Add("First", "a");
  EXPECT_TRUE(Show([&](QWidget& form) { Release(form, {10, 8}); }));
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, ADisabledRowChoosesNothing) {
  Add("First", "a", false);
  Show([&](QWidget& form) { Choose(form, 1); });
  Add("", "seperator");
  Show([&](QWidget& form) { Choose(form, 1); });
  Add("", "SEPERATOR");
  Show([&](QWidget& form) { Choose(form, 1); });
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, TheOtherSpellingOfALineIsAnItem) {
  Add("", "Separator");
  Add("Some words", "a");
  Show([&](QWidget& form) { Choose(form, 1); });
  EXPECT_EQ(Clicks, (ClickList{{1, "", "Separator"}}));
}

TEST_F(MenuCtlTest, BelowTheLastRowNothingIsChosen) {
  Add("First", "a");
  Show([&](QWidget& form) {
    Move(form, {10, form.height() - 1});
    Release(form, {10, form.height() - 1});
  });
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, ARowIsHotFromALittleAboveItsPlace) {
  Add("First", "a");
  Add("Second", "b");
  // Twips count in full: (15 y + 60) / 195, to the nearest row.
  ASSERT_EQ(RowHeight(), 13);
  for (const auto& [y, row] : {std::pair{2, 0}, {3, 1}, {15, 1}, {16, 2}, {28, 2}, {29, 3}}) {
    Clicks.clear();
    Add("First", "a");
    Add("Second", "b");
    Show([&, at = QPoint(10, y)](QWidget& form) {
      Move(form, at);
      Release(form, at);
    });
    const bool isRow = row == 1 || row == 2;
    ASSERT_EQ(Clicks.size(), isRow ? 1U : 0U) << y;
    if (isRow) {
      EXPECT_EQ(Clicks[0].Index, row) << y;
    }
  }
}

// The first pixel to the left and the one behind the right edge belong to the menu, but make no row
// hot.
TEST_F(MenuCtlTest, TheEdgesMakeNoRowHot) {
  Add("First", "a");
  Show([&](QWidget& form) {
    Move(form, {0, 8});
    Move(form, {form.width(), 8});
    Release(form, {0, 8});
  });
  EXPECT_TRUE(Clicks.empty());
  Add("First", "a");
  Show([&](QWidget& form) {
    Point(form, 1);
    Move(form, {0, 8});  // and leave the hot one as it is
    Release(form, {0, 8});
  });
  EXPECT_EQ(Clicks.size(), 1U);
}

TEST_F(MenuCtlTest, OutsideBeginsBehindTheEdges) {
  for (const bool below : {false, true}) {
    for (const int beyond : {0, 1}) {
      Clicks.clear();
      Add("First", "a");
      Show([&](QWidget& form) {
        Point(form, 1);
        Move(form, below ? QPoint(5, form.height() + beyond) : QPoint(form.width() + beyond, 8));
        if (below && beyond == 0) {
          Point(form, 1);  // there it is a row that the menu doesn't have
        }
        Release(form, {5, 8});
      });
      EXPECT_EQ(Clicks.size(), beyond == 0 ? 1U : 0U) << below << beyond;
    }
  }
}

TEST_F(MenuCtlTest, WithoutItemsItIsOnePixelThatTakesTheNextRelease) {
  QSize size;
  EXPECT_TRUE(Show(
      [&](QWidget& form) {
        size = form.size();
        Move(form, {0, 0});
        Move(form, {40, 40});
        Release(form, {40, 40}, Qt::RightButton);
      },
      {200, 150}));
  EXPECT_EQ(size, QSize(1, 1));
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, ItOpensAtThePlaceThatIsGivenOrAtThePointer) {
  Add("First");
  QPoint place;
  Show([&](QWidget& form) {
    place = form.pos();
    Release(form, {});
  });
  EXPECT_EQ(place, QPoint(200, 150));
  QCursor::setPos(333, 222);
  Add("First");
  Show(
      [&](QWidget& form) {
        place = form.pos();
        Release(form, {});
      },
      {-1, -1});
  EXPECT_EQ(place, QPoint(333, 222));
  Add("First");
  Show(
      [&](QWidget& form) {
        place = form.pos();
        Release(form, {});
      },
      {-1, 7});
  EXPECT_EQ(place, QPoint(-1, 7));
}

TEST_F(MenuCtlTest, AtTheScreensEdgesItMovesSoAsToEndThere) {
  Add("First");
  const QRect place = PlaceAt({1395, 1045});
  EXPECT_EQ(place.x() + place.width(), 1400);
  EXPECT_EQ(place.y() + place.height(), 1050);
  EXPECT_EQ(place.size(), QSize(WidthOf("First") + 8, RowHeight() + 8));
}

TEST_F(MenuCtlTest, AMenuTallerThanTheScreenBeginsAboveIt) {
  for (int i = 0; i < 100; ++i) {
    Add("Row");
  }
  QRect place;
  Show([&](QWidget& form) {
    place = form.geometry();
    Choose(form, 100);
  });
  EXPECT_EQ(place.height(), 100 * RowHeight() + 8);
  EXPECT_EQ(place.y(), 1050 - place.height());
  EXPECT_EQ(Clicks, (ClickList{{100, "Row", "item"}}));
}

TEST_F(MenuCtlTest, TheRestOfTheProgramGoesOn) {
  Add("First");
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (++ticks == 3) {
      Release(*QApplication::activePopupWidget(), {});
    }
  });
  timer.start(1);
  Menu.ShowMenu(10, 10);
  EXPECT_EQ(ticks, 3);
}

TEST_F(MenuCtlTest, AMenuOpensFromWithinAClick) {
  Menu.ItemClicked = [&](int index, const QString& caption, const QString& name) {
    Clicks.push_back({index, caption, name});
    if (Clicks.size() == 1) {
      Add("Inner first", "c");
      Add("Inner second", "d");
      EXPECT_TRUE(Show([&](QWidget& form) { Choose(form, 2); }));
    }
  };
  Add("Outer", "a");
  EXPECT_TRUE(Show([&](QWidget& form) { Choose(form, 1); }));
  EXPECT_EQ(Clicks, (ClickList{{1, "Outer", "a"}, {2, "Inner second", "d"}}));
  EXPECT_FALSE(Menu.IsOpen());
}

TEST_F(MenuCtlTest, WhileItIsOpenNoSecondOneOpens) {
  Add("First", "a");
  Show([&](QWidget& form) {
    EXPECT_TRUE(Menu.IsOpen());
    EXPECT_FALSE(Menu.ShowMenu(5, 5));
    Choose(form, 1);
  });
  EXPECT_EQ(Clicks.size(), 1U);
}

TEST_F(MenuCtlTest, PropertiesSurviveAndItemsDont) {
  Menu.Properties().UseIcons = true;
  for (int i = 0; i < 2; ++i) {
    Add("First");
    int width = 0;
    Show([&](QWidget& form) {
      width = form.width();
      Release(form, {});
    });
    EXPECT_EQ(width, WidthOf("First") + 28);
  }
}

// Keys.

TEST_F(MenuCtlTest, EscapeChoosesNothing) {
  Add("First", "a");
  EXPECT_FALSE(Show([&](QWidget& form) {
    Point(form, 1);
    QTest::keyClick(&form, Qt::Key_Escape);
  }));
  EXPECT_TRUE(Clicks.empty());
  // What was offered in vain isn't offered again.
  int height = 0;
  Add("Only one", "b");
  Show([&](QWidget& form) {
    height = form.height();
    Release(form, {});
  });
  EXPECT_EQ(height, RowHeight() + 8);
}

TEST_F(MenuCtlTest, KeysPassOverRowsThatCantBeChosen) {
  struct Way {
    std::vector<Qt::Key> Keys;
    int Row;
  };
  const Way ways[] = {{{Qt::Key_Down}, 2},
                      {{Qt::Key_Down, Qt::Key_Down}, 4},
                      {{Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}, 2},
                      {{Qt::Key_Up}, 4},
                      {{Qt::Key_Up, Qt::Key_Up}, 2},
                      {{Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}, 4},
                      {{Qt::Key_End}, 4},
                      {{Qt::Key_End, Qt::Key_Home}, 2}};
  for (const Way& way : ways) {
    Clicks.clear();
    Add("Head", "h", false);
    Add("One", "a");
    Add("", "seperator");
    Add("Two", "b");
    Add("Foot", "f", false);
    EXPECT_TRUE(Show([&](QWidget& form) {
      for (const Qt::Key key : way.Keys) {
        QTest::keyClick(&form, key);
      }
      QTest::keyClick(&form, Qt::Key_Return);
    }));
    ASSERT_EQ(Clicks.size(), 1U);
    EXPECT_EQ(Clicks[0].Index, way.Row);
  }
}

TEST_F(MenuCtlTest, EnterWithoutARowStays) {
  Add("Head", "h", false);
  bool stays = false;
  Show([&](QWidget& form) {
    QTest::keyClick(&form, Qt::Key_Return);
    QTest::keyClick(&form, Qt::Key_Down);  // there is none that could be chosen
    QTest::keyClick(&form, Qt::Key_Enter);
    Point(form, 1);
    QTest::keyClick(&form, Qt::Key_Enter);
    stays = form.isVisible();
    Release(form, {});
  });
  EXPECT_TRUE(stays);
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, KeysAndMouseMoveTheSameRow) {
  Add("One", "a");
  Add("Two", "b");
  Add("Three", "c");
  Show([&](QWidget& form) {
    Point(form, 2);
    QTest::keyClick(&form, Qt::Key_Down);
    QTest::keyClick(&form, Qt::Key_Return);
  });
  EXPECT_EQ(Clicks, (ClickList{{3, "Three", "c"}}));
}

TEST_F(MenuCtlTest, KeysInAnEmptyMenuDoNothingButEscape) {
  EXPECT_FALSE(Show([&](QWidget& form) {
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_Return}) {
      QTest::keyClick(&form, key);
    }
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(&form, Qt::Key_Escape);
  }));
}

TEST_F(MenuCtlTest, AssistiveProgramsSeeTheHotRow) {
  Add("Head", "h", false);
  Add("One", "a");
  Add("Two", "b");
  QStringList seen;
  Show([&](QWidget& form) {
    QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(&form);
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->role(), QAccessible::MenuItem);
    EXPECT_TRUE(shown->state().focused);
    seen << shown->text(QAccessible::Name);
    QTest::keyClick(&form, Qt::Key_Down);
    seen << shown->text(QAccessible::Name);
    Point(form, 3);
    seen << shown->text(QAccessible::Name);
    Point(form, 1);
    seen << shown->text(QAccessible::Name);
    Release(form, {});
  });
  EXPECT_EQ(seen, QStringList({"Head", "One", "Two", "Head"}));
}

TEST_F(MenuCtlTest, WithoutAHeadingAMenuHasNoNameBeforeARowIsHot) {
  Add("One", "a");
  Show([&](QWidget& form) {
    EXPECT_EQ(form.accessibleName(), "");
    Point(form, 1);
    EXPECT_EQ(form.accessibleName(), "One");
    Release(form, {});
  });
}

// Ends that nobody chose.

TEST_F(MenuCtlTest, AWindowInFrontEndsIt) {
  Owner.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Owner));
  QWidget other;
  Add("First", "a");
  EXPECT_FALSE(Show([&](QWidget& form) {
    Point(form, 1);
    other.show();
    other.activateWindow();
  }));
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, ItGoesWithItsWindow) {
  Add("First", "a");
  EXPECT_FALSE(Show([&](QWidget& form) {
    Point(form, 1);
    Owner.hide();
  }));
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, AMessageBoxEndsIt) {
  Owner.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Owner));
  QDialog box(&Owner);
  box.setModal(true);
  Add("First", "a");
  EXPECT_FALSE(Show([&](QWidget& form) {
    Point(form, 1);
    box.show();
  }));
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, ClosedFromOutsideItChoosesNothing) {
  Add("First", "a");
  EXPECT_FALSE(Show([&](QWidget& form) {
    Point(form, 1);
    form.close();
  }));
  EXPECT_TRUE(Clicks.empty());
}

TEST_F(MenuCtlTest, TheEndOfTheProgramEndsIt) {
  Add("First", "a");
  bool ended = false;
  QTimer::singleShot(0, [&] {
    EXPECT_FALSE(Show([&](QWidget& form) {
      Point(form, 1);
      QCoreApplication::exit();
    }));
    ended = true;
  });
  QApplication::exec();
  EXPECT_TRUE(ended);
  EXPECT_TRUE(Clicks.empty());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

}  // namespace
}  // namespace vorlane
