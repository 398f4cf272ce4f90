// The option boxes under the user's hands: typing, leaving, ticking and going from box to box.
// While the program itself changes the boxes, and while no row is selected, their events do
// nothing.
#pragma once

#include "catalogue/box_memory.h"
#include "form/form.h"

namespace vorlane {

// Boxes are counted from 0 here, as in Form::Boxes.
class OptionBoxes {
 public:
  OptionBoxes(Form& form, Services& services, BoxMemory& memory)
      : form_(form), services_(services), memory_(memory) {}

  // The form's record of the box has a new text. A box can't refer to itself: its own keyword is
  // taken out. A remembered box is kept. The preview follows after a pause.
  void txtRenameOption_Change(int box);

  void txtRenameOption_GotFocus(int box) { lastFocused_ = box; }

  // A box whose formula proper-cases its value shows what was typed in proper case, unless it is
  // a piece of code.
  void txtRenameOption_LostFocus(int box);

  // The box is open for typing while it is ticked.
  void chkRenameOption_Click(int box, bool ticked);

  // The box that TAB goes to from the one that had the focus last; nothing if no other one is shown
  // and open for typing.
  std::optional<int> NextBox() const;

 private:
  bool AreEventsQuiet() const;
  void Change(int box);

  Form& form_;
  Services& services_;
  BoxMemory& memory_;
  int lastFocused_ = 0;
};

}  // namespace vorlane
