#include "metadata/exif.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

#include "platform/failure.h"
#include "platform/posix_file_system.h"
#include "support/exif_builder.h"
#include "support/memory_file_system.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr int Ascii = 2;
constexpr int Short = 3;
constexpr int Long = 4;
constexpr int Rational = 5;

constexpr TextView Path = u"/pictures/one.jpg";

const std::vector<Text> HeadRead = {u"Open /pictures/one.jpg", u"ReadAt /pictures/one.jpg"};

class ExifTest : public testing::Test {
 protected:
  void Write(std::string_view bytes) {
    files_.Write(Path, bytes);
    files_.ForgetCalls();
  }

  clsEXIF Reader() {
    clsEXIF reader(files_);
    reader.SetImageFile(Path);
    return reader;
  }

  // The number of the error with which the assignment fails, 0 for none.
  int AssignmentError() {
    try {
      Reader();
      return 0;
    } catch (const RunError& error) {
      return error.Number();
    }
  }

  MemoryFileSystem files_;
};

ExifBuilder Picture() {
  const ExifBuilder b;
  return ExifBuilder()
      .Add(271, Ascii, 4, "Abc")
      .AddExif(0x829D, Rational, 1, b.Rational(28, 10))
      .AddExif(254, Short, 1, b.Short(7));
}

TEST_F(ExifTest, ReadsAnImage) {
  Write(Picture().Jpeg());
  const clsEXIF reader = Reader();
  EXPECT_EQ(reader.ImageFile(), Path);
  EXPECT_EQ(reader.ReadStatus(), ExifReadStatus::Read);
  EXPECT_TRUE(reader.IntelByteAlignment());
  EXPECT_EQ(reader.Tags().size(), 4U);
  EXPECT_EQ(reader.ListInfo(), u"Make: Abc\r\nExifOffset: 38\r\nFNumber: 2.8\r\nTag #254: 7\r\n");
}

TEST_F(ExifTest, StatusesHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(ExifReadStatus::Read), 0);
  EXPECT_EQ(static_cast<int>(ExifReadStatus::NotExif), 1);
  EXPECT_EQ(static_cast<int>(ExifReadStatus::CouldNotOpen), 2);
}

TEST_F(ExifTest, ListInfoByStatus) {
  EXPECT_EQ(ListInfo(ExifReadStatus::Read, {}), u"");
  EXPECT_EQ(ListInfo(ExifReadStatus::Read, {ExifTag()}), u": \r\n");
  EXPECT_EQ(ListInfo(ExifReadStatus::NotExif, {ExifTag()}), u"File is not in EXIF format.");
  EXPECT_EQ(ListInfo(ExifReadStatus::CouldNotOpen, {ExifTag()}), u"Could not open the file.");
}

TEST_F(ExifTest, ListInfoHasALineForEachOfManyEqualEntries) {
  Write(ExifBuilder().ClaimEntries(1000).Marked());
  const clsEXIF reader = Reader();
  EXPECT_EQ(reader.Tags().size(), 1000U + 0x4949U);
  const Text list = reader.ListInfo();
  EXPECT_EQ(std::count(list.begin(), list.end(), u'\n'), 1000 + 0x4949);
  EXPECT_TRUE(list.ends_with(u"\r\nTag #0: 0\r\nTag #0: 0\r\n"));
}

TEST_F(ExifTest, ANewReaderKnowsNothing) {
  const clsEXIF reader(files_);
  Text text = u"before";
  EXPECT_EQ(reader.MetaInfo(0, text), 0);
  EXPECT_EQ(text, u"");
  EXPECT_EQ(reader.ImageFile(), u"");
  EXPECT_EQ(reader.ListInfo(), u"");
}

TEST_F(ExifTest, KnowsTheNamesOfTags) {
  EXPECT_EQ(clsEXIF::GetTagID(u"Make"), 271);
  EXPECT_EQ(clsEXIF::GetTagID(u"make"), 0);
  EXPECT_EQ(clsEXIF::GetTagName(271), u"Make");
  EXPECT_EQ(clsEXIF::GetTagName(254), u"Tag #254");
}

TEST_F(ExifTest, ReadsTheHeadOnce) {
  Write(Picture().Jpeg() + std::string(100000, 'x'));
  const clsEXIF reader = Reader();
  Text text;
  reader.MetaInfo(271, text);
  reader.ListInfo();
  EXPECT_EQ(files_.Calls, HeadRead);
}

