#include "shell/desktop_texts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "support/temporary_folder.h"

namespace vorlane {
namespace {

const std::string Plain = "/usr/bin/vorlane";

// Paths that a careless file would break.
const std::string OddPaths[] = {
    "/opt/My Programs/vorlane",
    "/opt/\"quoted\"/vorlane",
    "/opt/it's/vorlane",
    "/opt/back\\slash\\/vorlane",
    "/opt/$HOME/vorlane",
    "/opt/100%f %% %/vorlane",
    "/opt/`id`/vorlane",
    "/opt/\xC3\xA9\xE6\x97\xA5/vorlane",
    "/opt/line\nbreak\ttab\rreturn/vorlane",
    "/opt/a;b&c|d<e>f(g)*?[h]#~!/vorlane",
};

// The value of a key, with its escapes undone, as a reader of key files has it.
std::string ValueOf(const std::string& text, const std::string& key) {
  const auto start = text.find("\n" + key + "=") + key.size() + 2;
  const std::string raw = text.substr(start, text.find('\n', start) - start);
  std::string value;
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] != '\\') {
      value += raw[i];
      continue;
    }
    const std::map<char, char> escapes = {
        {'s', ' '}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'\\', '\\'}};
    value += escapes.at(raw.at(++i));
  }
  return value;
}

struct Command {
  std::string Program;
  std::string Rest;
};

// An Exec value as a launcher takes it apart: the program in double quotes, in which a backslash
// stands for the character behind it and "%%" for "%".
Command CommandOf(const std::string& exec) {
  Command command;
  EXPECT_EQ(exec.at(0), '"');
  std::size_t i = 1;
  for (; exec.at(i) != '"'; ++i) {
    EXPECT_EQ(std::string_view("`$").find(exec[i]), std::string_view::npos) << exec;
    if (exec[i] == '\\') {
      ++i;
    } else if (exec[i] == '%') {
      EXPECT_EQ(exec.at(++i), '%');
    }
    command.Program += exec.at(i);
  }
  command.Rest = exec.substr(i + 1);
  return command;
}

TEST(DesktopTexts, TheDesktopEntry) {
  EXPECT_EQ(DesktopEntryText(Plain),
            "[Desktop Entry]\n"
            "Type=Application\n"
            "Name=Open with Vorlane\n"
            "Exec=\"/usr/bin/vorlane\" %f\n"
            "MimeType=inode/directory;\n"
            "NoDisplay=true\n");
}

TEST(DesktopTexts, TheNemoAction) {
  EXPECT_EQ(NemoActionText(Plain),
            "[Nemo Action]\n"
            "Name=Open with Vorlane\n"
            "Exec=\"/usr/bin/vorlane\" %F\n"
            "Selection=s\n"
            "Extensions=dir;\n"
            "Quote=double\n");
}

TEST(DesktopTexts, TheServiceMenu) {
  EXPECT_EQ(ServiceMenuText(Plain),
            "[Desktop Entry]\n"
            "Type=Service\n"
            "MimeType=inode/directory;\n"
            "X-KDE-ServiceTypes=KonqPopupMenu/Plugin\n"
            "Actions=openWithVorlane;\n"
            "\n"
            "[Desktop Action openWithVorlane]\n"
            "Name=Open with Vorlane\n"
            "Exec=\"/usr/bin/vorlane\" %f\n");
}

TEST(DesktopTexts, EscapesStandAsTheyHaveTo) {
  const auto lineOf = [](const std::string& program) {
    const std::string text = DesktopEntryText(program);
    const auto start = text.find("Exec=");
    return text.substr(start, text.find('\n', start) - start);
  };
  EXPECT_EQ(lineOf("/a b"), R"(Exec="/a b" %f)");
  EXPECT_EQ(lineOf("/a\"b"), R"(Exec="/a\\"b" %f)");
  EXPECT_EQ(lineOf("/a\\b"), R"(Exec="/a\\\\b" %f)");
  EXPECT_EQ(lineOf("/a$b"), R"(Exec="/a\\$b" %f)");
  EXPECT_EQ(lineOf("/a`b"), R"(Exec="/a\\`b" %f)");
  EXPECT_EQ(lineOf("/a%b"), R"(Exec="/a%%b" %f)");
  EXPECT_EQ(lineOf("/a'b\xC3\xA9"), "Exec=\"/a'b\xC3\xA9\" %f");
}

TEST(DesktopTexts, AnyPathIsReadBack) {
  for (const std::string& path : OddPaths) {
    const std::pair<std::string, std::string> texts[] = {{DesktopEntryText(path), " %f"},
                                                         {NemoActionText(path), " %F"},
                                                         {ServiceMenuText(path), " %f"}};
    for (const auto& [text, rest] : texts) {
      const Command command = CommandOf(ValueOf(text, "Exec"));
      EXPECT_EQ(command.Program, path);
      EXPECT_EQ(command.Rest, rest);
    }
  }
}

// Runs the script by a real shell, in a folder, with what Nautilus gives it. The program is a
// script that notes its argument.
class NautilusScriptTest : public testing::Test {
 protected:
  std::string ArgumentFor(const std::string& programName, const std::string& selected) {
    namespace fs = std::filesystem;
    const std::string program = folder_.Path() + programName;
    const std::string note = folder_.Path() + "note";
    folder_.Write(programName, "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" >'" + note + "'\n");
    folder_.Write("script", NautilusScriptText(program));
    for (const std::string& file : {program, folder_.Path() + "script"}) {
      fs::permissions(file, fs::perms::owner_all);
    }
    folder_.MakeFolder("shown");
    folder_.Write("selected", selected);
    const std::string command =
        "cd '" + folder_.Path() + "shown' && '" + folder_.Path() + "script' \"$(cat ../selected)\"";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return folder_.Read("note");
  }

  TemporaryFolder folder_;
};

TEST_F(NautilusScriptTest, GivesTheSelectedFolderWithItsPath) {
  const std::string shown = folder_.Path() + "shown/";
  EXPECT_EQ(ArgumentFor("vorlane", "Music"), "1|" + shown + "Music");
  EXPECT_EQ(ArgumentFor("vorlane", "-rf"), "1|" + shown + "-rf");
  EXPECT_EQ(ArgumentFor("vorlane", "a b\"$c`d\\e*"), "1|" + shown + "a b\"$c`d\\e*");
  EXPECT_EQ(ArgumentFor("vorlane", "/else/where"), "1|/else/where");
  EXPECT_EQ(ArgumentFor("vorlane", ""), "1|" + shown);
}

TEST_F(NautilusScriptTest, FindsAProgramOfAnyPath) {
  for (const std::string& path : OddPaths) {
    EXPECT_EQ(ArgumentFor(path.substr(1), "/x"), "1|/x") << path;
  }
}

}  // namespace
}  // namespace vorlane
