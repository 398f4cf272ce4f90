#include "platform/path_style.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

constexpr auto Windows = PathStyle::Windows;
constexpr auto Posix = PathStyle::Posix;

std::string Shown(TextView text) {
  return std::string(text.begin(), text.end());
}

TEST(PathStyle, RootedPaths) {
  const struct {
    Text path;
    bool onWindows, onPosix;
  } cases[] = {
      {u"C:\\", true, false},
      {u"C:\\Music", true, false},
      {u"?:\\", true, false},
      {u"日:\\", true, false},
      {u"C:", false, false},
      {u"C:Music", false, false},
      {u"C:/", false, false},
      {u"ab\\", false, false},
      {u"\\", false, false},
      {u"\\Music", false, false},
      {u"\\\\server\\share", false, false},
      {u"Music", false, false},
      {u"", false, false},
      {u"/", false, true},
      {u"/Music", false, true},
      {u"//Music", false, true},
      {u"/:\\", true, true},
      {u" /Music", false, false},
      {u"./Music", false, false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(IsRooted(c.path, Windows), c.onWindows) << Shown(c.path);
    EXPECT_EQ(IsRooted(c.path, Posix), c.onPosix) << Shown(c.path);
  }
}

TEST(PathStyle, EnsureTrailingSeparatorAddsOneIfMissing) {
  EXPECT_EQ(EnsureTrailingSeparator(u"C:\\Music", Windows), u"C:\\Music\\");
  EXPECT_EQ(EnsureTrailingSeparator(u"C:\\Music\\", Windows), u"C:\\Music\\");
  EXPECT_EQ(EnsureTrailingSeparator(u"C:\\Music\\\\", Windows), u"C:\\Music\\\\");
  EXPECT_EQ(EnsureTrailingSeparator(u"", Windows), u"\\");
  EXPECT_EQ(EnsureTrailingSeparator(u"a/", Windows), u"a/\\");
  EXPECT_EQ(EnsureTrailingSeparator(u"/music", Posix), u"/music/");
  EXPECT_EQ(EnsureTrailingSeparator(u"/music/", Posix), u"/music/");
  EXPECT_EQ(EnsureTrailingSeparator(u"a\\", Posix), u"a\\/");
  EXPECT_EQ(EnsureTrailingSeparator(u"", Posix), u"/");
}

TEST(PathStyle, FileNameIsTheTextBehindTheLastSeparator) {
  EXPECT_EQ(FileNameOf(u"C:\\Music\\a.mp3", Windows), u"a.mp3");
  EXPECT_EQ(FileNameOf(u"C:\\Music\\", Windows), u"");
  EXPECT_EQ(FileNameOf(u"a.mp3", Windows), u"a.mp3");
  EXPECT_EQ(FileNameOf(u"C:\\a/b", Windows), u"a/b");
  EXPECT_EQ(FileNameOf(u"/music/a\\b.mp3", Posix), u"a\\b.mp3");
  EXPECT_EQ(FileNameOf(u"/a", Posix), u"a");
  EXPECT_EQ(FileNameOf(u"/", Posix), u"");
  EXPECT_EQ(FileNameOf(u"", Posix), u"");
}

TEST(PathStyle, ANameIsCutAtItsLastPoint) {
  const struct {
    Text name, nameOnly, extension;
  } cases[] = {
      {u"a.mp3", u"a", u"mp3"},
      {u"a.tar.gz", u"a.tar", u"gz"},
      {u"a", u"a", u""},
      {u"a.", u"a", u""},
      {u".a", u".a", u""},
      {u".profile", u".profile", u""},
      {u".profile.bak", u".profile", u"bak"},
      {u"..", u".", u""},
      {u"..a", u".", u"a"},
      {u".", u".", u""},
      {u"a..b", u"a.", u"b"},
      {u"a. b", u"a", u" b"},
      {u"", u"", u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(NameOnlyOf(c.name), c.nameOnly) << Shown(c.name);
    EXPECT_EQ(ExtensionOf(c.name), c.extension) << Shown(c.name);
  }
}

TEST(PathStyle, TheMp3ExtensionCountsInAnyCase) {
  EXPECT_TRUE(HasMp3Extension(u"a.mp3"));
  EXPECT_TRUE(HasMp3Extension(u"a.b.MP3"));
  EXPECT_TRUE(HasMp3Extension(u"a.Mp3"));
  EXPECT_FALSE(HasMp3Extension(u"mp3"));
  EXPECT_FALSE(HasMp3Extension(u".mp3"));
  EXPECT_FALSE(HasMp3Extension(u"a.mp3."));
  EXPECT_FALSE(HasMp3Extension(u"a.mp33"));
  EXPECT_FALSE(HasMp3Extension(u"a.mp3 "));
  EXPECT_FALSE(HasMp3Extension(u""));
}

TEST(PathStyle, FoldersAboveAnEntryHaveNames) {
  const struct {
    Text path;
    PathStyle style;
    Text folder, parent, parentParent;
  } cases[] = {
      {u"C:\\Music\\Rock\\a.mp3", Windows, u"Rock", u"Music", u"C:"},
      {u"C:\\Rock\\a.mp3", Windows, u"Rock", u"C:", u""},
      {u"C:\\a.mp3", Windows, u"C:", u"", u""},
      {u"C:\\A\\B\\C\\a.mp3", Windows, u"C", u"B", u"A"},
      {u"C:\\Music\\", Windows, u"Music", u"C:", u""},
      {u"\\a.mp3", Windows, u"", u"", u""},
      {u"a.mp3", Windows, u"", u"", u""},
      {u"", Windows, u"", u"", u""},
      {u"Music/Rock/a.mp3", Windows, u"", u"", u""},
      {u"\\\\server\\share\\a.mp3", Windows, u"share", u"server", u""},
      {u"/home/music/Rock/a.mp3", Posix, u"Rock", u"music", u"home"},
      {u"/music/Rock/a.mp3", Posix, u"Rock", u"music", u""},
      {u"/R/a.mp3", Posix, u"R", u"", u""},
      {u"/a.mp3", Posix, u"", u"", u""},
      {u"music/Rock/a.mp3", Posix, u"Rock", u"music", u""},
      {u"Rock/a.mp3", Posix, u"Rock", u"", u""},
      {u"/C:\\Music/a.mp3", Posix, u"C:\\Music", u"", u""},
      {u"/", Posix, u"", u"", u""},
      {u"", Posix, u"", u"", u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FolderNameOf(c.path, c.style), c.folder) << Shown(c.path);
    EXPECT_EQ(ParentFolderNameOf(c.path, c.style), c.parent) << Shown(c.path);
    EXPECT_EQ(ParentParentFolderNameOf(c.path, c.style), c.parentParent) << Shown(c.path);
  }
}

}  // namespace
}  // namespace vorlane