TEST_F(ExifTest, BlocksBehindTheHeadDontCount) {
  const std::string block = Picture().Marked();
  Write(std::string(4096, ' ') + block);
  EXPECT_EQ(Reader().ReadStatus(), ExifReadStatus::NotExif);
  Write(std::string(4096 - block.size(), ' ') + block);
  EXPECT_EQ(Reader().TextOf(254), u"7");
}

TEST_F(ExifTest, FilesOfAnyOtherKindAreNotExif) {
  for (const std::string_view bytes : {"x"sv, "ID3\x03"sv, "\xFF\xD8\xFF\xE0\0\x10JFIF\0"sv}) {
    Write(bytes);
    const clsEXIF reader = Reader();
    EXPECT_EQ(reader.ReadStatus(), ExifReadStatus::NotExif);
    EXPECT_EQ(reader.ListInfo(), u"File is not in EXIF format.");
    Text text = u"before";
    EXPECT_EQ(reader.MetaInfo(271, text), 0);
    EXPECT_EQ(text, u"");
  }
}

TEST_F(ExifTest, AnEmptyFileIsAFailure) {
  Write("");
  clsEXIF reader(files_);
  try {
    reader.SetImageFile(Path);
    FAIL() << "no failure";
  } catch (const RunError& error) {
    EXPECT_EQ(error.Number(), 1);
    EXPECT_EQ(error.Description(), u"File not found.");
  }
  EXPECT_EQ(reader.ImageFile(), Path);
  EXPECT_EQ(reader.ReadStatus(), ExifReadStatus::Read);
}

TEST_F(ExifTest, AnEmptyFileThatCantBeOpenedIsAFailureToo) {
  Write("");
  files_.SetUnreadable(Path);
  EXPECT_EQ(AssignmentError(), 1);
}

TEST_F(ExifTest, WhatCantBeOpenedIsNotExif) {
  EXPECT_EQ(Reader().ReadStatus(), ExifReadStatus::NotExif);  // nothing there
  files_.MakeFolder(u"/pictures/folder.jpg");
  files_.MakeOther(u"/pictures/pipe.jpg");
  for (const TextView path : {u"", u"/", u"/pictures/folder.jpg", u"/pictures/pipe.jpg"}) {
    clsEXIF reader(files_);
    reader.SetImageFile(path);
    EXPECT_EQ(reader.ReadStatus(), ExifReadStatus::NotExif);
  }
  Write(Picture().Jpeg());
  files_.SetUnreadable(Path);
  EXPECT_EQ(Reader().ReadStatus(), ExifReadStatus::NotExif);
  EXPECT_FALSE(files_.Exists(u"/pictures/two.jpg"));
}

TEST_F(ExifTest, AFailureOfAnyCallLeavesTheFileNotExif) {
  Write(Picture().Jpeg());
  for (std::size_t call = 1; call <= HeadRead.size(); ++call) {
    files_.ForgetCalls();
    files_.Failure = FailurePlan{.At = call};
    EXPECT_EQ(Reader().ReadStatus(), ExifReadStatus::NotExif) << call;
  }
}

TEST_F(ExifTest, HiddenAndReadOnlyFilesAreRead) {
  files_.Write(u"/pictures/.hidden", Picture().Jpeg());
  files_.SetReadOnly(u"/pictures/.hidden");
  EXPECT_EQ(ExifValue(files_, u"/pictures/.hidden", 271), u"Abc");
}

TEST_F(ExifTest, ASecondFileTakesThePlaceOfTheFirst) {
  Write(Picture().Jpeg());
  files_.Write(u"/other", ExifBuilder("MM").AddExif(272, Ascii, 4, "Def").Marked());
  files_.Write(u"/text", "no picture");
  files_.Write(u"/empty");
  clsEXIF reader = Reader();
  reader.SetImageFile(Path);
  EXPECT_EQ(reader.Tags().size(), 4U);
  reader.SetImageFile(u"/other");
  EXPECT_EQ(reader.ImageFile(), u"/other");
  EXPECT_EQ(reader.ListInfo(), u"ExifOffset: 26\r\nModel: Def\r\n");
  EXPECT_FALSE(reader.IntelByteAlignment());
  EXPECT_THROW(reader.SetImageFile(u"/empty"), RunError);
  EXPECT_EQ(reader.ReadStatus(), ExifReadStatus::Read);
  EXPECT_EQ(reader.TextOf(272), u"Def");
  reader.SetImageFile(u"/text");
  EXPECT_EQ(reader.ReadStatus(), ExifReadStatus::NotExif);
  EXPECT_EQ(reader.TextOf(272), u"");
  EXPECT_TRUE(reader.Tags().empty());
  EXPECT_THROW(reader.SetImageFile(u"/empty"), RunError);
  EXPECT_EQ(reader.ReadStatus(), ExifReadStatus::NotExif);
}

