// The states of a button as the pointer comes, presses and goes, and what counts as a click.
#include "gui/button_world.h"

namespace vorlane {
namespace {

struct PicturedButton : ButtonWorld {
  PicturedButton() { Button.SetPicture(FourStrips()); }
};

TEST(EasyButtonPointer, RestsWithoutATimer) {
  PicturedButton world;
  EXPECT_FALSE(world.IsTicking());
  EXPECT_EQ(world.Timer().interval(), 10);
  EXPECT_TRUE(world.Becomes(NormalColour));
}

TEST(EasyButtonPointer, NormalToHoverWhenThePointerComes) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  EXPECT_TRUE(world.IsTicking());
  EXPECT_EQ(world.ColourAt(SolidPlace), NormalColour);  // until the first tick
  EXPECT_TRUE(world.Becomes(HoverColour));
  EXPECT_TRUE(world.IsTicking());
}

TEST(EasyButtonPointer, NormalToDownWhenItIsPressedBeforeTheFirstTick) {
  PicturedButton world;
  world.Timer().setInterval(100'000);
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  EXPECT_EQ(world.ColourAt(SolidPlace), NormalColour);
  world.Timer().setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return world.ColourAt(SolidPlace) != NormalColour; }, 5000));
  EXPECT_EQ(world.ColourAt(SolidPlace), PressedColour);
  world.Release(SolidPlace);
}

TEST(EasyButtonPointer, HoverToDownAndBackByTheRelease) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.Press(SolidPlace);
  EXPECT_EQ(world.ColourAt(SolidPlace), HoverColour);  // until the next tick
  EXPECT_TRUE(world.Becomes(PressedColour));
  world.Release(SolidPlace);
  EXPECT_EQ(world.ColourAt(SolidPlace), HoverColour);  // at once
}

TEST(EasyButtonPointer, HoverToNormalWhenThePointerGoesAndTheTimerStops) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.PointAt(OutsidePlace);
  EXPECT_TRUE(world.Becomes(NormalColour));
  EXPECT_FALSE(world.IsTicking());
}

TEST(EasyButtonPointer, HeldAndMovedOffShowsHoverAndTheTimerGoesOn) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  world.PointAt(OutsidePlace);
  EXPECT_TRUE(world.Becomes(HoverColour));
  world.PassTicks(5);
  EXPECT_TRUE(world.IsTicking());
  EXPECT_EQ(world.ColourAt(SolidPlace), HoverColour);
  world.PointAt(SolidPlace);
  EXPECT_TRUE(world.Becomes(PressedColour));
  world.Release(SolidPlace);
}

TEST(EasyButtonPointer, ReleasedOutsidePaintsNothingUntilTheNextTick) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  world.Timer().setInterval(100'000);
  world.PointAt(OutsidePlace);
  world.Release(OutsidePlace);
  EXPECT_EQ(world.ColourAt(SolidPlace), PressedColour);
  world.Timer().setInterval(1);
  EXPECT_TRUE(world.Becomes(NormalColour));
  EXPECT_FALSE(world.IsTicking());
  EXPECT_EQ(world.Clicks, 0);
}

