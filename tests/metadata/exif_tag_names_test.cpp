#include "metadata/exif_tag_names.h"

#include <gtest/gtest.h>

#include <set>

namespace vorlane {
namespace {

struct NamedTag {
  std::int32_t Tag;
  Text Name;
};

const NamedTag Table[] = {
    {270, u"ImageDescription"},
    {271, u"Make"},
    {272, u"Model"},
    {274, u"Orientation"},
    {282, u"XResolution"},
    {283, u"YResolution"},
    {296, u"ResolutionUnit"},
    {305, u"Software"},
    {306, u"DateTime"},
    {318, u"WhitePoint"},
    {319, u"PrimaryChromaticities"},
    {529, u"YCbCrCoefficients"},
    {531, u"YCbCrPositioning"},
    {532, u"ReferenceBlackWhite"},
    {33432, u"Copyright"},
    {34665, u"ExifOffset"},
    {33434, u"ExposureTime"},
    {33437, u"FNumber"},
    {34850, u"ExposureProgram"},
    {34855, u"ISOSpeedRatings"},
    {36864, u"ExifVersion"},
    {36867, u"DateTimeOriginal"},
    {36868, u"DateTimeDigitized"},
    {37121, u"ComponentsConfiguration"},
    {37122, u"CompressedBitsPerPixel"},
    {37377, u"ShutterSpeedValue"},
    {37378, u"ApertureValue"},
    {37379, u"BrightnessValue"},
    {37380, u"ExposureBiasValue"},
    {37381, u"MaxApertureValue"},
    {37382, u"SubjectDistance"},
    {37383, u"MeteringMode"},
    {37384, u"LightSource"},
    {37385, u"Flash"},
    {37386, u"FocalLength"},
    {37500, u"MakerNote"},
    {37510, u"UserComment"},
    {37520, u"SubsecTime"},
    {37521, u"SubsecTimeOriginal"},
    {37522, u"SubsecTimeDigitized"},
    {40960, u"FlashPixVersion"},
    {40961, u"ColorSpace"},
    {40962, u"ExifImageWidth"},
    {40963, u"ExifImageHeight"},
    {40964, u"RelatedSoundFile"},
    {40965, u"ExifInteroperabilityOffset"},
    {41486, u"FocalPlaneXResolution"},
    {41487, u"FocalPlaneYResolution"},
    {41488, u"FocalPlaneResolutionUnit"},
    {41493, u"ExposureIndex"},
    {41495, u"SensingMethod"},
    {41728, u"FileSource"},
    {41729, u"SceneType"},
    {41730, u"CFAPattern"},
};

TEST(ExifTagNames, EachRowOfTheTableInBothDirections) {
  std::set<Text> names;
  for (const NamedTag& row : Table) {
    EXPECT_EQ(GetTagName(row.Tag), row.Name) << row.Tag;
    EXPECT_EQ(GetTagID(row.Name), row.Tag) << row.Tag;
    names.insert(row.Name);
  }
  EXPECT_EQ(names.size(), 54U);
}

TEST(ExifTagNames, NoOtherNumberHasAName) {
  std::set<std::int32_t> named;
  for (const NamedTag& row : Table) {
    named.insert(row.Tag);
  }
  for (std::int32_t tag = 0; tag <= 0xFFFF; ++tag) {
    if (!named.contains(tag)) {
      ASSERT_EQ(GetTagName(tag), u"Tag #" + DecimalText(tag));
    }
  }
  EXPECT_EQ(GetTagName(254), u"Tag #254");
  EXPECT_EQ(GetTagName(-1), u"Tag #-1");
}

TEST(ExifTagNames, NamesAreComparedExactly) {
  for (const TextView name : {u"make", u"MAKE", u" Make", u"Make ", u"Mak", u"", u"Tag #254"}) {
    EXPECT_EQ(GetTagID(name), 0);
  }
  EXPECT_EQ(GetTagID(TextView(u"Make\0", 5)), 0);
}

}  // namespace
}  // namespace vorlane