TEST_F(ExifTest, MetaInfoTakesTheFirstEntryWithThatNumber) {
  Write(ExifBuilder()
            .Add(271, Ascii, 4, "One")
            .Add(271, Ascii, 4, "Two")
            .AddExif(271, Ascii, 4, "3")
            .Jpeg());
  Text text;
  EXPECT_EQ(Reader().MetaInfo(271, text), 0x00656E4F);
  EXPECT_EQ(text, u"One");
}

TEST_F(ExifTest, MetaInfoOfAnAbsentTagIsEmptyAndZero) {
  Write(Picture().Jpeg());
  for (const std::int32_t tag : {272, 0, -1, 65536 + 271}) {
    Text text = u"before";
    EXPECT_EQ(Reader().MetaInfo(tag, text), 0) << tag;
    EXPECT_EQ(text, u"") << tag;
  }
}

TEST_F(ExifTest, MetaInfoGivesTheValueAsAWholeNumber) {
  const ExifBuilder b;
  const struct {
    int Format;
    std::string Value;
    std::int32_t Result;
  } rows[] = {
      {Short, b.Short(7), 7},
      {Long, b.Long(0x7FFFFFFF), 0x7FFFFFFF},
      {Rational, b.Rational(28, 10), 3},
      {Rational, b.Rational(5, 2), 2},
      {Rational, b.Rational(7, 2), 4},
      {Rational, b.Rational(1, 2), 0},
      {10, b.Rational(-1, 2), -1073741824},
      {10, b.Rational(-1, 1), -2147483647 - 1},
  };
  for (const auto& row : rows) {
    Write(ExifBuilder().Add(0x829D, row.Format, 1, row.Value).Marked());
    Text text;
    EXPECT_EQ(Reader().MetaInfo(0x829D, text), row.Result);
    EXPECT_FALSE(text.empty());
  }
}

