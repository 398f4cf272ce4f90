// The files by which the file managers of a Linux desktop offer "Open with Vorlane" on a folder.
//
// Desktop entry: Desktop Entry Specification 1.5. The same escapes hold in the files of Nemo and of
// Dolphin, which are of its kind.
#pragma once

#include <string>

#include "platform/text.h"

namespace vorlane {

// Where each file is, below the user's folder of data.
inline constexpr TextView DesktopEntryFolder = u"applications/";
inline constexpr TextView DesktopEntryName = u"vorlane-folder.desktop";
inline constexpr TextView NautilusScriptFolder =
    u"nautilus/scripts/";  // named as its menu shows it
inline constexpr TextView NemoActionFolder = u"nemo/actions/";
inline constexpr TextView NemoActionName = u"vorlane-folder.nemo_action";
inline constexpr TextView ServiceMenuFolder = u"kio/servicemenus/";
inline constexpr TextView ServiceMenuName = u"vorlane-folder.desktop";

// The four files. The program's path is bytes, and may hold any but NUL.
std::string DesktopEntryText(const std::string& program);
std::string NautilusScriptText(const std::string& program);  // has to be executable
std::string NemoActionText(const std::string& program);
std::string ServiceMenuText(const std::string& program);  // has to be executable

}  // namespace vorlane
