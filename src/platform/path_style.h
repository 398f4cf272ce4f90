// How a path is written: its separator and what counts as rooted. Both styles exist on every
// system, so that the rules can be tried with either; a running program uses HostPathStyle.
//
// A path is a folder with its trailing separator and a bare name, joined with nothing between.
#pragma once

#include "platform/text.h"

namespace vorlane {

enum class PathStyle { Windows, Posix };

#ifdef _WIN32
inline constexpr PathStyle HostPathStyle = PathStyle::Windows;
#else
inline constexpr PathStyle HostPathStyle = PathStyle::Posix;
#endif

constexpr char16_t Separator(PathStyle style) {
  return style == PathStyle::Windows ? u'\\' : u'/';
}

// Windows: any character, ":" and "\". Posix: begins with "/".
bool IsRooted(TextView path, PathStyle style);

// The path with a separator added unless it ends in one; the empty text becomes the separator.
Text EnsureTrailingSeparator(TextView path, PathStyle style);

// The path with its "." and ".." pieces resolved in the text, without a look at the disk; ".." at
// the root stays there. A trailing separator stays.
Text WithoutDotPieces(TextView path, PathStyle style);

// The text behind the last separator.
Text FileNameOf(TextView path, PathStyle style);

// The text behind the last ".", without it. Empty if that point is the first or the last
// character, or if there is none.
Text ExtensionOf(TextView name);

// The name before its last "."; the whole name if there is none or it is the first character.
Text NameOnlyOf(TextView name);

bool HasMp3Extension(TextView name);

// For an entry "C:\Music\Rock\a.mp3": "Rock", "Music" and "C:"; empty where there is no such level.
Text FolderNameOf(TextView fullPath, PathStyle style);
Text ParentFolderNameOf(TextView fullPath, PathStyle style);
Text ParentParentFolderNameOf(TextView fullPath, PathStyle style);

}  // namespace vorlane
