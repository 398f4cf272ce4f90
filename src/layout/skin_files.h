// The files of a skin and its sounds, and the controls that they are for. A file that isn't there
// leaves its control the built-in look.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace vorlane {

inline constexpr TextView SkinFolderName = u"Skin";
inline constexpr TextView SoundsFolderName = u"Sounds";

enum class SkinTarget : unsigned char {
  Form,    // the background
  Bar,     // a picture of its own size
  Button,  // four pictures on top of each other: normal, hover, pressed, mask
};

struct SkinFile {
  TextView FileName;
  SkinTarget Target;
  std::string_view Control;
};

inline constexpr SkinFile BackgroundFile = {u"Background.gif", SkinTarget::Form, "frmMain"};

// In the order in which they are loaded.
inline constexpr SkinFile SkinFiles[] = {
    BackgroundFile,
    {u"TopBar.gif", SkinTarget::Bar, "imgTopBar"},
    {u"BottomBar.gif", SkinTarget::Bar, "imgBottomBar"},
    {u"Go.bmp", SkinTarget::Button, "cmdGo"},
    {u"Stop.bmp", SkinTarget::Button, "cmdStop"},
    {u"Help.bmp", SkinTarget::Button, "cmdHelp"},
    {u"Undo.bmp", SkinTarget::Button, "cmdUndo"},
    {u"Exit.bmp", SkinTarget::Button, "cmdExit"},
    {u"ListFiles.bmp", SkinTarget::Button, "cmdListFiles"},
    {u"ListFolders.bmp", SkinTarget::Button, "cmdListFolders"},
    {u"ThisFolderOnly.bmp", SkinTarget::Button, "cmdThisFolderOnly"},
    {u"IncludeSubFolders.bmp", SkinTarget::Button, "cmdIncludeSubFolders"},
    {u"DoOne.bmp", SkinTarget::Button, "cmdDoOne"},
    {u"DoAll.bmp", SkinTarget::Button, "cmdDoAll"},
};

struct SkinSound {
  TextView FileName;
  std::string_view Control;
};

inline constexpr SkinSound SkinSounds[] = {
    {u"01.wav", "cmdGo"},
    {u"02.wav", "cmdStop"},
    {u"02.wav", "cmdHelp"},
    {u"02.wav", "cmdUndo"},
    {u"02.wav", "cmdExit"},
    {u"02.wav", "cmdListFiles"},
    {u"02.wav", "cmdListFolders"},
    {u"02.wav", "cmdThisFolderOnly"},
    {u"02.wav", "cmdIncludeSubFolders"},
    {u"02.wav", "cmdDoOne"},
    {u"02.wav", "cmdDoAll"},
};

}  // namespace vorlane
