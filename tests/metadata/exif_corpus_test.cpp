// The files of tests/data/exif, which tools/make_exif_corpus.py makes, read from the disk.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "metadata/exif.h"
#include "platform/failure.h"
#include "platform/posix_file_system.h"
#include "support/corpus.h"

namespace vorlane {
namespace {

constexpr TextView NotExif = u"File is not in EXIF format.";

// Entries that a directory of this many gets by claiming it, or by being the header of a block.
constexpr std::size_t IntelHeader = 0x4949;
constexpr std::size_t MotorolaHeader = 0x4D4D;

struct Expected {
  std::string File;
  std::size_t Entries = 0;
  TextView List;  // as ListInfo gives it, but with LF alone; for thousands of entries its start
  TextView ImageDate;  // of no other file than those that have one
};

constexpr TextView Camera =
    u"Make: Abc\nModel: Box camera 2\nOrientation: 6\nXResolution: 72.0\n"
    u"DateTime: 2005/01/02 03:04:05\nExifOffset: 127\n"
    u"ExposureTime: 250\nFNumber: 2.8\nExifVersion: 2.20\n"
    u"DateTimeOriginal: 2004/05/06 12:34:56\nDateTimeDigitized: 2004/05/06 12:34:57\n"
    u"ComponentsConfiguration: YCbCr\nShutterSpeedValue: 256\nApertureValue: 2.8\n"
    u"ExposureBiasValue: -715827882.7\nMakerNote: Note 7\nUserComment: ASCIIFrom above\n"
    u"ColorSpace: 1\nFileSource: 3\nSceneType: 1\nTag #254: 70000\n";

// Behind the end there are NULs: denominators of 0, which leave the offsets 313, 321 and 369 as
// values, and entries of nothing.
constexpr TextView CutCamera =
    u"Make: Abc\nModel: Box camera 2\nOrientation: 6\nXResolution: 72.0\n"
    u"DateTime: 2005/01/02 03:04:05\nExifOffset: 127\n"
    u"ExposureTime: 0\nFNumber: 321.0\nExifVersion: 2.20\n"
    u"DateTimeOriginal: \nDateTimeDigitized: \n"
    u"ComponentsConfiguration: YCbCr\nShutterSpeedValue: "
    u"12024538023802026126794140655561405580163494"
    u"65041059773802132977424491020858679523053413887173001575952350707712\nApertureValue: \n"
    u"Tag #0: 0\nTag #0: 0\nTag #0: 0\nTag #0: 0\nTag #0: 0\nTag #0: 0\nTag #0: 0\n";

const std::vector<Expected> Files = {
    {"camera-little-endian.jpg", 21, Camera, u"2004/05/06 12:34:56"},
    {"camera-big-endian.jpg", 21, Camera, u"2004/05/06 12:34:56"},
    {"one-byte.jpg", 0, NotExif, {}},
    {"no-exif.jpg", 0, NotExif, {}},
    {"marker-in-lower-case.jpg", 0, NotExif, {}},
    {"marker-without-nul.jpg", 0, NotExif, {}},
    {"marker-as-last-bytes.jpg", 0, u"", {}},
    {"marker-behind-the-head.jpg", 0, NotExif, {}},
    {"first-directory-behind-the-head.jpg", IntelHeader, u"Tag #42: \nTag #0: 0\n", {}},
    {"entry-cut-by-the-head.jpg", 2 + IntelHeader, u"Make: \nTag #0: 0\n", {}},
    {"not-a-jpeg.txt", 2, u"Make: Abc\nExifOffset: 38\n", {}},
    {"order-unknown.jpg", 2, u"Make: Abc\nExifOffset: 38\n", {}},
    {"number-42-missing.jpg", 2, u"Make: Abc\nExifOffset: 38\n", {}},
    {"no-exif-offset.jpg", 1 + IntelHeader, u"Make: Abc\nTag #42: \n", {}},
    {"exif-offset-zero.jpg", 2 + MotorolaHeader, u"Make: Abc\nExifOffset: 0\nTag #42: 0\n", {}},
    {"exif-offset-to-itself.jpg", 4, u"Make: Abc\nExifOffset: 8\nMake: Abc\nExifOffset: 8\n", {}},
    {"exif-offset-far-away.jpg", 2, u"Make: Abc\nExifOffset: 4294967295\n", {}},
    {"exif-offset-of-an-unknown-format.jpg",
     2 + IntelHeader,
     u"Make: Abc\nExifOffset: \nTag #42: \n",
     {}},
    {"first-offset-far-away.jpg", IntelHeader, u"Tag #42: ", {}},
    {"more-entries-claimed-than-there-are.jpg", 65535, u"Make: Abc\nExifOffset: 38\n", {}},
    {"cut-in-the-exif-directory.jpg", 21, CutCamera, u"2005/01/02 03:04:05"},
    {"interoperability-directory-isnt-read.jpg",
     3,
     u"Make: Abc\nExifOffset: 38\nExifInteroperabilityOffset: 8\n",
     {}},
    {"value-behind-the-head.jpg", 3, u"Make: \nModel: Yes\nExifOffset: 50\n", {}},
    {"value-far-away.jpg", 3, u"Make: \nModel: Yes\nExifOffset: 50\n", {}},
    {"value-cut-by-the-head.jpg", 3, u"Make: xxx\nModel: Yes\nExifOffset: 50\n", {}},
    {"value-behind-a-short-file.jpg", 3, u"Make: \nFNumber: 2000.0\nExifOffset: 50\n", {}},
    {"count-over-31-bits.jpg", 2, u"Make: Abcd\nExifOffset: 38\n", {}},
    {"length-over-31-bits.jpg", 3, u"FNumber: \nModel: Yes\nExifOffset: 50\n", {}},
    {"formats-13-and-65535.jpg", 4, u"Make: \nModel: \nSoftware: Yes\nExifOffset: 62\n", {}},
    {"exposure-time-zero.jpg", 3, u"ExifOffset: 26\nExposureTime: \nModel: Yes\n", {}},
    {"denominators-zero.jpg",
     5,
     u"XResolution: 38.0\nExifOffset: 46\nExposureTime: 0\nFNumber: 96.0\n"
     u"BrightnessValue: -2147483648/0\n",
     {}},
    {"powers-past-any-number.jpg",
     3,
     u"ExifOffset: 26\nApertureValue: \nShutterSpeedValue: \n",
     {}},
    {"rationals-in-an-array.jpg", 3, u"WhitePoint: \nModel: Yes\nExifOffset: 66\n", {}},
    {"signed-numbers.jpg",
     5,
     u"Tag #301: -128\nTag #302: -32767\nTag #303: -2147483648\nTag #304: -1\nExifOffset: 74\n",
     {}},
    {"float-and-double.jpg",
     3,
     u"Tag #301: 1065353216\nTag #302: 4607182418800017408\nExifOffset: 58\n",
     {}},
    {"components-out-of-range.jpg", 2, u"ExifOffset: 26\nComponentsConfiguration: \n", {}},
    {"text-with-nuls-inside.jpg", 2, u"Make: Abc\nExifOffset: 46\n", {}},
    {"text-of-the-code-page.jpg", 2, u"Make: Café € \x81\nExifOffset: 47\n", {}},
    {"original-date-zero.jpg", 4,
     u"DateTime: 2005/01/02 03:04:05\nExifOffset: 58\nDateTimeOriginal: 0000/00/00 00:00:00\n"
     u"DateTimeDigitized: 2004/05/06 12:34:57\n",
     u"2004/05/06 12:34:57"},
    {"original-and-digitized-date-unusable.jpg", 4,
     u"DateTime: 2005/01/02 03:04:05\nExifOffset: 58\nDateTimeOriginal:     /  /     :  :  \n"
     u"DateTimeDigitized: soon\n",
     u"2005/01/02 03:04:05"},
    {"no-usable-date.jpg", 4,
     u"DateTime: unknown\nExifOffset: 46\nDateTimeOriginal: \n"
     u"DateTimeDigitized: 0000/00/00 00:00:00\n",
     u"unknown"},
    {"marker-twice.jpg", 2, u"Make: One\nExifOffset: 38\n", {}},
    {"empty-first-directory.jpg", IntelHeader, u"Tag #42: ", {}},
};

// What the reader refuses to look at.
const std::map<std::string, Text> Refused = {
    {"no-bytes.jpg", u"File not found."},
    {"marker-so-late-that-the-offset-is-cut.jpg", u"Invalid procedure call or argument"},
};

std::string FolderPath() {
  return VORLANE_TEST_DATA "/exif/";
}

Text PathOf(const std::string& file) {
  return AsciiText(FolderPath() + file);
}

TEST(ExifCorpus, EveryFileIsInATable) {
  std::vector<std::string> known;
  for (const Expected& expected : Files) {
    known.push_back(expected.File);
  }
  for (const auto& [file, description] : Refused) {
    known.push_back(file);
  }
  std::sort(known.begin(), known.end());
  std::vector<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(FolderPath())) {
    found.push_back(entry.path().filename().string());
  }
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, known);
}

