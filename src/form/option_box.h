// One of the six option boxes: a caption, a text box and an optional check box.
#pragma once

#include "engine/box_values.h"
#include "platform/text.h"

namespace vorlane {

inline constexpr int OptionBoxCount = static_cast<int>(BoxCount);

struct OptionBox {
  bool Visible = false;
  bool Enabled = true;
  Text Caption;
  Text Content;  // the text in the box
  Text ToolTip;
  bool CheckVisible = false;
  bool Checked = false;
  Text CheckCaption;

  // The operation's formula for the box: empty for a plain box, "Registry(...)" for a remembered
  // one, anything else is code that gives the box a value for each row.
  Text BoxCode;

  bool IsRemembered() const { return BoxCode.starts_with(u"Registry("); }
  bool HasFormula() const { return !BoxCode.empty() && !IsRemembered(); }
};

}  // namespace vorlane