TEST(EasyButtonPointer, WithoutAPictureAReleaseOutsideShowsTheRaisedFrameAtOnce) {
  ButtonWorld world;
  world.PointAt(Middle);
  world.Press(Middle);
  ASSERT_TRUE(world.BecomesPlain(DarkShadow()));
  world.Timer().setInterval(100'000);
  world.PointAt(OutsidePlace);
  world.Release(OutsidePlace);
  EXPECT_EQ(world.ColourAt({0, 0}), Light());
  world.Timer().setInterval(1);
  EXPECT_TRUE(world.BecomesPlain(NormalFrame));
  EXPECT_FALSE(world.IsTicking());
  EXPECT_EQ(world.Clicks, 0);
}

TEST(EasyButtonPointer, HeldOverAPlaceThatIsntSolidItShowsHoverAndTheReleaseIsNoClick) {
  PicturedButton world;
  world.Button.SetUseSound(UsedSound::BuiltInClick);
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  world.PointAt(GreyPlace);
  EXPECT_TRUE(world.Becomes(HoverColour));
  world.Timer().setInterval(100'000);
  world.Release(GreyPlace);
  EXPECT_EQ(world.ColourAt(SolidPlace), HoverColour);
  world.Timer().setInterval(1);
  EXPECT_TRUE(world.Becomes(NormalColour));
  EXPECT_FALSE(world.IsTicking());
  EXPECT_EQ(world.Clicks, 0);
  EXPECT_TRUE(world.Sounds.Played.empty());
}

TEST(EasyButtonPointer, AReleaseOverAPlaceThatIsntSolidPaintsNothing) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  world.Timer().setInterval(100'000);
  world.PointAt(GreyPlace);
  world.Release(GreyPlace);
  EXPECT_EQ(world.ColourAt(SolidPlace), PressedColour);
  EXPECT_EQ(world.Clicks, 0);
}

// A move starts the timer only if that stands still.
TEST(EasyButtonPointer, AMouseThatNeverRestsHoldsUpNoTick) {
  PicturedButton world;
  world.Timer().setInterval(60);
  QTimer moving;
  bool isLeft = false;
  QObject::connect(&moving, &QTimer::timeout, &moving, [&] {
    isLeft = !isLeft;
    world.PointAt(SolidPlace - QPoint(isLeft ? 1 : 0, 0));
  });
  moving.start(5);
  EXPECT_TRUE(world.Becomes(HoverColour));
}

TEST(EasyButtonPointer, DownToHoverByATickAfterAnotherButtonsRelease) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  world.Press(SolidPlace, Qt::RightButton);  // takes the place of the left one
  EXPECT_TRUE(world.Becomes(HoverColour));
  world.Release(SolidPlace, Qt::RightButton);
  world.Release(SolidPlace);
}

TEST(EasyButtonPointer, TheRectanglesFarEdgesCountAsIn) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  const auto stays = [&world](QPoint place) {
    QCursor::setPos(world.Button.mapToGlobal(place));  // nobody tells the button of a move
    world.PassTicks(3);
    return world.ColourAt(SolidPlace) == HoverColour && world.IsTicking();
  };
  EXPECT_TRUE(stays({StripSize.width(), StripSize.height()}));
  EXPECT_TRUE(stays({0, 0}));
  EXPECT_FALSE(stays({StripSize.width() + 1, 5}));
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  EXPECT_FALSE(stays({5, StripSize.height() + 1}));
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  EXPECT_FALSE(stays({-1, 5}));
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  EXPECT_FALSE(stays({5, -1}));
}

TEST(EasyButtonPointer, APlaceThatIsntSolidLeavesTheButtonAlone) {
  PicturedButton world;
  int moves = 0;
  world.Button.OnMouseMove = [&moves] { ++moves; };
  world.PointAt(GreyPlace);
  EXPECT_GE(moves, 1);
  EXPECT_FALSE(world.IsTicking());
  world.Click(GreyPlace);
  EXPECT_EQ(world.Clicks, 0);
  EXPECT_TRUE(world.Sounds.Played.empty());
  EXPECT_EQ(world.ColourAt(SolidPlace), NormalColour);
}

TEST(EasyButtonPointer, FromSolidToGreyEndsTheHover) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.PointAt(GreyPlace);
  EXPECT_TRUE(world.Becomes(NormalColour));
  EXPECT_FALSE(world.IsTicking());
}

TEST(EasyButtonPointer, ASeeThroughPlaceBelongsToTheForm) {
  PicturedButton world;
  int moves = 0;
  world.Button.OnMouseMove = [&moves] { ++moves; };
  EXPECT_EQ(world.Form.childAt(world.Button.mapTo(&world.Form, SeeThroughPlace)), nullptr);
  EXPECT_EQ(world.Form.childAt(world.Button.mapTo(&world.Form, GreyPlace)), &world.Button);
  world.PointAt(SeeThroughPlace);
  world.Click(SeeThroughPlace);
  EXPECT_EQ(moves, 0);
  EXPECT_EQ(world.Clicks, 0);
}

