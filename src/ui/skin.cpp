#include "ui/skin.h"

#include <algorithm>

#include "catalogue/program_files.h"
#include "layout/skin_files.h"
#include "ui/picture_file.h"

namespace vorlane {

namespace {

Text FolderBeside(FileSystem& files, const Text& programFolder, TextView name) {
  return FindProgramFolder(files, programFolder, name)
      .value_or(Text(programFolder).append(name) + programFolder.back());
}

}  // namespace

Skin::Skin(FrmMain& window, FileSystem& files, const Text& programFolder)
    : window_(window),
      files_(files),
      skinPath_(FolderBeside(files, programFolder, SkinFolderName)),
      soundsPath_(FolderBeside(files, programFolder, SoundsFolderName)) {
  window_.Background().SetSkinPath(skinPath_);
}

ImageBar& Skin::Bar(const SkinFile& file) {
  return *window_.findChild<ImageBar*>(QLatin1String(file.Control.data()));
}

EasyButton& Skin::Button(std::string_view name) {
  return *window_.findChild<EasyButton*>(QLatin1String(name.data()));
}

// The button takes its size from the picture.
void Skin::ShowOnButton(std::string_view name, const QImage& picture) {
  EasyButton& button = Button(name);
  button.SetPicture(picture);
  window_.Layout().SetControlSize(name, {TwipsOf(button.width()), TwipsOf(button.height())});
}

bool Skin::ApplySkinPictures() {
  const bool isWhole =
      std::ranges::all_of(SkinFiles, [this](const SkinFile& file) { return ShowPicture(file); });
  window_.TakeLayout();
  return isWhole;
}

// False if the file is there and can't be loaded.
bool Skin::ShowPicture(const SkinFile& file) {
  if (file.Target == SkinTarget::Form) {
    return window_.Background().Show(std::nullopt);
  }
  const auto path = FindProgramFile(files_, skinPath_, file.FileName);
  if (!path) {
    return true;
  }
  const QImage picture = LoadPicture(files_, *path);
  if (picture.isNull()) {
    return false;
  }
  if (file.Target == SkinTarget::Bar) {
    Bar(file).SetPicture(picture);
    window_.Layout().SetControlSize(file.Control,
                                    {TwipsOf(picture.width()), TwipsOf(picture.height())});
  } else {
    ShowOnButton(file.Control, picture);
  }
  return true;
}

void Skin::ApplySkinScaled(int resolutionX, int resolutionY) {
  const ScaleFactors factors = FactorsFor(resolutionX, resolutionY);
  for (const SkinFile& file : SkinFiles) {
    ShowScaled(file, factors);
  }
  MainFormLayout& layout = window_.Layout();
  layout.ScaleAllControls(factors);
  window_.ScaleFonts(factors.X);
  window_.Background().Show(QSize(PixelsOf(layout.Width()), PixelsOf(layout.Height())));
  window_.TakeLayout();
}

void Skin::AssignSounds() {
  TextView name;
  std::optional<Text> path;
  for (const SkinSound& sound : SkinSounds) {
    if (sound.FileName != name) {  // looked for once; most buttons share one
      name = sound.FileName;
      path = FindProgramFile(files_, soundsPath_, name);
    }
    if (path) {
      Button(sound.Control).SetSoundFileName(*path);
    }
  }
}

void Skin::ShowScaled(const SkinFile& file, ScaleFactors factors) {
  const auto path = FindProgramFile(files_, skinPath_, file.FileName);
  if (!path || file.Target == SkinTarget::Form) {
    return;
  }
  MainFormLayout& layout = window_.Layout();
  const QImage picture = LoadPicture(files_, *path);
  if (file.Target == SkinTarget::Bar) {
    Bar(file).SetPicture(picture);
    layout.ScaleControlSize(file.Control, factors);
  } else if (const QImage scaled = ScalePicture(picture, factors); !scaled.isNull()) {
    ShowOnButton(file.Control, scaled);
  }
  layout.ScaleControlPosition(file.Control, factors);
}

}  // namespace vorlane
