// Any record into a new tag, a second one over it, and one into any old tag: the bytes are those
// that the rules make when they are written as they read, and what is read back is what was
// written. An input is two records, each a genre of two bytes and six texts that end in a NUL
// (artist, title, album, track, comment, year), and an old tag. Seeds: fuzz/corpus/id3v2_write.
#include <algorithm>
#include <array>
#include <optional>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "metadata/id3v2_reader.h"
#include "metadata/id3v2_writer.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "support/literal_tags.h"

using namespace vorlane;

namespace {

constexpr std::size_t SmallestTag = 257;

ID3Tag TakeTag(FuzzInput& input) {
  ID3Tag tag;
  tag.Present = true;
  const unsigned low = input.NextNumber();
  tag.Genre = static_cast<std::int16_t>(low | static_cast<unsigned>(input.NextNumber()) << 8);
  tag.Artist = input.NextText();
  tag.Title = input.NextText();
  tag.Album = input.NextText();
  tag.Track = input.NextText();
  tag.Comment = input.NextText();
  tag.Year = input.NextText();
  return tag;
}

// Nothing for a failure, whose number comes to `error`.
template <typename Make>
auto Result(int& error, Make&& make) {
  std::optional<decltype(make())> result;
  error = 0;
  try {
    result = make();
  } catch (const RunError& failure) {
    error = failure.Number();
  }
  return result;
}

// Does both; they have to agree, in their failure too.
template <typename Make, typename MakeLiterally>
auto Agreed(Make&& make, MakeLiterally&& makeLiterally) {
  int error = 0;
  int literalError = 0;
  auto result = Result(error, make);
  Require(result == Result(literalError, makeLiterally) && error == literalError);
  return result;
}

std::optional<ID3Tag> ReadBack(const std::string& bytes) {
  const std::string padded = bytes + '\0';
  return Agreed([&] { return ParseID3v2(padded); }, [&] { return literal::ReadV2(padded); });
}

// A text that stays as it is in a tag: it has a byte for each character, no spaces at its ends, and
// nothing that is taken for a mark, for UTF-16 or for the start of a frame.
bool IsTame(const Text& text) {
  const std::string bytes = CodePageBytes(text);
  constexpr std::array ids = {"TPE1", "TIT2", "TALB", "TRCK", "TYER", "COMM", "TCON"};
  return TextFromCodePage(bytes) == text && bytes.find('\0') == std::string::npos &&
         bytes.find('\xFF') == std::string::npos && !bytes.starts_with(' ') &&
         !bytes.ends_with(' ') && std::none_of(ids.begin(), ids.end(), [&](const char* id) {
           return bytes.find(id) != std::string::npos;
         });
}

bool IsTame(const ID3Tag& tag) {
  return IsTame(tag.Artist) && IsTame(tag.Title) && IsTame(tag.Album) && IsTame(tag.Track) &&
         IsTame(tag.Comment) && IsTame(tag.Year);
}

std::size_t TextLength(const ID3Tag& tag) {
  return tag.Artist.size() + tag.Title.size() + tag.Album.size() + tag.Track.size() +
         tag.Comment.size() + tag.Year.size();
}

// How a tame record comes back. The comment's frame gives the genre its length.
ID3Tag Expected(ID3Tag tag) {
  if (!IsNumeric(tag.Track)) {
    tag.Track = u"0";
  }
  if (tag.Track.size() == 1) {
    tag.Track.insert(0, u"0");
  }
  const std::size_t genreLength = DecimalText(tag.Genre).size() + 2;
  if (genreLength > tag.Comment.size() + 4) {
    tag.Genre = 0;
  }
  return tag;
}

// The seven frames without their texts, and the header.
std::size_t FixedLength(const ID3Tag& tag) {
  return 10 + 7 * 11 + 4 + 2 + DecimalText(tag.Genre).size();
}

std::optional<std::string> WriteNew(const ID3Tag& tag) {
  const auto bytes = Agreed([&] { return NewID3v2(tag); }, [&] { return literal::NewV2(tag); });
  Require(bytes.has_value() == (TextLength(tag) + FixedLength(tag) <= SmallestTag));
  if (bytes) {
    Require(bytes->size() == SmallestTag);
    const auto back = ReadBack(*bytes);
    Require(!IsTame(tag) || back == Expected(tag));
  }
  return bytes;
}

std::optional<std::string> WriteInto(const std::string& oldTag, const ID3Tag& tag) {
  const auto bytes = Agreed([&] { return UpdatedID3v2(oldTag, tag); },
                            [&] { return literal::UpdatedV2(oldTag, tag); });
  if (bytes) {
    Require(bytes->size() == std::max(oldTag.size(), SmallestTag));
    ReadBack(*bytes);
  }
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const ID3Tag first = TakeTag(input);
  const ID3Tag second = TakeTag(input);
  if (const auto newTag = WriteNew(first)) {
    const auto over = WriteInto(*newTag, second);
    const bool fits = TextLength(second) + FixedLength(second) <= SmallestTag;
    if (over && fits && IsTame(first) && IsTame(second)) {
      Require(ReadBack(*over) == Expected(second));
    }
  }
  const std::string oldTag = input.Rest();
  if (oldTag.size() >= 10 && oldTag.starts_with("ID3")) {
    const auto once = WriteInto(oldTag, first);
    if (once) {
      WriteInto(*once, second);
    }
  }
  return 0;
}
