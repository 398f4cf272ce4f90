#include "metadata/replace_frame.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using id3::Byte;
using id3::Frame;
using id3::Nuls;
using id3::RawFrame;

// A header without NULs, so that every run of them belongs to the test.
const std::string Head = "ID3xxxxxxx";

std::string Replaced(std::string tag, std::string_view id, std::string_view text) {
  std::string& result = ReplaceFrame(tag, id, text);
  EXPECT_EQ(&result, &tag);
  return tag;
}

int ErrorOf(std::string tag, std::string_view id, std::string_view text) {
  const std::string before = tag;
  try {
    ReplaceFrame(tag, id, text);
    return 0;
  } catch (const RunError& error) {
    EXPECT_EQ(tag, before);
    return error.Number();
  }
}

TEST(ReplaceFrame, FoundFrameGrowsOrShrinksWithItsText) {
  struct Case {
    std::string Old;
    std::string New;
  };
  const Case cases[] = {{"abc", "xyz"}, {"abc", "longer text"},         {"abc", ""}, {"", "x"},
                        {"", ""},       {"abc", std::string("a\0b", 3)}};
  for (const Case& c : cases) {
    EXPECT_EQ(Replaced(Head + "junk" + Frame("TPE1", c.Old) + "behind", "TPE1", c.New),
              Head + "junk" + Frame("TPE1", c.New) + "behind");
  }
}

TEST(ReplaceFrame, FlagsAndEncodingBecomeNuls) {
  EXPECT_EQ(Replaced(Head +
                         RawFrame("TIT2", 7,
                                  std::string("\xFF\xFE"
                                              "A\0B\0",
                                              6),
                                  "\x40\x20\x01") +
                         "behind",
                     "TIT2", "AB"),
            Head + RawFrame("TIT2", 3, "AB") + "behind");
}

TEST(ReplaceFrame, SizeByteZeroKeepsTheEncodingByteBehindTheText) {
  EXPECT_EQ(Replaced(Head + RawFrame("TPE1", 0, "abc", "\x01\x02\x03"), "TPE1", "x"),
            Head + RawFrame("TPE1", 2, "x") +
                "\x03"
                "abc");
}

TEST(ReplaceFrame, OldTextThatReachesPastTheTag) {
  EXPECT_EQ(Replaced(Head + RawFrame("TPE1", 200, "abc"), "TPE1", "x"),
            Head + RawFrame("TPE1", 2, "x"));
  EXPECT_EQ(Replaced(Head + "TPE1" + Nuls(3) + Byte(1), "TPE1", "x"),
            Head + RawFrame("TPE1", 2, "x"));
}

TEST(ReplaceFrame, FirstOfTwoIsReplaced) {
  EXPECT_EQ(Replaced(Head + Frame("TPE1", "a") + Frame("TPE1", "b"), "TPE1", "c"),
            Head + Frame("TPE1", "c") + Frame("TPE1", "b"));
}

TEST(ReplaceFrame, SearchBeginsBehindTheHeader) {
  const std::string tag = "ID3xxxTPE1" + Nuls(3) + Byte(3) + Nuls(3) + "ab";
  EXPECT_EQ(Replaced(tag, "TPE1", "c"), tag);
}

TEST(ReplaceFrame, NewFrameGoesIntoTheFirstRunOfNulsWithRoom) {
  EXPECT_EQ(Replaced(Head + "a" + Nuls(13) + "b" + Nuls(14) + "c" + Nuls(30), "TPE1", "xyz"),
            Head + "a" + Nuls(13) + "b" + Frame("TPE1", "xyz") + "c" + Nuls(30));
  // A run that is longer is used from its start, whatever it belongs to.
  EXPECT_EQ(Replaced(Head + Nuls(20), "TPE1", "xyz"), Head + Frame("TPE1", "xyz") + Nuls(6));
  EXPECT_EQ(Replaced(Head + Nuls(11), "TPE1", ""), Head + Frame("TPE1", ""));
}

TEST(ReplaceFrame, NulsOfTheHeaderAreNoRoom) {
  EXPECT_EQ(Replaced("ID3" + Nuls(7) + Nuls(11) + "x", "TPE1", "a"), "ID3" + Nuls(18) + "x");
  EXPECT_EQ(Replaced("ID3" + Nuls(7) + Nuls(12) + "x", "TPE1", "a"),
            "ID3" + Nuls(7) + Frame("TPE1", "a") + "x");
}

TEST(ReplaceFrame, WithoutRoomNothingChanges) {
  for (const std::string& tag : {Head, Head + Nuls(13), Head + "abc", std::string("ID3")}) {
    EXPECT_EQ(Replaced(tag, "TPE1", "xyz"), tag);
  }
}

TEST(ReplaceFrame, TextOf254IsTheLongest) {
  const std::string longest(254, 'x');
  const std::string tooLong(255, 'x');
  const std::string present = Head + Frame("TPE1", "a") + "behind";
  EXPECT_EQ(Replaced(present, "TPE1", longest), Head + RawFrame("TPE1", 255, longest) + "behind");
  EXPECT_EQ(ErrorOf(present, "TPE1", tooLong), 5);
  EXPECT_EQ(Replaced(Head + Nuls(265), "TPE1", longest), Head + RawFrame("TPE1", 255, longest));
  EXPECT_EQ(ErrorOf(Head + Nuls(266), "TPE1", tooLong), 5);
  // No room, no error.
  EXPECT_EQ(ErrorOf(Head + Nuls(265), "TPE1", tooLong), 0);
}

TEST(ReplaceFrame, FrameWithoutASizeByteIsAnError) {
  EXPECT_EQ(ErrorOf(Head + "TPE1" + Nuls(3), "TPE1", "a"), 5);
}

TEST(ReplaceFrame, FrameOf256BytesStaysInFrontOfTheNewOne) {
  const std::string large = "TPE1" + std::string("\0\0\x01\0", 4) + Nuls(3) + std::string(255, 'a');
  EXPECT_EQ(Replaced(Head + large + Nuls(20), "TPE1", "new"),
            Head + large + Frame("TPE1", "new") + Nuls(6));
}

}  // namespace
}  // namespace vorlane
