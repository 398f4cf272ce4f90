// What a set of a property does to the look: at rest it shows at once, under the pointer it leaves
// the button blank.
#include "gui/button_world.h"

namespace vorlane {
namespace {

struct Set {
  const char* Name;
  std::function<void(EasyButton&)> Do;
};

std::vector<Set> SetsThatClear() {
  return {{"Align", [](EasyButton& button) { button.SetAlign(3); }},
          {"BackColor", [](EasyButton& button) { button.SetBackColor(0xC0C0C0); }},
          {"Caption", [](EasyButton& button) { button.SetCaption(QStringLiteral("Y")); }},
          {"Enabled", [](EasyButton& button) { button.SetEnabled(true); }},
          {"Enabled", [](EasyButton& button) { button.setEnabled(false); }},
          {"Font", [](EasyButton& button) { button.SetFont(QFont(QStringLiteral("Serif"), 7)); }},
          {"Font", [](EasyButton& button) { button.SetFont(button.Font()); }},
          {"ForeColor", [](EasyButton& button) { button.SetForeColor(0xFF); }}};
}

TEST(EasyButtonSet, ASetUnderThePointerLeavesItBlankUntilThePointerLeaves) {
  for (const Set& set : SetsThatClear()) {
    ButtonWorld world;
    world.Button.SetPicture(FourStrips());
    world.Button.SetCaption(QStringLiteral("X"));
    world.PointAt(SolidPlace);
    ASSERT_TRUE(QTest::qWaitFor([&] { return world.ColourAt({1, 1}) == HoverColour; }));
    set.Do(world.Button);
    EXPECT_TRUE(IsAllOf(world.Look(), GroundColour)) << set.Name;
    world.PassTicks(3);
    EXPECT_TRUE(IsAllOf(world.Look(), GroundColour)) << set.Name;
    world.PointAt(OutsidePlace);
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return world.ColourAt({1, 1}) == NormalColour;
    })) << set.Name;
  }
}

TEST(EasyButtonSet, ASetWhileItIsHeldLeavesItBlankUntilTheRelease) {
  ButtonWorld world;
  world.PointAt(Middle);
  world.Press(Middle);
  ASSERT_TRUE(world.BecomesPlain(DarkShadow()));
  world.Button.SetCaption(QStringLiteral("X"));
  EXPECT_TRUE(IsAllOf(world.Look(), GroundColour));
  world.PassTicks(3);
  EXPECT_TRUE(IsAllOf(world.Look(), GroundColour));
  world.Release(Middle);
  EXPECT_EQ(world.ColourAt({0, 0}), Light());
  EXPECT_FALSE(InkOf(world.Look(), GroundColour).isEmpty());
}

TEST(EasyButtonSet, ABlankButtonThatIsPressedShowsAgain) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.Button.SetCaption(QStringLiteral(" "));
  EXPECT_TRUE(IsAllOf(world.Look(), GroundColour));
  world.Press(SolidPlace);
  EXPECT_TRUE(world.Becomes(PressedColour));
  world.Release(SolidPlace);
}

TEST(EasyButtonSet, AtRestASetShowsAtOnceAndIsTold) {
  for (const Set& set : SetsThatClear()) {
    ButtonWorld world;
    world.Button.SetCaption(QStringLiteral("X"));
    QStringList told;
    world.Button.OnPropertyChanged = [&told](const QString& name) { told << name; };
    set.Do(world.Button);
    EXPECT_EQ(told, QStringList(QLatin1String(set.Name)));
    EXPECT_EQ(world.ColourAt({0, 0}), NormalFrame) << set.Name;
    EXPECT_FALSE(InkOf(world.Look(), GroundColour).isEmpty()) << set.Name;
  }
}

struct StoredSet {
  const char* Name;
  std::function<void(EasyButton&)> Do;
  std::function<bool(const EasyButton&)> IsStored;
};

std::vector<StoredSet> SetsOfTheLook() {
  return {{"Align", [](EasyButton& button) { button.SetAlign(3); },
           [](const EasyButton& button) { return button.Align() == 3; }},
          {"BackColor", [](EasyButton& button) { button.SetBackColor(0xFF00); },
           [](const EasyButton& button) { return button.BackColor() == 0xFF00; }},
          {"Caption", [](EasyButton& button) { button.SetCaption(QStringLiteral("Y")); },
           [](const EasyButton& button) { return button.Caption() == QStringLiteral("Y"); }},
          {"Enabled", [](EasyButton& button) { button.SetEnabled(false); },
           [](const EasyButton& button) { return !button.Enabled(); }},
          {"Font", [](EasyButton& button) { button.SetFont(QFont(QStringLiteral("Serif"), 19)); },
           [](const EasyButton& button) { return button.Font().pointSize() == 19; }},
          {"ForeColor", [](EasyButton& button) { button.SetForeColor(0xFF); },
           [](const EasyButton& button) { return button.ForeColor() == 0xFF; }},
          {"Picture", [](EasyButton& button) { button.SetPicture(FourStrips()); },
           [](const EasyButton& button) { return button.Picture() == FourStrips(); }}};
}

TEST(EasyButtonSet, AValueIsThereWhenItIsToldAndShowsAfterwards) {
  for (const StoredSet& set : SetsOfTheLook()) {
    ButtonWorld world;
    world.Button.SetCaption(QStringLiteral("X"));
    const QImage before = world.Look();
    bool wasStored = false;
    QImage then;
    world.Button.OnPropertyChanged = [&](const QString&) {
      wasStored = set.IsStored(world.Button);
      then = world.Look();
    };
    set.Do(world.Button);
    EXPECT_TRUE(wasStored) << set.Name;
    EXPECT_EQ(then, before) << set.Name;
    EXPECT_NE(world.Look(), before) << set.Name;
  }
}

// A release doesn't paint what is shown already: what a set has cleared stays clear.
TEST(EasyButtonSet, AReleaseBeforeTheNextTickPaintsNothing) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.Timer().setInterval(100'000);
  world.Button.SetCaption(QStringLiteral(" "));
  world.Press(SolidPlace);
  world.Release(SolidPlace);
  EXPECT_TRUE(IsAllOf(world.Look(), GroundColour));
}

TEST(EasyButtonSet, ItsFirstSizeIsTheDesigns) {
  ButtonWorld world;
  const EasyButton button({world.Disk, world.Prompts, world.Sounds}, nullptr);
  EXPECT_EQ(button.size(), QSize(156, 47));
}

}  // namespace
}  // namespace vorlane
