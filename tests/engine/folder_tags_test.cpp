// "<CREATEFOLDER>" and "<MOVE>", which only build a path.
#include <gtest/gtest.h>

#include "support/evaluator.h"

namespace vorlane {
namespace {

struct FolderCase {
  Text Path, Inner, Result;
};

void ExpectFolders(PathStyle style, const std::vector<FolderCase>& cases) {
  for (const auto& c : cases) {
    Evaluator evaluate{.Paths = style, .Path = c.Path};
    EXPECT_EQ(evaluate(u"<CREATEFOLDER>" + c.Inner + u"</CREATEFOLDER>"), c.Result)
        << DisplayUtf8(c.Inner);
    EXPECT_EQ(evaluate(u"<MOVE>" + c.Inner + u"</MOVE>"), c.Result) << DisplayUtf8(c.Inner);
  }
}

TEST(FolderTags, InTheStyleOfWindows) {
  ExpectFolders(PathStyle::Windows,
                {
                    {u"C:\\Music\\", u"Rock", u"C:\\Music\\Rock\\"},
                    {u"C:\\Music\\", u"Rock\\", u"C:\\Music\\Rock\\"},
                    {u"C:\\Music\\", u"Rock\\Live", u"C:\\Music\\Rock\\Live\\"},
                    {u"C:\\Music\\", u"", u"C:\\Music\\"},
                    // Rooted is a drive with its backslash, whatever its letter.
                    {u"C:\\Music\\", u"D:\\Rock", u"D:\\Rock\\"},
                    {u"C:\\Music\\", u"D:\\", u"D:\\"},
                    {u"C:\\Music\\", u"1:\\a", u"1:\\a\\"},
                    {u"C:\\Music\\", u"::\\a", u"::\\a\\"},
                    {u"C:\\Music\\", u"D:", u"C:\\Music\\D:\\"},
                    {u"C:\\Music\\", u"D:Rock", u"C:\\Music\\D:Rock\\"},
                    {u"C:\\Music\\", u"D:/Rock", u"C:\\Music\\D:/Rock\\"},
                    {u"C:\\Music\\", u"\\Rock", u"C:\\Music\\Rock\\"},
                    {u"C:\\Music\\", u"\\\\server\\share", u"C:\\Music\\\\server\\share\\"},
                    {u"C:\\Music\\", u"/Rock", u"C:\\Music\\/Rock\\"},
                    // Doubled backslashes become one, once, wherever they are.
                    {u"C:\\Music\\", u"a\\\\b", u"C:\\Music\\a\\b\\"},
                    {u"C:\\Music\\", u"a\\\\\\b", u"C:\\Music\\a\\\\b\\"},
                    {u"C:\\Music\\", u"a\\\\\\\\b", u"C:\\Music\\a\\\\b\\"},
                    {u"C:\\Music\\", u"a\\\\", u"C:\\Music\\a\\"},
                    {u"C:\\Music\\", u"D:\\\\a", u"D:\\a\\"},
                    {u"C:\\\\Music\\", u"a", u"C:\\Music\\a\\"},
                    {u"", u"a", u"a\\"},
                    {u"", u"", u""},
                });
}

TEST(FolderTags, InTheStyleOfPosix) {
  ExpectFolders(PathStyle::Posix,
                {
                    {u"/music/", u"Rock", u"/music/Rock/"},
                    {u"/music/", u"Rock/", u"/music/Rock/"},
                    {u"/music/", u"Rock/Live", u"/music/Rock/Live/"},
                    {u"/music/", u"Rock\\Live", u"/music/Rock/Live/"},
                    {u"/music/", u"Rock\\", u"/music/Rock/"},
                    {u"/music/", u"", u"/music/"},
                    // Rooted is what begins with "/" as it was typed.
                    {u"/music/", u"/srv/a", u"/srv/a/"},
                    {u"/music/", u"/", u"/"},
                    {u"/music/", u"\\srv\\a", u"/music/srv/a/"},
                    {u"/music/", u"D:\\Rock", u"/music/D:/Rock/"},
                    {u"/music/", u"D:/Rock", u"/music/D:/Rock/"},
                    // Doubled separators become one, once, also where the two kinds meet.
                    {u"/music/", u"a//b", u"/music/a/b/"},
                    {u"/music/", u"a\\/b", u"/music/a/b/"},
                    {u"/music/", u"a///b", u"/music/a//b/"},
                    {u"/music/", u"\\\\server\\share", u"/music//server/share/"},
                    {u"/music/", u"//srv", u"/srv/"},
                    // A backslash in the name of the entry's own folder is part of that name.
                    {u"/mu\\sic/", u"a\\b", u"/mu\\sic/a/b/"},
                    {u"/mu\\\\sic/", u"a", u"/mu\\\\sic/a/"},
                    {u"", u"", u""},
                });
}

}  // namespace
}  // namespace vorlane
