// Keeps the controls of the main window in their arrangement at any size of the form.
//
// Most controls keep their distance from one edge. The folder tree keeps its share of the width,
// and the list, the keyword box and the row count follow it; tree and list keep their margins at
// the bottom.
#pragma once

#include <vector>

#include "layout/form_control.h"

namespace vorlane {

class MainFormLayout {
 public:
  MainFormLayout() : controls_(DesignedControls()) {}

  const std::vector<FormControlPlace>& Controls() const { return controls_; }
  const TwipsRect& PlaceOf(std::string_view name, int index = -1) const;

  // Size of the form's client area.
  Twips Width() const { return width_; }
  Twips Height() const { return height_; }

  // Measures the distances that are kept from now on, from the controls and the form as they
  // stand. Once, when everything has its first place and size.
  void InitResizeTags();

  // Arranges everything for a form of that size. Nothing moves if the form has it already. True if
  // something may have moved.
  bool ResizeIfChanged(Twips width, Twips height);

  // The row count's label is as wide as its text; it ends where the list ends.
  void SetFileStatusWidth(Twips width);

 private:
  FormControlPlace& Find(std::string_view name, int index = -1);
  void LayoutMainForm(Twips widthBefore);
  void PlaceFileStatus();

  std::vector<FormControlPlace> controls_;
  std::vector<std::int32_t> distances_;  // by control, from the edge that it keeps to
  std::int32_t browseBottomMargin_ = 0;
  std::int32_t listBottomMargin_ = 0;
  std::int32_t gap_ = 0;  // between tree and list
  std::int32_t listRightMargin_ = 0;
  Twips width_ = DesignWidth;
  Twips height_ = DesignHeight;
};

}  // namespace vorlane
