#include "layout/main_form_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace vorlane {

namespace {

// To the nearest whole number, ties to the even one.
std::int32_t Rounded(Twips length) {
  return static_cast<std::int32_t>(std::nearbyint(length));
}

}  // namespace

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

void MainFormLayout::InitResizeTags() {
  distances_.clear();
  for (const FormControlPlace& control : controls_) {
    const Twips distance = control.KeepsTo == Anchor::Right ? width_ - control.Place.Left
                                                            : height_ - control.Place.Top;
    distances_.push_back(Rounded(distance));
  }
  const TwipsRect& browse = PlaceOf("picBrowse");
  const TwipsRect& list = PlaceOf("lstFileList");
  browseBottomMargin_ = Rounded(height_ - (browse.Top + browse.Height));
  listBottomMargin_ = Rounded(height_ - (list.Top + list.Height));
  gap_ = Rounded(list.Left - (browse.Left + browse.Width));
  listRightMargin_ = Rounded(width_ - (list.Left + list.Width));
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
    if (control.KeepsTo == Anchor::Bottom) {
      control.Place.Top = height_ - distances_[i];
    } else if (control.KeepsTo == Anchor::Right) {
      control.Place.Left = width_ - distances_[i];
    }
  }
  TwipsRect& browse = Find("picBrowse").Place;
  TwipsRect& list = Find("lstFileList").Place;
  browse.Height = std::max(0.0, height_ - browse.Top - browseBottomMargin_);
  list.Height = std::max(0.0, height_ - list.Top - listBottomMargin_);
  if (widthBefore > 0) {
    browse.Width *= width_ / widthBefore;
  }
  list.Left = browse.Left + browse.Width + gap_;
  list.Width = std::max(0.0, width_ - list.Left - listRightMargin_);
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
