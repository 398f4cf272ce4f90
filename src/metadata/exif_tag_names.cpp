#include "metadata/exif_tag_names.h"

#include <algorithm>
#include <array>

namespace vorlane {

namespace {

struct NamedTag {
  std::int32_t Tag;
  TextView Name;
};

constexpr std::array<NamedTag, 54> NamedTags = {{
    {0x010E, u"ImageDescription"},
    {0x010F, u"Make"},
    {0x0110, u"Model"},
    {0x0112, u"Orientation"},
    {0x011A, u"XResolution"},
    {0x011B, u"YResolution"},
    {0x0128, u"ResolutionUnit"},
    {0x0131, u"Software"},
    {0x0132, u"DateTime"},
    {0x013E, u"WhitePoint"},
    {0x013F, u"PrimaryChromaticities"},
    {0x0211, u"YCbCrCoefficients"},
    {0x0213, u"YCbCrPositioning"},
    {0x0214, u"ReferenceBlackWhite"},
    {0x8298, u"Copyright"},
    {0x8769, u"ExifOffset"},
    {0x829A, u"ExposureTime"},
    {0x829D, u"FNumber"},
    {0x8822, u"ExposureProgram"},
    {0x8827, u"ISOSpeedRatings"},
    {0x9000, u"ExifVersion"},
    {0x9003, u"DateTimeOriginal"},
    {0x9004, u"DateTimeDigitized"},
    {0x9101, u"ComponentsConfiguration"},
    {0x9102, u"CompressedBitsPerPixel"},
    {0x9201, u"ShutterSpeedValue"},
    {0x9202, u"ApertureValue"},
    {0x9203, u"BrightnessValue"},
    {0x9204, u"ExposureBiasValue"},
    {0x9205, u"MaxApertureValue"},
    {0x9206, u"SubjectDistance"},
    {0x9207, u"MeteringMode"},
    {0x9208, u"LightSource"},
    {0x9209, u"Flash"},
    {0x920A, u"FocalLength"},
    {0x927C, u"MakerNote"},
    {0x9286, u"UserComment"},
    {0x9290, u"SubsecTime"},
    {0x9291, u"SubsecTimeOriginal"},
    {0x9292, u"SubsecTimeDigitized"},
    {0xA000, u"FlashPixVersion"},
    {0xA001, u"ColorSpace"},
    {0xA002, u"ExifImageWidth"},
    {0xA003, u"ExifImageHeight"},
    {0xA004, u"RelatedSoundFile"},
    {0xA005, u"ExifInteroperabilityOffset"},
    {0xA20E, u"FocalPlaneXResolution"},
    {0xA20F, u"FocalPlaneYResolution"},
    {0xA210, u"FocalPlaneResolutionUnit"},
    {0xA215, u"ExposureIndex"},
    {0xA217, u"SensingMethod"},
    {0xA300, u"FileSource"},
    {0xA301, u"SceneType"},
    {0xA302, u"CFAPattern"},
}};

}  // namespace

std::int32_t GetTagID(TextView name) {
  const auto* const found = std::ranges::find(NamedTags, name, &NamedTag::Name);
  return found == NamedTags.end() ? 0 : found->Tag;
}

Text GetTagName(std::int32_t tag) {
  const auto* const found = std::ranges::find(NamedTags, tag, &NamedTag::Tag);
  return found == NamedTags.end() ? u"Tag #" + DecimalText(tag) : Text(found->Name);
}

}  // namespace vorlane
