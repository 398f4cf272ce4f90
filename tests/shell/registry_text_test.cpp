#include "shell/registry_text.h"

#include <gtest/gtest.h>

#include "platform/file_name_bytes.h"

namespace vorlane {
namespace {

RegistryValue ValueIn(std::string_view bytes, TextView path, TextView name) {
  const RegistryTree tree = ReadRegistryText(bytes);
  const RegistryKey* key = tree.Find(path);
  const RegistryValue* value = key != nullptr ? key->FindValue(name) : nullptr;
  return value != nullptr ? *value : RegistryValue(u"(none)");
}

RegistryValue ValueOfLine(const std::string& line, TextView name) {
  return ValueIn("[K]\n" + line + "\n", u"K", name);
}

TEST(RegistryText, ReadsSectionsAndTypes) {
  const std::string bytes =
      "[Software\\A]\n"
      "StartPath=sz:/home/a, b/c\n"
      "Count=dword:4294967295\n"
      "Blob=binary:00fFa1\n"
      "=sz:default\n"
      "[Software\\A\\B]\n"
      "Empty=sz:\n";
  EXPECT_EQ(ValueIn(bytes, u"Software\\A", u"StartPath"), RegistryValue(u"/home/a, b/c"));
  EXPECT_EQ(ValueIn(bytes, u"Software\\A", u"Count"), RegistryValue(4294967295U));
  EXPECT_EQ(ValueIn(bytes, u"Software\\A", u"Blob"), RegistryValue(std::string("\x00\xFF\xA1", 3)));
  EXPECT_EQ(ValueIn(bytes, u"Software\\A", u""), RegistryValue(u"default"));
  EXPECT_EQ(ValueIn(bytes, u"Software\\A\\B", u"Empty"), RegistryValue(u""));
}

TEST(RegistryText, WritesSectionsInOrder) {
  RegistryTree tree;
  RegistryKey* key = tree.Make(u"Software\\A");
  key->SetValue(u"Text", u"\u00E9, \u65E5");
  key->SetValue(u"Number", 7U);
  key->SetValue(u"Bytes", std::string("\x01\xFE"));
  key->SetValue(u"", u"default");
  tree.Make(u"Software\\A\\B");
  tree.Make(u"Other");
  EXPECT_EQ(WriteRegistryText(tree),
            "[Software\\A]\n"
            "Text=sz:\xC3\xA9, \xE6\x97\xA5\n"
            "Number=dword:7\n"
            "Bytes=binary:01fe\n"
            "=sz:default\n"
            "\n"
            "[Software\\A\\B]\n"
            "\n"
            "[Other]\n");
}

TEST(RegistryText, ReadsWhatAPersonWrites) {
  EXPECT_EQ(ValueIn("\xEF\xBB\xBF[K]\r\nContext=sz:0\r\n", u"k", u"CONTEXT"), RegistryValue(u"0"));
  EXPECT_EQ(ValueIn("[K] \t\nA=sz:1", u"K", u"A"), RegistryValue(u"1"));
  EXPECT_EQ(ValueIn("[K]\nA=sz:1\nB=sz:2\na=sz:3\n", u"K", u"A"), RegistryValue(u"3"));
  EXPECT_EQ(ValueIn("[K]\nA=sz:1\n[L]\n[k]\nB=sz:2\n", u"K", u"B"), RegistryValue(u"2"));
  EXPECT_EQ(ValueOfLine("A=sz: with blanks ", u"A"), RegistryValue(u" with blanks "));
  EXPECT_EQ(ValueOfLine("A=sz:C:\\Music\\d", u"A"), RegistryValue(u"C:\\Music\\d"));
  EXPECT_EQ(ValueOfLine("A=sz:\\u12", u"A"), RegistryValue(u"\\u12"));
  EXPECT_EQ(ValueOfLine("A=sz:\\u00e9\\", u"A"), RegistryValue(u"\u00E9\\"));
  EXPECT_EQ(ValueOfLine("a]b=sz:1=2:3", u"a]b"), RegistryValue(u"1=2:3"));
}

TEST(RegistryText, ADamagedLineCostsThatLine) {
  const char* const lines[] = {
      "no sign at all",
      "=",
      "A=",
      "A=sz",
      "A=SZ:x",
      "A=dword:",
      "A=dword:-1",
      "A=dword:1x",
      "A=dword:1e3",
      "A=dword:4294967296",
      "A=dword: 1",
      "A=binary:0",
      "A=binary:0g",
      "A=qword:1",
      "#A=sz:comment",
      "A\\=sz:x",
      "A=dword:\xFF",
  };
  for (const std::string line : lines) {
    const std::string bytes = "[K]\n" + line + "\nB=sz:good\n";
    EXPECT_EQ(ValueIn(bytes, u"K", u"A"), RegistryValue(u"(none)")) << line;
    EXPECT_EQ(ValueIn(bytes, u"K", u"B"), RegistryValue(u"good")) << line;
    EXPECT_EQ(WriteRegistryText(ReadRegistryText(bytes)), bytes) << line;
  }
}

TEST(RegistryText, ADamagedSectionNameHidesNothingElse) {
  const std::string section = "\nB=sz:lost\n# note\n";
  for (const std::string header : {"[K", "[", "[]", "[\\]", "[K]x", "[K\tL]", "[\xFF]"}) {
    const std::string bytes = "[A]\nB=sz:1\n" + header + section + "[C]\nB=sz:2\n";
    EXPECT_EQ(ValueIn(bytes, u"A", u"B"), RegistryValue(u"1")) << header;
    EXPECT_EQ(ValueIn(bytes, u"C", u"B"), RegistryValue(u"2")) << header;
    // It moves to the end, so that what is above it stays readable, and nothing of it is lost.
    const std::string rewritten = WriteRegistryText(ReadRegistryText(bytes));
    EXPECT_EQ(rewritten, "[A]\nB=sz:1\n\n[C]\nB=sz:2\n\n" + header + section);
    EXPECT_EQ(WriteRegistryText(ReadRegistryText(rewritten)), rewritten) << header;
  }
}

TEST(RegistryText, CommentsAndLinesAboveAllSectionsStay) {
  const std::string bytes =
      "# mine\n"
      "A=sz:of no section\n"
      "\n"
      "[K]\n"
      "# of K\n"
      "A=sz:1\n";
  EXPECT_EQ(WriteRegistryText(ReadRegistryText(bytes)), bytes);
  EXPECT_TRUE(ReadRegistryText(bytes).Root.Values.empty());
}

TEST(RegistryText, MarksAndReturnsAroundALineDontCount) {
  const std::string bytes =
      "[K]\nnonsense\r\r\n\xEF\xBB\xBF\xEF\xBB\xBF"
      "A=sz:1\r\r\n";
  EXPECT_EQ(WriteRegistryText(ReadRegistryText(bytes)), "[K]\nnonsense\nA=sz:1\n");
}

TEST(RegistryText, AKeyWithoutAnythingIsKept) {
  EXPECT_EQ(WriteRegistryText(ReadRegistryText("[A\\B\\C]\n")), "[A\\B\\C]\n");
  EXPECT_EQ(WriteRegistryText(ReadRegistryText("")), "");
}

TEST(RegistryText, TooDeepASectionIsKeptUnread) {
  std::string bytes = "[a";
  for (int level = 0; level < 100000; ++level) {
    bytes += "\\a";
  }
  bytes += "]\nA=sz:1\n";
  const RegistryTree tree = ReadRegistryText(bytes);
  EXPECT_TRUE(tree.Root.Subkeys.empty());
  EXPECT_EQ(WriteRegistryText(tree), bytes);
}

// Names and texts come back exactly, whatever they hold, and the file is always UTF-8.
TEST(RegistryText, AnyNameAndTextComesBack) {
  const Text texts[] = {
      u"",
      u"plain",
      u"a=b",
      u"=",
      u"[a]",
      u"#a",
      u" blanks at both ends ",
      u"back\\slash\\n\\=\\u0041",
      u"\\",
      u"line\r\nbreak\n",
      u"\r",
      u"tab\tbell\a",
      Text(u"n\0ul", 4),
      u"\u00E9\u65E5\U0001F600",
      Text(1, u'\xD83D'),
      Text(u"\xDE00\xD83D"),
      Text(1, u'\xDC80'),
      u"\xDCC3\xDCA9",
      u"\uFEFF",
      u"a:b;c,d|e\"f'g%h$i",
  };
  for (const Text& text : texts) {
    RegistryTree tree;
    RegistryKey* key = tree.Make(u"K");
    key->SetValue(text, Text(text));
    key->SetValue(u"next", u"1");
    const std::string bytes = WriteRegistryText(tree);
    EXPECT_TRUE(IsValidUtf8(bytes));
    EXPECT_EQ(bytes.find('\0'), std::string::npos);
    EXPECT_EQ(ValueIn(bytes, u"K", text), RegistryValue(text)) << bytes;
    EXPECT_EQ(ValueIn(bytes, u"K", u"next"), RegistryValue(u"1")) << bytes;
  }
}

TEST(RegistryText, AnyBytesComeBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    all.push_back(static_cast<char>(byte));
  }
  RegistryTree tree;
  tree.Make(u"K")->SetValue(u"B", all);
  EXPECT_EQ(ValueIn(WriteRegistryText(tree), u"K", u"B"), RegistryValue(all));
}

}  // namespace
}  // namespace vorlane
