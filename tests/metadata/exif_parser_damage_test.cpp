// Blocks that are cut short, point nowhere or claim too much.
#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <string_view>

#include "metadata/exif_parser.h"
#include "platform/failure.h"
#include "support/exif_builder.h"

namespace vorlane {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr int Ascii = 2;
constexpr int Short = 3;
constexpr int Long = 4;
constexpr int Rational = 5;
constexpr int Undefined = 7;
constexpr int SignedLong = 9;
constexpr int SignedRational = 10;

constexpr int Make = 271;
constexpr int ExifOffset = 0x8769;

constexpr std::size_t EntriesOfIntelHeader = 0x4949;
constexpr std::size_t EntriesOfMotorolaHeader = 0x4D4D;

std::vector<ExifTag> Tags(const std::string& file) {
  const auto contents = ParseExif(file);
  EXPECT_TRUE(contents) << "no EXIF block";
  return contents ? SingleEntries(contents->Tags) : std::vector<ExifTag>();
}

struct Refusal {
  int Number = 0;
  Text Description;
  bool operator==(const Refusal&) const = default;
};

// The error with which a file is refused, 0 for none.
Refusal RefusalOf(const std::string& file) {
  try {
    ParseExif(file);
    return {};
  } catch (const RunError& error) {
    return {error.Number(), error.Description()};
  }
}

// A block that starts so late that exactly its first bytes lie in the head.
std::string Late(const std::string& block, std::size_t bytesInHead) {
  return std::string(ExifHeadLength - bytesInHead, ' ') + block;
}

TEST(ExifDamage, AnEmptyFileIsRefused) {
  EXPECT_EQ(RefusalOf(""), (Refusal{1, u"File not found."}));
}

TEST(ExifDamage, OneByteIsJustNotExif) {
  EXPECT_FALSE(ParseExif("E"));
  EXPECT_FALSE(ParseExif("\0"s));
}

TEST(ExifDamage, TheMarkersNulMayLieBehindTheEndOfAShortFile) {
  // A file that ends here is NULs from here on: a directory without entries at offset 0, and the
  // header once more.
  EXPECT_TRUE(Tags("Exif").empty());
  EXPECT_TRUE(Tags("Exif\0"s).empty());
  EXPECT_FALSE(ParseExif("Exi"));
}

TEST(ExifDamage, TheMarkerMustLieInTheHead) {
  const std::string block = ExifBuilder().Add(Make, Ascii, 4, "Abc").Marked();
  EXPECT_FALSE(ParseExif(Late(block, 4)));
  EXPECT_FALSE(ParseExif(std::string(ExifHeadLength, ' ') + block));
  EXPECT_FALSE(ParseExif(std::string(100000, ' ') + block));
}

TEST(ExifDamage, ABlockWhoseFirstOffsetLiesBehindTheHeadIsRefused) {
  const std::string block = ExifBuilder().Add(Make, Ascii, 4, "Abc").Marked();
  for (const std::size_t bytesInHead : {5, 6, 7, 8, 10, 13}) {
    EXPECT_EQ(RefusalOf(Late(block, bytesInHead)),
              (Refusal{1, u"Invalid procedure call or argument"}))
        << bytesInHead;
  }
  EXPECT_EQ(RefusalOf(Late(block, 14)), Refusal());
}

TEST(ExifDamage, ADirectoryBehindTheHeadHasNoEntries) {
  const std::string block = ExifBuilder().Add(Make, Ascii, 4, "Abc").Marked();
  // The header, as the second directory, still is there.
  for (const std::size_t bytesInHead : {14, 15}) {
    EXPECT_EQ(Tags(Late(block, bytesInHead)).size(), EntriesOfIntelHeader);
  }
  EXPECT_EQ(Tags(Late(block, 16)).size(), 1 + EntriesOfIntelHeader);
}

TEST(ExifDamage, AFirstOffsetThatLeadsNowhereHasNoEntries) {
  for (const std::string order : {"II", "MM"}) {
    const ExifBuilder b(order);
    for (const std::int64_t offset : {5000LL, 0x7FFFFFFFLL, 0x80000000LL, 0xFFFFFFFFLL}) {
      std::string block = b.Marked();
      block.replace(10, 4, b.Long(offset));
      EXPECT_EQ(Tags(block).size(), order == "II" ? EntriesOfIntelHeader : EntriesOfMotorolaHeader);
    }
  }
}

TEST(ExifDamage, AFirstOffsetOfZeroIsTheHeaderTwice) {
  std::string block = ExifBuilder().Marked();
  block.replace(10, 4, "\0\0\0\0"sv);
  EXPECT_EQ(Tags(block).size(), 2 * EntriesOfIntelHeader);
}

TEST(ExifDamage, ALinkThatLeadsNowhereAddsNoEntries) {
  for (const std::uint32_t offset : {5000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Tags(ExifBuilder().AddOffset(ExifOffset, Long, 1, offset).Marked()).size(), 1U);
  }
  EXPECT_EQ(Tags(ExifBuilder().AddOffset(ExifOffset, SignedLong, 1, 0xFFFFFFFFU).Marked()).size(),
            1U);
  EXPECT_EQ(Tags(ExifBuilder().Add(ExifOffset, Ascii, 8, "1e300   ").Marked()).size(), 1U);
}

TEST(ExifDamage, MoreEntriesThanTheHeadHoldsAreKeptEmpty) {
  ExifBuilder block;
  block.Add(Make, Ascii, 4, "Abc").ClaimEntries(65535);
  const auto tags = Tags(block.Marked());
  ASSERT_EQ(tags.size(), 65535 + EntriesOfIntelHeader);
  EXPECT_EQ(tags[0].Text, u"Abc");
  for (std::size_t i : {1U, 100U, 1000U, 65534U}) {
    EXPECT_EQ(tags[i].Tag, 0) << i;
    EXPECT_EQ(tags[i].Name, u"Tag #0");
    EXPECT_EQ(tags[i].Format, 0);
    EXPECT_EQ(tags[i].Count, 0);
    EXPECT_EQ(tags[i].Value, 0);
    // A number of no bytes.
    EXPECT_EQ(tags[i].Text, u"0");
  }
}

// For every number of bytes of an entry that lie in the head: what could be read stays.
TEST(ExifDamage, AnEntryCutByTheHeadsEndKeepsWhatItHas) {
  const ExifBuilder b("MM");
  const std::string block = ExifBuilder("MM").Add(0x9000, Undefined, 4, "0220").Marked();
  constexpr std::size_t EntryAt = 6 + 8 + 2;
  for (std::size_t bytes = 0; bytes <= 12; ++bytes) {
    const ExifTag entry = Tags(Late(block, EntryAt + bytes)).at(0);
    EXPECT_EQ(entry.Tag, bytes >= 2 ? 0x9000 : 0) << bytes;
    EXPECT_EQ(entry.Name, bytes >= 2 ? u"ExifVersion" : u"Tag #0") << bytes;
    EXPECT_EQ(entry.Format, bytes >= 4 ? 7 : 0) << bytes;
    EXPECT_EQ(entry.Count, bytes >= 8 ? 4 : 0) << bytes;
    EXPECT_EQ(entry.Value, bytes >= 12 ? 0x30323230 : 0) << bytes;
    const TextView texts[] = {u"0",  u"0",  u"0",   u"0",    u"0.",   u"0.",  u"0.",
                              u"0.", u"0.", u"0.0", u"2.02", u"2.22", u"2.20"};
    EXPECT_EQ(entry.Text, texts[bytes]) << bytes;
  }
}

TEST(ExifDamage, AValueBehindTheHeadHasNoText) {
  struct Row {
    int Tag;
    int Format;
    std::uint32_t Count;
  };
  const Row rows[] = {
      {Make, Ascii, 5},         {0x0112, Short, 3},          {0x0111, Long, 2},
      {0x829D, Rational, 1},    {0x829A, Rational, 1},       {0x9102, Rational, 1},
      {0x013E, Rational, 2},    {0x9204, SignedRational, 1}, {0x9000, Undefined, 5},
      {0x927C, Undefined, 900}, {0x9101, Undefined, 8},      {0xA300, Undefined, 5},
      {0x9286, Undefined, 20},  {0x0132, Ascii, 20},         {0x0111, 12, 1},
  };
  for (const Row& row : rows) {
    for (const std::uint32_t offset : {4090U, 4096U, 100000U, 0x7FFFFFF0U, 0xFFFFFFFFU}) {
      const ExifTag entry =
          Tags(ExifBuilder().AddOffset(row.Tag, row.Format, row.Count, offset).Marked() +
               std::string(200000, 'x'))
              .at(0);
      EXPECT_EQ(entry.Text, u"") << row.Tag;
      EXPECT_EQ(entry.Tag, row.Tag);
      EXPECT_EQ(entry.Format, row.Format);
      EXPECT_EQ(entry.Count, row.Count);
      EXPECT_EQ(entry.Value, offset);
    }
  }
}

TEST(ExifDamage, AValueCutByTheHeadsEnd) {
  const auto entryOf = [](int tag, int format, std::uint32_t count, std::uint32_t offset) {
    return Tags(ExifBuilder().AddOffset(tag, format, count, offset).Marked() +
                std::string(5000, 'x'))
        .at(0);
  };
  // The head ends at offset 4090.
  EXPECT_EQ(entryOf(Make, Ascii, 100, 4087).Text, u"xxx");
  EXPECT_EQ(entryOf(0x9286, Undefined, 100, 4089).Text, u"x");
  EXPECT_EQ(entryOf(0x9101, Undefined, 8, 4087).Text, u"");
  EXPECT_EQ(entryOf(0xA300, Undefined, 8, 4089).Text, u"120");
  EXPECT_EQ(entryOf(0x9000, Undefined, 8, 4089).Text, u"0.x");
  EXPECT_EQ(entryOf(0x0112, Short, 3, 4088).Text, u"30840");
  EXPECT_EQ(entryOf(0x0112, Short, 3, 4089).Text, u"");
  const ExifTag whole = entryOf(0x829D, Rational, 1, 4082);
  EXPECT_EQ(whole.Text, u"1.0");
  EXPECT_EQ(whole.Value, 1);
  const ExifTag cut = entryOf(0x829D, Rational, 1, 4083);
  EXPECT_EQ(cut.Text, u"");
  EXPECT_EQ(cut.Value, 4083);
}

TEST(ExifDamage, AValueBehindTheEndOfAShortFileIsNuls) {
  const auto textOf = [](int tag, int format, std::uint32_t count) {
    return Tags(ExifBuilder().AddOffset(tag, format, count, 3000).Marked()).at(0).Text;
  };
  EXPECT_EQ(textOf(Make, Ascii, 30), u"");
  EXPECT_EQ(textOf(0x0112, Short, 3), u"0");
  EXPECT_EQ(textOf(0x829D, Rational, 1), u"3000.0");
  EXPECT_EQ(textOf(0x829A, Rational, 1), u"0");
  EXPECT_EQ(textOf(0x9102, Rational, 1), u"0/0");
  EXPECT_EQ(textOf(0x9000, Undefined, 8), u"0.");
}

TEST(ExifDamage, CountsPast31BitsAreZero) {
  for (const std::uint32_t count : {0x80000000U, 0xFFFFFFFFU}) {
    const ExifTag entry = Tags(ExifBuilder().Add(Make, Ascii, count, "Abcd").Marked()).at(0);
    EXPECT_EQ(entry.Count, 0);
    EXPECT_EQ(entry.Text, u"Abcd");
  }
}

TEST(ExifDamage, ValuesPast32BitsOfLengthAreNotShown) {
  const auto entryOf = [](int format, std::uint32_t count) {
    return Tags(ExifBuilder().AddOffset(0x829D, format, count, 0).Marked()).at(0);
  };
  EXPECT_EQ(entryOf(Short, 0x3FFFFFFF).Text, u"18761");
  EXPECT_EQ(entryOf(Short, 0x40000000).Text, u"");
  EXPECT_EQ(entryOf(Long, 0x1FFFFFFF).Text, u"2771273");
  EXPECT_EQ(entryOf(Long, 0x20000000).Text, u"");
  EXPECT_EQ(entryOf(Rational, 0x0FFFFFFF).Text, u"346409.1");
  EXPECT_EQ(entryOf(Rational, 0x10000000).Text, u"");
  EXPECT_EQ(entryOf(Rational, 0x10000000).Count, 0x10000000);
  // One byte each: the longest count is no longer than what can be told.
  EXPECT_EQ(entryOf(Ascii, 0x7FFFFFFF).Text.substr(0, 4), u"II*\x08");
}

TEST(ExifDamage, EntriesAfterABadOneAreRead) {
  const ExifBuilder b;
  const auto tags = Tags(ExifBuilder()
                             .Add(0x829A, Rational, 1, b.Rational(0, 5))
                             .Add(0x9201, SignedRational, 1, b.Rational(5000, 1))
                             .Add(Make, 99, 1, "Abc")
                             .Add(0x9101, Undefined, 4, "\1\2\3\x63")
                             .Add(0x013E, Rational, 2, b.Rational(1, 2) + b.Rational(1, 2))
                             .AddOffset(0x0110, Ascii, 30, 100000)
                             .Add(0x0131, Ascii, 4, "Yes")
                             .Marked());
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(tags.at(i).Text, u"") << i;
  }
  EXPECT_EQ(tags.at(6).Text, u"Yes");
}

