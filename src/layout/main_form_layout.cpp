#include "layout/main_form_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace vorlane {

FormControlPlace& MainFormLayout::Find(std::string_view name, int index) {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(), [&](const FormControlPlace& control) {
        return control.Name == name && control.Index == index;
      });
  if (found == controls_.end()) {
    throw std::out_of_range("no such control");
  }
  return *found;
}

const TwipsRect& MainFormLayout::PlaceOf(std::string_view name, int index) const {
  return const_cast<MainFormLayout*>(this)->Find(name, index).Place;
}

void MainFormLayout::SetControlSize(std::string_view name, TwipsSize size) {
  TwipsRect& place = Find(name).Place;
  place.Width = size.Width;
  place.Height = size.Height;
}

void MainFormLayout::ScaleControlPosition(std::string_view name, ScaleFactors factors) {
  vorlane::ScaleControlPosition(Find(name).Place, factors);
}

void MainFormLayout::ScaleControlSize(std::string_view name, ScaleFactors factors) {
  vorlane::ScaleControlSize(Find(name).Place, factors);
}

void MainFormLayout::ScaleAllControls(ScaleFactors factors) {
  for (FormControlPlace& control : controls_) {
    if (control.Kind != ControlKind::Image && control.Kind != ControlKind::Button) {
      vorlane::ScaleControlPosition(control.Place, factors);
      vorlane::ScaleControlSize(control.Place, factors);
    }
  }
  TwipsRect form{0, 0, width_, height_};
  vorlane::ScaleControlSize(form, factors);
  width_ = form.Width;
  height_ = form.Height;
}

// A distance is measured in single precision, of seven digits, and kept as a whole number of 16
// bits.
MainFormLayout::Distance MainFormLayout::KeptDistance(Twips distance) {
  if (distance == 0) {
    return std::int16_t{0};
  }
  const int digitsInFront = 1 + static_cast<int>(std::floor(std::log10(std::abs(distance))));
  const double unit = std::pow(10.0, 7 - digitsInFront);
  const double kept = std::nearbyint(std::nearbyint(distance * unit) / unit);
  constexpr std::numeric_limits<std::int16_t> range;
  if (kept < range.min() || kept > range.max()) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(kept);
}

void MainFormLayout::InitResizeTags(TwipsSize form) {
  width_ = form.Width;
  height_ = form.Height;
  distances_.clear();
  for (const FormControlPlace& control : controls_) {
    distances_.push_back(KeptDistance(control.KeepsTo == Anchor::Right
                                          ? width_ - control.Place.Left
                                          : height_ - control.Place.Top));
  }
  const TwipsRect& browse = PlaceOf("picBrowse");
  const TwipsRect& list = PlaceOf("lstFileList");
  browseBottomMargin_ = KeptDistance(height_ - (browse.Top + browse.Height));
  listBottomMargin_ = KeptDistance(height_ - (list.Top + list.Height));
  gap_ = KeptDistance(list.Left - (browse.Left + browse.Width));
  listRightMargin_ = KeptDistance(width_ - (list.Left + list.Width));
}

bool MainFormLayout::ResizeIfChanged(Twips width, Twips height) {
  if (width == width_ && height == height_) {
    return false;
  }
  const Twips widthBefore = width_;
  width_ = width;
  height_ = height;
  LayoutMainForm(widthBefore);
  return true;
}

void MainFormLayout::LayoutMainForm(Twips widthBefore) {
  for (std::size_t i = 0; i < distances_.size(); ++i) {
    FormControlPlace& control = controls_[i];
    if (!distances_[i]) {
      continue;
    }
    if (control.KeepsTo == Anchor::Bottom) {
      control.Place.Top = height_ - *distances_[i];
    } else if (control.KeepsTo == Anchor::Right) {
      control.Place.Left = width_ - *distances_[i];
    }
  }
  TwipsRect& browse = Find("picBrowse").Place;
  TwipsRect& list = Find("lstFileList").Place;
  if (browseBottomMargin_) {
    browse.Height = std::max(0.0, height_ - browse.Top - *browseBottomMargin_);
  }
  if (listBottomMargin_) {
    list.Height = std::max(0.0, height_ - list.Top - *listBottomMargin_);
  }
  if (widthBefore > 0) {
    browse.Width *= width_ / widthBefore;
  }
  if (gap_) {
    list.Left = browse.Left + browse.Width + *gap_;
  }
  if (listRightMargin_) {
    list.Width = std::max(0.0, width_ - list.Left - *listRightMargin_);
  }
  Find("cboKeywords").Place.Left = list.Left;
  PlaceFileStatus();
}

void MainFormLayout::SetFileStatusWidth(Twips width) {
  Find("lblFileStatus").Place.Width = width;
  PlaceFileStatus();
}

void MainFormLayout::PlaceFileStatus() {
  const TwipsRect& list = PlaceOf("lstFileList");
  TwipsRect& status = Find("lblFileStatus").Place;
  status.Left = list.Left + list.Width - status.Width;
}

}  // namespace vorlane
