#include "form/form.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

TEST(Form, SetStatusShowsAtOnceAndYieldsOnce) {
  MemoryWorld on;
  on.World.State.SetStatus(u"Working", 42);
  EXPECT_EQ(on.World.View.Statuses, (std::vector<Text>{u"Working"}));
  EXPECT_EQ(on.World.View.Percents, (std::vector<std::int32_t>{42}));
  EXPECT_EQ(on.World.Loop.Yields, 1U);
}

TEST(Form, HeldTextsWaitForTheirTimers) {
  MemoryWorld on;
  Form& form = on.World.State;
  form.HoldStatus(u"soon");
  EXPECT_EQ(form.Status, u"");
  EXPECT_EQ(form.HeldStatus, u"soon");
  form.SetListCounter(3);
  EXPECT_EQ(form.HeldFileStatus, u"3 File(s)");
  form.ListFolders = true;
  form.SetListCounter(0);
  EXPECT_EQ(form.HeldFileStatus, u"0 Folder(s)");
  EXPECT_TRUE(on.World.View.Has(u"timer 0 started"));
  EXPECT_TRUE(on.World.View.Has(u"timer 1 started"));
}

TEST(Form, LockAndUnlockAreNotSymmetric) {
  MemoryWorld on;
  Form& form = on.World.State;
  form.UndoEnabled = true;
  form.LockControls();
  EXPECT_TRUE(form.StopVisible);
  EXPECT_FALSE(form.UndoEnabled);
  EXPECT_EQ(on.World.View.Notes, (std::vector<Text>{u"control 1 disabled", u"control 2 disabled",
                                                    u"run buttons", u"control 4 disabled"}));
  on.World.View.Notes.clear();
  form.UnlockControls();
  EXPECT_FALSE(form.StopVisible);
  EXPECT_FALSE(form.UndoEnabled);  // only the end of a completed run turns it on again
  EXPECT_EQ(on.World.View.Notes, (std::vector<Text>{u"control 1 enabled", u"control 2 enabled",
                                                    u"control 3 enabled", u"run buttons"}));
}

TEST(Form, BoxValuesAreReadFromAndShownInAllSixBoxes) {
  MemoryWorld on;
  Form& form = on.World.State;
  for (std::size_t i = 0; i < form.Boxes.size(); ++i) {
    form.Boxes[i].Content = Text(1, static_cast<char16_t>(u'a' + i));
  }
  form.ReadBoxValues();
  EXPECT_EQ(form.BoxValues.Values[0], u"a");
  EXPECT_EQ(form.BoxValues.Values[5], u"f");
  form.BoxValues.Values[5] = u"new";
  form.ShowBoxValues();
  EXPECT_EQ(form.Boxes[5].Content, u"new");
  EXPECT_TRUE(on.World.View.Has(u"box 5"));
}

TEST(Form, AMarkerDoesNotReachTheProposedNames) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.State.SetProposedName(1, u"b");
  on.World.State.SetProposedCell(1, u"<Read Only>");
  EXPECT_EQ(on.World.State.Rows.At(1).Proposed, u"<Read Only>");
  EXPECT_EQ(on.World.State.ProposedNames[0], u"b");
}

TEST(Form, ANodeWithoutCodeIsAFailure) {
  MemoryWorld on;
  on.World.State.SelectedOperation = 7;
  EXPECT_THROW(on.World.State.SelectedCode(), RunError);
}

}  // namespace
}  // namespace vorlane