TEST(EasyButtonPointer, TheHoverLastsOverSeeThroughPlacesSinceNoMoveIsTold) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.PointAt(SeeThroughPlace);
  world.PassTicks(3);
  EXPECT_EQ(world.ColourAt(SolidPlace), HoverColour);
}

TEST(EasyButtonPointer, AClickIsAPressAndAReleaseOnTheButton) {
  PicturedButton world;
  QStringList events;
  const auto note = [&events](const char* name) {
    return [&events, name](const MouseArguments& mouse) {
      events << QStringLiteral("%1 %2 %3,%4").arg(name).arg(mouse.Button).arg(mouse.X).arg(mouse.Y);
    };
  };
  world.Button.OnMouseDown = note("down");
  world.Button.OnMouseUp = note("up");
  world.Button.OnClick = [&events] { events << QStringLiteral("click"); };
  world.PointAt(SolidPlace);
  world.Click(SolidPlace);
  EXPECT_EQ(events, QStringList({"down 1 30,10", "up 1 30,10", "click"}));
}

TEST(EasyButtonPointer, OnlyTheLeftButtonClicks) {
  PicturedButton world;
  world.Button.SetUseSound(UsedSound::BuiltInClick);
  world.PointAt(SolidPlace);
  for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
    world.Click(SolidPlace, button);
  }
  EXPECT_EQ(world.Clicks, 0);
  EXPECT_TRUE(world.Sounds.Played.empty());
  world.Click(SolidPlace);
  EXPECT_EQ(world.Clicks, 1);
}

TEST(EasyButtonPointer, ARightPressShowsNoPressedState) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace, Qt::RightButton);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.PassTicks(3);
  EXPECT_EQ(world.ColourAt(SolidPlace), HoverColour);
  world.Release(SolidPlace, Qt::RightButton);
}

TEST(EasyButtonPointer, ReleasedOutsideIsNoClick) {
  ButtonWorld world;  // without a picture, so that no mask decides
  world.PointAt({20, 10});
  world.Press({20, 10});
  world.PointAt({70, 10});
  world.Release({70, 10});
  EXPECT_EQ(world.Clicks, 0);
  world.PointAt({70, 10});
  world.Press({70, 10});
  world.PointAt({20, 10});
  world.Release({20, 10});
  EXPECT_EQ(world.Clicks, 0);
}

TEST(EasyButtonPointer, ThePointersArgumentsHaveButtonsShiftAndPlace) {
  PicturedButton world;
  std::vector<MouseArguments> moves;
  world.Button.OnMouseMoveAt = [&moves](const MouseArguments& move) { moves.push_back(move); };
  QTest::mousePress(world.Form.windowHandle(), Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier,
                    world.Button.mapTo(&world.Form, SolidPlace));
  ASSERT_FALSE(moves.empty());  // a press at a new place has moved there first
  EXPECT_EQ(moves.back().Button, 0);
  EXPECT_EQ(moves.back().Shift, 5);
  EXPECT_EQ(QPoint(moves.back().X, moves.back().Y), SolidPlace);
  world.PointAt(SolidPlace + QPoint(1, 0));
  EXPECT_EQ(moves.back().Button, 2);
  world.Release(SolidPlace, Qt::RightButton);
}

TEST(EasyButtonPointer, ASecondFastClickIsADoubleClick) {
  PicturedButton world;
  QStringList events;
  const auto note = [&events](const char* name) {
    return [&events, name](auto&&...) { events << QLatin1String(name); };
  };
  world.Button.OnMouseDown = note("down");
  world.Button.OnMouseUp = note("up");
  world.Button.OnClick = note("click");
  world.Button.OnDblClick = note("dblclick");
  world.PointAt(SolidPlace);
  world.DoubleClick(SolidPlace);
  EXPECT_EQ(events, QStringList({"down", "up", "click", "dblclick", "up"}));
}

