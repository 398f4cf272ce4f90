#include "metadata/exif_value.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "metadata/exif_tag_names.h"
#include "platform/code_page.h"
#include "platform/numbers.h"

namespace vorlane {

namespace {

// Bytes of one element, by format number.
constexpr std::array<std::int64_t, 13> ElementSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};

// The formats that aren't read as unsigned numbers.
constexpr std::int32_t Ascii = 2;
constexpr std::int32_t Rational = 5;
constexpr std::int32_t SignedByte = 6;
constexpr std::int32_t Undefined = 7;
constexpr std::int32_t SignedShort = 8;
constexpr std::int32_t SignedLong = 9;
constexpr std::int32_t SignedRational = 10;

constexpr std::int64_t ValueOffset = 8;  // in an entry of twelve bytes
constexpr std::int64_t ValueLength = 4;

std::int64_t SizeOfElement(const ExifTag& entry) {
  return ElementSizes.at(static_cast<std::size_t>(entry.Format));
}

// What of these bytes lies in the head.
std::string_view PartOf(std::string_view head, std::int64_t place, std::int64_t length) {
  const std::int64_t end = static_cast<std::int64_t>(head.size());
  place = std::min(place, end);
  return head.substr(static_cast<std::size_t>(place), static_cast<std::size_t>(length));
}

// The bytes of the elements, as many as there are. Nothing if they all lie behind the head.
std::optional<std::string_view> ElementBytes(const ExifBlock& block, std::int64_t place,
                                             const ExifTag& entry) {
  const std::int64_t length = SizeOfElement(entry) * entry.Count;
  if (length > std::numeric_limits<std::int32_t>::max()) {
    return std::nullopt;
  }
  if (length <= ValueLength) {
    return PartOf(block.Head, place + ValueOffset, ValueLength);
  }
  const auto offset = static_cast<std::int64_t>(entry.Value);
  const std::string_view bytes = PartOf(block.Head, block.Base + offset, length);
  return bytes.empty() ? std::nullopt : std::optional(bytes);
}

// Numerator, "/", denominator. Sets the value to the quotient if there is one.
template <typename ReadNumberOf>
std::optional<Text> ReadRational(std::string_view bytes, ByteOrder order, double& value,
                                 ReadNumberOf readNumberOf) {
  const auto numerator = readNumberOf(bytes, 0, 4, order);
  const auto denominator = readNumberOf(bytes, 4, 4, order);
  if (!numerator || !denominator) {
    return std::nullopt;
  }
  if (*denominator != 0) {
    value = *numerator / *denominator;
  }
  return ShortestDecimal(*numerator) + u"/" + ShortestDecimal(*denominator);
}

std::optional<Text> GetRational(std::string_view bytes, ByteOrder order, double& value) {
  return ReadRational(bytes, order, value, GetUnsigned);
}

std::optional<Text> GetSignedRational(std::string_view bytes, ByteOrder order, double& value) {
  return ReadRational(bytes, order, value, GetSigned);
}

std::optional<Text> FormatPower(double number, int decimals) {
  return std::isfinite(number) ? std::optional(FormatNumber(number, decimals)) : std::nullopt;
}

// The tags of which the quotient is shown; of any other rational it is the fraction.
bool IsShownAsQuotient(const ExifTag& entry) {
  switch (entry.Tag) {
    case exif_tag::ExposureTime:
    case exif_tag::ApertureValue:
    case exif_tag::MaxApertureValue:
    case exif_tag::FNumber:
    case exif_tag::XResolution:
    case exif_tag::YResolution:
    case exif_tag::SubjectDistance:
    case exif_tag::FocalLength:
    case exif_tag::FocalPlaneXResolution:
    case exif_tag::FocalPlaneYResolution:
      return entry.Format == Rational;
    case exif_tag::ShutterSpeedValue:
    case exif_tag::ExposureBiasValue:
      return entry.Format == SignedRational;
    default:
      return false;
  }
}

std::optional<Text> FormatQuotient(std::int32_t tag, double value) {
  switch (tag) {
    case exif_tag::ExposureTime:
      return value == 0 ? std::nullopt : std::optional(FormatNumber(1 / value, 0));
    case exif_tag::ApertureValue:
    case exif_tag::MaxApertureValue:
      return FormatPower(std::sqrt(std::exp2(value)), 1);
    case exif_tag::ShutterSpeedValue:
      return FormatPower(std::exp2(value), 0);
    default:
      return FormatNumber(value, 1);
  }
}

std::optional<Text> FormatRational(ExifTag& entry, std::string_view bytes, ByteOrder order) {
  const bool asQuotient = IsShownAsQuotient(entry);
  if (!asQuotient && entry.Count != 1) {
    return std::nullopt;
  }
  auto fraction = entry.Format == Rational ? GetRational(bytes, order, entry.Value)
                                           : GetSignedRational(bytes, order, entry.Value);
  return fraction && asQuotient ? FormatQuotient(entry.Tag, entry.Value) : std::move(fraction);
}

std::optional<Text> FormatComponents(std::string_view bytes) {
  static constexpr std::array<TextView, 7> Components = {u"", u"Y", u"Cb", u"Cr", u"R", u"G", u"B"};
  if (bytes.size() < 4) {
    return std::nullopt;
  }
  Text text;
  for (const char byte : bytes.substr(0, 4)) {
    const auto component = static_cast<unsigned char>(byte);
    if (component >= Components.size()) {
      return std::nullopt;
    }
    text += Components.at(component);
  }
  return text;
}

// "02" and "20" make 2.20.
Text FormatVersion(std::string_view bytes) {
  const std::string_view lastTwo =
      bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 2));
  return ShortestDecimal(NumberAtStart(TextFromCodePage(bytes.substr(0, 2)))) + u"." +
         TextFromCodePage(lastTwo);
}

