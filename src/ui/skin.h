// The look of the main window: the pictures in the folder "Skin" and the sounds in the folder
// "Sounds" beside the program. A skin is the set of files that are there. It is taken once, before
// the window is shown and before the layout measures what it keeps.
#pragma once

#include "layout/skin_files.h"
#include "ui/frm_main.h"

namespace vorlane {

class Skin {
 public:
  // `programFolder` has a trailing separator.
  Skin(FrmMain& window, FileSystem& files, const Text& programFolder);

  // On a screen of full size: each picture in its own size; nothing moves. The first file that is
  // there but can't be loaded ends this, and the files behind it aren't loaded. False then.
  bool ApplySkinPictures();

  // On a smaller screen: everything is scaled to that size, in pixels. A file that can't be loaded
  // costs its own control the picture and nothing else. Bars and buttons whose file isn't there
  // stay at their designed places.
  void ApplySkinScaled(int resolutionX, int resolutionY);

  // Gives the buttons their sounds. A button whose file isn't there keeps its click.
  void AssignSounds();

 private:
  bool ShowPicture(const SkinFile& file);
  void ShowScaled(const SkinFile& file, ScaleFactors factors);
  void ShowOnButton(std::string_view name, const QImage& picture);
  ImageBar& Bar(const SkinFile& file);
  EasyButton& Button(std::string_view name);

  FrmMain& window_;
  FileSystem& files_;
  Text skinPath_;
  Text soundsPath_;
};

}  // namespace vorlane