TEST(EasyButtonPointer, FastClicksOnTwoPartnersAtOnePlaceCountAsOneEach) {
  PicturedButton world;
  EasyButton partner({world.Disk, world.Prompts, world.Sounds}, &world.Form);
  partner.SetPicture(FourStrips());
  partner.move(world.Button.pos());
  partner.hide();
  int partnersClicks = 0;
  partner.OnClick = [&] {
    ++partnersClicks;
    partner.hide();
    world.Button.show();
  };
  world.Button.OnClick = [&] {
    ++world.Clicks;
    world.Button.hide();
    partner.show();
  };
  world.PointAt(SolidPlace);
  world.DoubleClick(SolidPlace);
  EXPECT_EQ(world.Clicks, 1);
  EXPECT_EQ(partnersClicks, 1);
}

TEST(EasyButtonPointer, AButtonHiddenWhileItIsHeldRests) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  world.Button.hide();
  EXPECT_FALSE(world.IsTicking());
  world.Release(SolidPlace);
  world.PointAt({-40, -40});
  world.Button.show();
  EXPECT_EQ(world.ColourAt(SolidPlace), NormalColour);
  EXPECT_FALSE(world.IsTicking());
  EXPECT_EQ(world.Clicks, 0);
}

// The form, whose right press opens a menu and whose moves reset the hover of other controls.
class HeedfulForm final : public QObject {
 public:
  explicit HeedfulForm(QWidget& form) { form.installEventFilter(this); }
  int Events = 0;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    const auto type = event->type();
    Events += type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
                      type == QEvent::MouseMove || type == QEvent::MouseButtonDblClick ||
                      type == QEvent::ContextMenu
                  ? 1
                  : 0;
    return false;
  }
};

TEST(EasyButtonPointer, NoMouseEventGoesThroughItToTheForm) {
  for (const bool enabled : {true, false}) {
    PicturedButton world;
    world.Form.setMouseTracking(true);
    world.Button.SetEnabled(enabled);
    const HeedfulForm form(world.Form);
    for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
      world.PointAt(SolidPlace);
      world.Press(SolidPlace, button);
      QContextMenuEvent menu(QContextMenuEvent::Mouse, SolidPlace,
                             world.Button.mapToGlobal(SolidPlace));
      QApplication::sendEvent(&world.Button, &menu);
      world.Release(SolidPlace, button);
      world.DoubleClick(SolidPlace, button);
    }
    EXPECT_EQ(form.Events, 0) << "enabled: " << enabled;
  }
}

TEST(EasyButtonPointer, ADisabledButtonRaisesNothing) {
  PicturedButton world;
  int events = 0;
  world.Button.OnMouseMove = [&events] { ++events; };
  world.Button.OnMouseDown = [&events](const MouseArguments&) { ++events; };
  world.Button.OnMouseUp = [&events](const MouseArguments&) { ++events; };
  world.Button.SetEnabled(false);
  world.PointAt(SolidPlace);
  world.Click(SolidPlace);
  EXPECT_EQ(events, 0);
  EXPECT_EQ(world.Clicks, 0);
  EXPECT_FALSE(world.IsTicking());
}

TEST(EasyButtonPointer, DisabledWhileItIsHeldItComesToRest) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  world.Button.SetEnabled(false);
  world.Release(SolidPlace);
  world.PointAt(OutsidePlace);
  EXPECT_TRUE(world.Becomes(NormalColour));
  EXPECT_FALSE(world.IsTicking());
  EXPECT_EQ(world.Clicks, 0);
}

TEST(EasyButtonPointer, AReleaseThatAMenuTookLeavesNothingLit) {
  PicturedButton world;
  world.PointAt(SolidPlace);
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  QMenu menu(&world.Form);
  menu.addAction(QStringLiteral("x"));
  menu.popup({900, 700});
  QTest::mouseRelease(menu.windowHandle(), Qt::LeftButton, {}, {500, 200});
  menu.close();
  world.PointAt(OutsidePlace);
  EXPECT_TRUE(world.Becomes(NormalColour));
  EXPECT_FALSE(world.IsTicking());
}

}  // namespace
}  // namespace vorlane
