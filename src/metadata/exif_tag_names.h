// The EXIF tags that have a name.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// The tags that the rules treat in a way of their own.
namespace exif_tag {
inline constexpr std::int32_t Make = 0x010F;
inline constexpr std::int32_t XResolution = 0x011A;
inline constexpr std::int32_t YResolution = 0x011B;
inline constexpr std::int32_t DateTime = 0x0132;
inline constexpr std::int32_t ExifOffset = 0x8769;
inline constexpr std::int32_t ExposureTime = 0x829A;
inline constexpr std::int32_t FNumber = 0x829D;
inline constexpr std::int32_t ExifVersion = 0x9000;
inline constexpr std::int32_t DateTimeOriginal = 0x9003;
inline constexpr std::int32_t DateTimeDigitized = 0x9004;
inline constexpr std::int32_t ComponentsConfiguration = 0x9101;
inline constexpr std::int32_t ShutterSpeedValue = 0x9201;
inline constexpr std::int32_t ApertureValue = 0x9202;
inline constexpr std::int32_t ExposureBiasValue = 0x9204;
inline constexpr std::int32_t MaxApertureValue = 0x9205;
inline constexpr std::int32_t SubjectDistance = 0x9206;
inline constexpr std::int32_t FocalLength = 0x920A;
inline constexpr std::int32_t MakerNote = 0x927C;
inline constexpr std::int32_t FlashPixVersion = 0xA000;
inline constexpr std::int32_t ExifInteroperabilityOffset = 0xA005;
inline constexpr std::int32_t FocalPlaneXResolution = 0xA20E;
inline constexpr std::int32_t FocalPlaneYResolution = 0xA20F;
inline constexpr std::int32_t FileSource = 0xA300;
inline constexpr std::int32_t SceneType = 0xA301;
}  // namespace exif_tag

// The number of the tag with exactly that name, 0 if there is none.
std::int32_t GetTagID(TextView name);

// "Tag #" and the number in decimal for a tag that has no name.
Text GetTagName(std::int32_t tag);

}  // namespace vorlane
