#include "layout/form_control.h"

#include <iterator>

namespace vorlane {

namespace {

using enum ControlKind;
using enum Anchor;

constexpr FormControlPlace SingleControls[] = {
    {"imgTopBar", -1, Image, Right, true, {3820, 200, 10755, 735}},
    {"imgBottomBar", -1, Image, Bottom, true, {180, 5450, 14235, 1950}},
    {"lblTitle", -1, Label, None, true, {795, 210, 2460, 300}},
    {"picBrowse", -1, Canvas, None, true, {360, 720, 3255, 4575}},
    {"lstRenamingOperations", -1, Other, Bottom, true, {360, 5640, 3255, 1575}},
    {"lstFileList", -1, Other, None, true, {3960, 720, 10215, 4150}},
    {"cboKeywords", -1, Other, Bottom, true, {3960, 4980, 7695, 315}},
    {"lblFileStatus", -1, Label, Bottom, true, {13560, 5040, 615, 240}},
    {"lblStatus", -1, Label, Bottom, true, {240, 7560, 510, 240}},
    {"cmdListFiles", -1, Button, Right, true, {3960, 240, 915, 420}},
    {"cmdListFolders", -1, Button, Right, false, {3960, 240, 915, 420}},
    {"cmdThisFolderOnly", -1, Button, Right, true, {5520, 240, 915, 420}},
    {"cmdIncludeSubFolders", -1, Button, Right, false, {5520, 240, 915, 420}},
    {"cmdDoOne", -1, Button, Right, true, {7080, 240, 915, 420}},
    {"cmdDoAll", -1, Button, Right, false, {7080, 240, 915, 420}},
    {"cboWildCard", -1, Other, Right, true, {10440, 270, 1215, 315}},
    {"objProgressBar", -1, Other, Right, true, {11760, 240, 2415, 375}},
    {"cmdExit", -1, Button, Right, true, {14400, 720, 660, 660}},
    {"cmdHelp", -1, Button, Right, true, {14400, 1680, 750, 750}},
    {"cmdUndo", -1, Button, Right, true, {14400, 2760, 750, 750}},
    {"cmdGo", -1, Button, Bottom, true, {13320, 5880, 825, 1185}},
    {"cmdStop", -1, Button, Bottom, false, {13320, 5880, 825, 1185}},
};

// Three columns of two boxes each.
constexpr Twips BoxColumns[] = {3720, 6876, 10032};
constexpr Twips CheckColumns[] = {6588, 9744, 12900};
constexpr Twips LabelRows[] = {5760, 6480};
constexpr Twips TextRows[] = {6000, 6720};
constexpr Twips CheckRows[] = {6053, 6773};

constexpr Twips HelpLabelHeight = 195;

struct HelpLabel {
  Anchor KeepsTo;
  Twips Left;
  Twips Top;
  Twips Width;
};

constexpr HelpLabel HelpLabels[] = {
    {Bottom, 5985, 5760, 510},  {Bottom, 5985, 6480, 510},  {Bottom, 9141, 5760, 510},
    {Bottom, 9141, 6480, 510},  {Bottom, 12297, 5760, 510}, {Bottom, 12297, 6480, 510},
    {Bottom, 13320, 5640, 615}, {Right, 3960, 0, 900},      {Right, 5520, 0, 870},
    {Right, 7080, 0, 1095},     {Right, 10440, 0, 630},     {Right, 14400, 480, 255},
    {Right, 14400, 1440, 330},  {Right, 14400, 2520, 390},  {Bottom, 360, 5400, 1305},
    {None, 360, 480, 1245},
};

}  // namespace

std::vector<FormControlPlace> DesignedControls() {
  std::vector<FormControlPlace> controls(std::begin(SingleControls), std::end(SingleControls));
  for (int box = 0; box < 6; ++box) {
    const Twips left = BoxColumns[box / 2];
    const int row = box % 2;
    controls.push_back(
        {"lblRenameOption", box, Label, Bottom, false, {left, LabelRows[row], 930, 240}});
    controls.push_back(
        {"txtRenameOption", box, TextBox, Bottom, false, {left, TextRows[row], 2800, 300}});
    controls.push_back({"chkRenameOption",
                        box,
                        Other,
                        Bottom,
                        false,
                        {CheckColumns[box / 2], CheckRows[row], 195, 195}});
  }
  int index = 0;
  for (const HelpLabel& label : HelpLabels) {
    controls.push_back({"lblToolTip",
                        index++,
                        Label,
                        label.KeepsTo,
                        false,
                        {label.Left, label.Top, label.Width, HelpLabelHeight}});
  }
  return controls;
}

}  // namespace vorlane