TEST(ExifDamage, BytesBehindTheHeadDontCount) {
  const ExifBuilder b;
  std::string file = ExifBuilder()
                         .Add(Make, Ascii, 4, "Abc")
                         .AddExif(0x829D, Rational, 1, b.Rational(28, 10))
                         .Jpeg();
  file.resize(ExifHeadLength, 'x');
  const auto tags = Tags(file);
  EXPECT_EQ(Tags(file + "anything"), tags);
  EXPECT_EQ(Tags(file + std::string(1000000, '\xFF')), tags);
}

// Whatever a file holds, it is read or refused in good order.
TEST(ExifDamage, EveryPrefixAndManyMutationsAreReadInGoodOrder) {
  const ExifBuilder b("MM");
  const std::string file = ExifBuilder("MM")
                               .Add(Make, Ascii, 10, "Some name\0"sv)
                               .Add(0x011A, Rational, 1, b.Rational(72, 1))
                               .AddExif(0x9003, Ascii, 20, "2004:05:06 12:34:56\0"sv)
                               .AddExif(0x9204, SignedRational, 1, b.Rational(-1, 3))
                               .AddExif(0x9101, Undefined, 4, "\1\2\3\0"sv)
                               .Jpeg();
  const auto full = Tags(file);
  for (std::size_t length = 1; length <= file.size(); ++length) {
    const auto contents = ParseExif(file.substr(0, length));
    EXPECT_EQ(contents.has_value(), length >= 10) << length;
  }
  std::mt19937 random(20260101);
  for (int round = 0; round < 2000; ++round) {
    std::string damaged = file;
    for (int change = 0; change < 3; ++change) {
      damaged[random() % damaged.size()] = static_cast<char>(random());
    }
    const auto contents = ParseExif(damaged);
    if (contents) {
      ASSERT_LE(contents->Tags.size(), 2U * 65535U);
    }
  }
  EXPECT_EQ(Tags(file), full);
}

}  // namespace
}  // namespace vorlane