TEST(ExifCorpus, IsWhatItsScriptMakes) {
  EXPECT_TRUE(MadeBy("make_exif_corpus.py") == BytesOf(VORLANE_TEST_DATA "/exif"));
}

TEST(ExifCorpus, EachFileIsListedAsTold) {
  PosixFileSystem files;
  for (const Expected& expected : Files) {
    clsEXIF reader(files);
    reader.SetImageFile(PathOf(expected.File));
    Text list = reader.ListInfo();
    ReplaceAll(list, u"\r\n", u"\n");
    EXPECT_EQ(reader.Tags().size(), expected.Entries) << expected.File;
    if (expected.Entries < 10000) {
      EXPECT_EQ(list, expected.List) << expected.File;
    } else {
      EXPECT_EQ(list.substr(0, expected.List.size()), expected.List) << expected.File;
    }
    EXPECT_EQ(ImageDateOf(files, PathOf(expected.File)), expected.ImageDate) << expected.File;
  }
}

TEST(ExifCorpus, RefusedFilesAreFailures) {
  PosixFileSystem files;
  for (const auto& [file, description] : Refused) {
    try {
      ExifValue(files, PathOf(file), 271);
      ADD_FAILURE() << file;
    } catch (const RunError& error) {
      EXPECT_EQ(error.Number(), 1) << file;
      EXPECT_EQ(error.Description(), description) << file;
    }
  }
}

}  // namespace
}  // namespace vorlane