TEST_F(ExifTest, MetaInfoOfALargeValueGivesTheTextAndOverflows) {
  const ExifBuilder b;
  Write(ExifBuilder().Add(271, Long, 1, b.Long(0x80000000)).Marked());
  Text text;
  try {
    Reader().MetaInfo(271, text);
    FAIL() << "no failure";
  } catch (const RunError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
  EXPECT_EQ(text, u"2147483648");
  EXPECT_EQ(ExifValue(files_, Path, 271), u"2147483648");
}

TEST_F(ExifTest, ExifValueIsTheTextOfTheTag) {
  Write(Picture().Jpeg());
  EXPECT_EQ(ExifValue(files_, Path, 271), u"Abc");
  EXPECT_EQ(files_.Calls, HeadRead);
  EXPECT_EQ(ExifValue(files_, Path, 272), u"");
  Write("no picture");
  EXPECT_EQ(ExifValue(files_, Path, 271), u"");
  EXPECT_EQ(ExifValue(files_, u"/missing", 271), u"");
  Write("");
  EXPECT_THROW(ExifValue(files_, Path, 271), RunError);
}

TEST_F(ExifTest, ExifValueByNameLooksUpTheNameFirst) {
  Write(Picture().Jpeg());
  EXPECT_EQ(ExifValueByName(files_, Path, u"FNumber"), u"2.8");
  EXPECT_EQ(files_.Calls, HeadRead);
  files_.ForgetCalls();
  for (const TextView name : {u"", u"fnumber", u"Tag #254", u"FNumber "}) {
    EXPECT_EQ(ExifValueByName(files_, Path, name), u"");
  }
  EXPECT_TRUE(files_.Calls.empty());
  Write("");
  EXPECT_EQ(ExifValueByName(files_, Path, u"Nothing"), u"");
  EXPECT_THROW(ExifValueByName(files_, Path, u"Make"), RunError);
}

TEST(ExifLookups, ImageDateIsTheFirstOfThreeThatIsADate) {
  const struct {
    TextView Original;
    TextView Digitized;
    TextView Changed;
    TextView Result;
  } rows[] = {
      {u"2001/01/01 01:01:01", u"2002/02/02 02:02:02", u"2003/03/03", u"2001/01/01 01:01:01"},
      {u"", u"2002/02/02 02:02:02", u"2003/03/03", u"2002/02/02 02:02:02"},
      {u"0000/00/00 00:00:00", u"2002/02/02 02:02:02", u"", u"2002/02/02 02:02:02"},
      {u"nonsense", u"", u"2003/03/03", u"2003/03/03"},
      {u"    /  /     :  :  ", u"2002:02:02 02:02:02", u"2003/03/03", u"2003/03/03"},
      {u"2004/13/45 10:00:00", u"2004/02/30", u"2003/03/03", u"2003/03/03"},
      {u"nonsense", u"0000/00/00 00:00:00", u"no date", u"no date"},
      {u"nonsense", u"more", u"", u""},
      {u"", u"", u"", u""},
  };
  for (const auto& row : rows) {
    const std::map<std::int32_t, TextView> texts = {
        {0x9003, row.Original}, {0x9004, row.Digitized}, {0x0132, row.Changed}};
    EXPECT_EQ(ImageDateOf([&](std::int32_t tag) { return Text(texts.at(tag)); }), row.Result);
  }
}

TEST(ExifLookups, ImageDateAsksNoFurtherThanNeeded) {
  std::vector<std::int32_t> asked;
  ImageDateOf([&](std::int32_t tag) {
    asked.push_back(tag);
    return Text(u"2001/01/01");
  });
  EXPECT_EQ(asked, (std::vector<std::int32_t>{0x9003}));
  asked.clear();
  ImageDateOf([&](std::int32_t tag) {
    asked.push_back(tag);
    return Text();
  });
  EXPECT_EQ(asked, (std::vector<std::int32_t>{0x9003, 0x9004, 0x0132}));
}

TEST(ExifLookups, ExifValueByNameOfATable) {
  const ExifLookup number = [](std::int32_t tag) { return DecimalText(tag); };
  EXPECT_EQ(ExifValueByName(number, u"Make"), u"271");
  EXPECT_EQ(ExifValueByName(number, u"SceneType"), u"41729");
  EXPECT_EQ(ExifValueByName(number, u"Nothing"), u"");
}

TEST_F(ExifTest, ImageDateOfAFile) {
  const auto picture = [](std::string_view original, std::string_view changed) {
    return ExifBuilder("MM")
        .Add(0x0132, Ascii, static_cast<std::uint32_t>(changed.size()), changed)
        .AddExif(0x9003, Ascii, static_cast<std::uint32_t>(original.size()), original)
        .Jpeg();
  };
  Write(picture("2004:05:06 12:34:56\0"sv, "2005:01:01 00:00:00\0"sv));
  EXPECT_EQ(ImageDateOf(files_, Path), u"2004/05/06 12:34:56");
  EXPECT_EQ(files_.Calls, HeadRead);
  Write(picture("0000:00:00 00:00:00\0"sv, "2005:01:01 00:00:00\0"sv));
  EXPECT_EQ(ImageDateOf(files_, Path), u"2005/01/01 00:00:00");
  Write(picture("0000:00:00 00:00:00\0"sv, "0000:00:00 00:00:00\0"sv));
  EXPECT_EQ(ImageDateOf(files_, Path), u"0000/00/00 00:00:00");
  Write("no picture");
  EXPECT_EQ(ImageDateOf(files_, Path), u"");
  EXPECT_EQ(ImageDateOf(files_, u"/missing"), u"");
  Write("");
  EXPECT_THROW(ImageDateOf(files_, Path), RunError);
}

TEST(ExifOnDisk, ReadsWithoutChangingTheFile) {
  const TemporaryFolder folder;
  const std::string jpeg = Picture().Jpeg() + std::string(10000, 'x');
  folder.Write("one.jpg", jpeg);
  folder.Write("empty.jpg");
  PosixFileSystem files;
  EXPECT_EQ(ExifValue(files, folder.TextPath() + u"one.jpg", 271), u"Abc");
  EXPECT_EQ(ExifValueByName(files, folder.TextPath() + u"one.jpg", u"FNumber"), u"2.8");
  EXPECT_THROW(ExifValue(files, folder.TextPath() + u"empty.jpg", 271), RunError);
  EXPECT_EQ(ExifValue(files, folder.TextPath() + u"missing.jpg", 271), u"");
  EXPECT_EQ(ExifValue(files, folder.TextPath(), 271), u"");
  EXPECT_EQ(folder.Contents(),
            (std::map<std::string, std::string>{{"empty.jpg", ""}, {"one.jpg", jpeg}}));
}

}  // namespace
}  // namespace vorlane
