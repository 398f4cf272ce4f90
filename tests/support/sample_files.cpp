#include "support/sample_files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <ctime>
#include <iomanip>
#include <sstream>

#include "platform/code_page.h"
#include "platform/file_name_bytes.h"
#include "support/exif_builder.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

constexpr unsigned roomyTag = 700;
constexpr int firstExifDirectoryTag = 0x8000;  // lower numbers belong to the directory of the image
constexpr int asciiFormat = 2;
constexpr int longFormat = 4;

std::string FieldOf(const TagFields& fields, const std::string& name) {
  const auto found = fields.find(name);
  return found == fields.end() ? "" : CodePageBytes(TextFromBytes(found->second));
}

unsigned NumberOf(const std::string& text) {
  return text.empty() ? 0 : static_cast<unsigned>(std::stoul(text));
}

std::string V1Bytes(const TagFields& fields) {
  const auto field = [&](const char* name) { return FieldOf(fields, name); };
  return id3::V1(field("title"), field("artist"), field("album"), field("year"), field("comment"),
                 NumberOf(field("track")), NumberOf(field("genre")));
}

// The artist with a byte-order mark and two bytes a letter, if the sample asks for it.
std::string ArtistFrame(const TagFields& fields) {
  const auto found = fields.find("artist16");
  if (found == fields.end()) {
    return id3::Frame("TPE1", FieldOf(fields, "artist"));
  }
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : TextFromBytes(found->second)) {
    bytes += id3::Byte(unit & 0xFFU) + id3::Byte(unit >> 8U);
  }
  return id3::RawFrame("TPE1", static_cast<unsigned>(bytes.size()) + 1, bytes,
                       std::string_view("\0\0\1", 3));
}

std::string V2Bytes(const TagFields& fields) {
  const auto field = [&](const char* name) { return FieldOf(fields, name); };
  std::string genre = field("genre");
  if (genre.empty() || genre.find_first_not_of("0123456789") == std::string::npos) {
    genre = "(" + std::to_string(NumberOf(genre)) + ")";
  }
  std::string frames = ArtistFrame(fields) + id3::Frame("TIT2", field("title")) +
                       id3::Frame("TALB", field("album")) + id3::Comment(field("comment")) +
                       id3::Frame("TYER", field("year")) + id3::Frame("TRCK", field("track")) +
                       id3::Frame("TCON", genre);
  if (!field("composer").empty()) {
    frames += id3::Frame("TCOM", field("composer"));
  }
  const auto length = static_cast<unsigned>(10 + frames.size());
  return id3::Tag(field("room") == "none" ? std::max(length, 257U) : roomyTag, frames);
}

std::string ImageBytes(const std::map<int, std::string>& tags) {
  ExifBuilder builder;
  for (const auto& [number, text] : tags) {
    const bool isNumber = text.find_first_not_of("0123456789") == std::string::npos;
    const std::string value = isNumber ? builder.Long(std::stoi(text)) : text + '\0';
    const auto count = static_cast<std::uint32_t>(isNumber ? 1 : value.size());
    const int format = isNumber ? longFormat : asciiFormat;
    if (number < firstExifDirectoryTag) {
      builder.Add(number, format, count, value);
    } else {
      builder.AddExif(number, format, count, value);
    }
  }
  return builder.Jpeg();
}

ID3Tag WithChanges(ID3Tag tag, const TagFields& changes) {
  tag.Present = true;
  for (const auto& [name, value] : changes) {
    const Text text = TextFromBytes(value);
    if (name == "artist") {
      tag.Artist = text;
    } else if (name == "title") {
      tag.Title = text;
    } else if (name == "album") {
      tag.Album = text;
    } else if (name == "comment") {
      tag.Comment = text;
    } else if (name == "track") {
      tag.Track = text;
    } else if (name == "year") {
      tag.Year = text;
    } else if (name == "genre") {
      tag.Genre = static_cast<std::int16_t>(NumberOf(value));
    } else {
      ADD_FAILURE() << "no such field: " << name;
    }
  }
  return tag;
}

}  // namespace

std::string SampleAudio(const SampleEntry& entry) {
  std::string audio;
  if (entry.Facts.Kbit != 0) {
    // The header of a frame: MPEG-1 Layer III, and the rate's place in their table.
    constexpr unsigned rates[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    unsigned index = 0;
    while (index < 14 && rates[index] != entry.Facts.Kbit) {
      ++index;
    }
    audio = "\xFF\xFB" + id3::Byte(index << 4) + id3::Nuls(1);
  }
  return audio + "<" + entry.Before + ">" + id3::Audio(500);
}

std::string SampleBytes(const SampleEntry& entry) {
  const SampleTraits& facts = entry.Facts;
  std::string bytes = facts.V2 ? V2Bytes(*facts.V2) : "";
  bytes += facts.Exif.empty() ? "" : ImageBytes(facts.Exif);
  bytes += SampleAudio(entry);
  bytes += facts.V1 ? V1Bytes(*facts.V1) : "";
  if (facts.Size != 0) {
    bytes.resize(facts.Size, '.');
  }
  return bytes;
}

void SetChangeTime(const std::string& path, const std::string& localTime) {
  std::tm parts = {};
  std::istringstream(localTime) >> std::get_time(&parts, "%Y-%m-%d %H:%M:%S");
  parts.tm_isdst = -1;
  const std::time_t time = std::mktime(&parts);
  const timespec times[] = {{time, 0}, {time, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
}

std::string CreationDay(const std::string& path) {
  struct statx status = {};
  EXPECT_EQ(statx(AT_FDCWD, path.c_str(), 0, STATX_BTIME | STATX_MTIME, &status), 0);
  const bool isKnown = (status.stx_mask & STATX_BTIME) != 0;
  const std::time_t time = isKnown ? status.stx_btime.tv_sec : status.stx_mtime.tv_sec;
  std::tm parts = {};
  localtime_r(&time, &parts);
  std::ostringstream day;
  day << std::put_time(&parts, "%Y-%m-%d");
  return day.str();
}

void ExpectTag(const ID3Tag& found, const ID3Tag& before, const TagFields& changes) {
  if (changes.count("none") == 1) {
    EXPECT_FALSE(found.Present);
    return;
  }
  const ID3Tag wanted = WithChanges(before, changes);
  EXPECT_TRUE(found.Present);
  EXPECT_EQ(found.Artist, wanted.Artist);
  EXPECT_EQ(found.Title, wanted.Title);
  EXPECT_EQ(found.Album, wanted.Album);
  EXPECT_EQ(found.Comment, wanted.Comment);
  EXPECT_EQ(found.Track, wanted.Track);
  EXPECT_EQ(found.Year, wanted.Year);
  EXPECT_EQ(found.Genre, wanted.Genre);
}

}  // namespace vorlane