// Only the bytes of 32 to 127.
Text CleanText(std::string_view bytes) {
  Text text;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    if (code >= 32 && code <= 127) {
      text.push_back(code);
    }
  }
  return text;
}

std::optional<Text> FormatUndefined(const ExifTag& entry, std::string_view bytes) {
  switch (entry.Tag) {
    case exif_tag::MakerNote:
      return CleanText(bytes);
    case exif_tag::ExifVersion:
    case exif_tag::FlashPixVersion:
      return FormatVersion(bytes);
    case exif_tag::ComponentsConfiguration:
      return FormatComponents(bytes);
    case exif_tag::FileSource:
    case exif_tag::SceneType:
      return bytes.empty() ? std::nullopt
                           : std::optional(DecimalText(static_cast<unsigned char>(bytes.front())));
    default:
      return TextFromCodePage(bytes);
  }
}

std::optional<Text> FormatWholeNumber(std::optional<double> number) {
  return number ? std::optional(ShortestDecimal(*number)) : std::nullopt;
}

std::optional<Text> FormatElements(ExifTag& entry, std::string_view bytes, ByteOrder order) {
  switch (entry.Format) {
    case Ascii:
      return TextFromCodePage(bytes);
    case Rational:
    case SignedRational:
      return FormatRational(entry, bytes, order);
    case Undefined:
      return FormatUndefined(entry, bytes);
    case SignedByte:
    case SignedShort:
    case SignedLong:
      return FormatWholeNumber(GetSigned(bytes, 0, SizeOfElement(entry), order));
    default:
      return FormatWholeNumber(GetUnsigned(bytes, 0, SizeOfElement(entry), order));
  }
}

}  // namespace

std::optional<Text> FormatValue(const ExifBlock& block, std::int64_t place, ExifTag& entry) {
  if (static_cast<std::size_t>(entry.Format) >= ElementSizes.size()) {
    return std::nullopt;
  }
  const auto bytes = ElementBytes(block, place, entry);
  if (!bytes) {
    return std::nullopt;
  }
  auto text = FormatElements(entry, *bytes, block.Order);
  if (text) {
    std::erase(*text, u'\0');
  }
  return text;
}

}  // namespace vorlane
