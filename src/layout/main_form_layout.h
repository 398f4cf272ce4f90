// Keeps the controls of the main window in their arrangement at any size of the form.
//
// Most controls keep their distance from one edge. The folder tree keeps its share of the width,
// and the list, the keyword box and the row count follow it; tree and list keep their margins at
// the bottom.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "layout/form_control.h"
#include "layout/scaling.h"

namespace vorlane {

class MainFormLayout {
 public:
  MainFormLayout() : controls_(DesignedControls()) {}

  const std::vector<FormControlPlace>& Controls() const { return controls_; }
  const TwipsRect& PlaceOf(std::string_view name, int index = -1) const;

  // Size of the form's client area.
  Twips Width() const { return width_; }
  Twips Height() const { return height_; }

  // A control that takes its size from its picture.
  void SetControlSize(std::string_view name, TwipsSize size);

  // Scales one control that has a picture.
  void ScaleControlPosition(std::string_view name, ScaleFactors factors);
  void ScaleControlSize(std::string_view name, ScaleFactors factors);

  // Scales the form and every control but those that follow their pictures: images and buttons.
  void ScaleAllControls(ScaleFactors factors);

  // Measures the distances that are kept from now on, from the controls as they stand in a form of
  // that size. Once, when everything has its first place and size.
  void InitResizeTags(TwipsSize form);

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
  // Nothing for a distance that a kept number can't hold: what depends on it stays where it is.
  using Distance = std::optional<std::int16_t>;
  static Distance KeptDistance(Twips distance);

  std::vector<Distance> distances_;  // by control, from the edge that it keeps to
  Distance browseBottomMargin_;
  Distance listBottomMargin_;
  Distance gap_;  // between tree and list
  Distance listRightMargin_;
  Twips width_ = DesignWidth;
  Twips height_ = DesignHeight;
};

}  // namespace vorlane
