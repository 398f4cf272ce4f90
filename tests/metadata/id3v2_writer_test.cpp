#include "metadata/id3v2_writer.h"

#include <gtest/gtest.h>

#include "metadata/id3v2_reader.h"
#include "platform/failure.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using id3::Comment;
using id3::Frame;
using id3::Header;
using id3::NewHeader;
using id3::Nuls;
using id3::Padded;
using id3::RawFrame;
using id3::Tag;

ID3Tag Filled() {
  ID3Tag tag;
  tag.Artist = u"Artist";
  tag.Title = u"Title";
  tag.Album = u"Album";
  tag.Track = u"07";
  tag.Comment = u"Note";
  tag.Year = u"1999";
  tag.Genre = 17;
  return tag;
}

ID3Tag WithGenre(std::int16_t genre) {
  ID3Tag tag;
  tag.Genre = genre;
  return tag;
}

template <typename Steps>
int ErrorOf(Steps&& steps) {
  try {
    steps();
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

std::string EmptyFrames() {
  return Frame("TPE1", "") + Frame("TIT2", "") + Frame("TALB", "") + Comment("") +
         Frame("TYER", "") + Frame("TRCK", "");
}

TEST(NewID3v2, SevenFramesIn257Bytes) {
  EXPECT_EQ(NewID3v2(Filled()),
            Padded(NewHeader() + Frame("TPE1", "Artist") + Frame("TIT2", "Title") +
                       Frame("TALB", "Album") + Comment("Note") + Frame("TYER", "1999") +
                       Frame("TRCK", "07") + Frame("TCON", "(17)"),
                   257));
}

TEST(NewID3v2, EmptyFields) {
  EXPECT_EQ(NewID3v2(WithGenre(17)),
            Padded(NewHeader() + EmptyFrames() + Frame("TCON", "(17)"), 257));
}

TEST(NewID3v2, SizeOfTheGenreIsAlwaysFive) {
  for (const auto& [genre, text] :
       {std::pair{5, "(5)"}, {17, "(17)"}, {123, "(123)"}, {-1, "(-1)"}, {-32768, "(-32768)"}}) {
    EXPECT_EQ(NewID3v2(WithGenre(static_cast<std::int16_t>(genre))),
              Padded(NewHeader() + EmptyFrames() + RawFrame("TCON", 5, text), 257));
  }
}

TEST(NewID3v2, FieldsFillTheTagExactly) {
  ID3Tag tag = WithGenre(17);
  tag.Title = Text(162, u't');  // with the fixed 95 bytes: 257
  const std::string bytes = NewID3v2(tag);
  EXPECT_EQ(bytes.size(), 257U);
  EXPECT_EQ(bytes.substr(253), "(17)");
  for (const std::size_t length : {163U, 254U, 255U, 256U, 5000U}) {
    tag.Title = Text(length, u't');
    EXPECT_EQ(ErrorOf([&] { NewID3v2(tag); }), 5) << length;
  }
}

TEST(NewID3v2, OneByteACharacter) {
  ID3Tag tag = Filled();
  tag.Artist = u"\u20AC\u65E5\u00FF";
  EXPECT_EQ(NewID3v2(tag).substr(10, 14), Frame("TPE1", "\x80?\xFF"));
}

TEST(NewID3v2, ReadBack) {
  ID3Tag expected = Filled();
  expected.Present = true;
  EXPECT_EQ(ParseID3v2(NewID3v2(Filled())), expected);
  EXPECT_EQ(ParseID3v2(NewID3v2(WithGenre(5))).Genre, 5);
  EXPECT_EQ(ParseID3v2(NewID3v2(WithGenre(17))).Genre, 17);
  EXPECT_EQ(ParseID3v2(NewID3v2(WithGenre(123))).Genre, 0);
}

TEST(UpdatedID3v2, SameValuesAgain) {
  EXPECT_EQ(UpdatedID3v2(NewID3v2(Filled()), Filled()), NewID3v2(Filled()));
  EXPECT_EQ(UpdatedID3v2(NewID3v2(WithGenre(17)), WithGenre(17)), NewID3v2(WithGenre(17)));
  // A size of five is right for two digits alone; the second write puts it right.
  EXPECT_EQ(UpdatedID3v2(NewID3v2(WithGenre(5)), WithGenre(5)),
            Padded(NewHeader() + EmptyFrames() + Frame("TCON", "(5)"), 257));
  EXPECT_EQ(UpdatedID3v2(NewID3v2(WithGenre(123)), WithGenre(123)),
            // the bracket that the old size left out stays behind the new text
            Padded(NewHeader() + EmptyFrames() + Frame("TCON", "(123)") + ")", 257));
}

TEST(UpdatedID3v2, FramesAreReplacedWhereTheyStand) {
  const std::string old =
      Tag(600, Frame("TCON", "(1)") + Frame("TIT2", "x") + "other" + Frame("TPE1", "y") +
                   Frame("XXXX", "kept") + Comment("z") + Frame("TALB", "") + Frame("TRCK", "1") +
                   Frame("TYER", "2000"));
  EXPECT_EQ(UpdatedID3v2(old, Filled()),
            Tag(600, Frame("TCON", "(17)") + Frame("TIT2", "Title") + "other" +
                         Frame("TPE1", "Artist") + Frame("XXXX", "kept") + Comment("Note") +
                         Frame("TALB", "Album") + Frame("TRCK", "07") + Frame("TYER", "1999")));
}

TEST(UpdatedID3v2, NewFramesComeInTheirOrder) {
  EXPECT_EQ(UpdatedID3v2(Tag(600, Frame("XXXX", "kept")), Filled()),
            Tag(600, Frame("XXXX", "kept") + Frame("TPE1", "Artist") + Frame("TIT2", "Title") +
                         Frame("TALB", "Album") + Comment("Note") + Frame("TYER", "1999") +
                         Frame("TRCK", "07") + Frame("TCON", "(17)")));
}

TEST(UpdatedID3v2, HeaderOfATagOf257OrMoreStays) {
  for (const unsigned size : {257U, 258U, 1000U}) {
    const std::string tag = UpdatedID3v2(Tag(size, ""), Filled());
    EXPECT_EQ(tag.size(), size);
    EXPECT_EQ(tag.substr(0, 10), Header(size)) << size;
  }
}

TEST(UpdatedID3v2, SmallTagGrowsTo257AndGetsANewHeader) {
  const std::string added = Frame("TPE1", "Artist") + Frame("TIT2", "Title") +
                            Frame("TALB", "Album") + Comment("Note") + Frame("TYER", "1999") +
                            Frame("TRCK", "07") + Frame("TCON", "(17)");
  EXPECT_EQ(UpdatedID3v2(Tag(256, Frame("XXXX", "kept")), Filled()),
            Padded(NewHeader() + Frame("XXXX", "kept") + added, 257));
  EXPECT_EQ(UpdatedID3v2(Tag(20, "0123456789"), Filled()),
            Padded(NewHeader() + "0123456789" + added, 257));
  for (const unsigned size : {1U, 9U, 10U}) {
    EXPECT_EQ(UpdatedID3v2(Header(size).substr(0, size), Filled()),
              Padded(NewHeader() + added, 257));
  }
}

// The NULs at the end of an empty frame count as room for the next one.
TEST(UpdatedID3v2, NewFrameBehindAnEmptyOneBeginsInItsLastNuls) {
  const auto empty = [](std::string_view id) { return std::string(id) + Nuls(3) + "\x01"; };
  const std::string frames = empty("TPE1") + empty("TIT2") + empty("TALB") +
                             RawFrame("COMM", 5, "eng") + empty("TYER") + empty("TRCK") +
                             Frame("TCON", "(17)");
  EXPECT_EQ(UpdatedID3v2(Tag(600, ""), WithGenre(17)), Tag(600, frames));
  EXPECT_EQ(ParseID3v2(Tag(600, frames)).Genre, 17);
}

// The same with a text that ends in a NUL, as UTF-16 does: the new artist begins in it, and is
// damaged when the title, whose old text reaches into it, is replaced right after.
TEST(UpdatedID3v2, NewFrameBehindATextThatEndsInANulIsDamaged) {
  const std::string old = Tag(600, Frame("TIT2", std::string("A\0B\0", 4)));
  const std::string updated = UpdatedID3v2(old, Filled());
  EXPECT_EQ(updated.substr(10, 32), Frame("TIT2", "Title") + Frame("TPE1", "Artist").substr(1));
  EXPECT_EQ(ParseID3v2(updated).Artist, u"");
  EXPECT_EQ(ParseID3v2(UpdatedID3v2(updated, Filled())).Artist, u"Artist");
}

TEST(UpdatedID3v2, SmallTagCanLoseItsEndToo) {
  const std::string frames = Frame("TIT2", "x") + std::string(200, 'a') + "end";
  const std::string updated = UpdatedID3v2(Tag(230, frames), Filled());
  EXPECT_EQ(updated.size(), 257U);
  EXPECT_EQ(updated.substr(0, 10), NewHeader());
  EXPECT_EQ(updated.substr(10, 16), Frame("TIT2", "Title"));
}

TEST(UpdatedID3v2, EndIsCutOffWhenATextGrows) {
  const std::string filler(1000 - 10 - 12 - 20, 'f');
  const std::string old = Header(1000) + Frame("TIT2", "x") + filler + "0123456789ABCDEFGHIJ";
  EXPECT_EQ(old.size(), 1000U);
  EXPECT_EQ(UpdatedID3v2(old, Filled()),
            Header(1000) + Frame("TIT2", "Title") + filler + "0123456789ABCDEF");
}

TEST(UpdatedID3v2, FrameWithoutRoomIsQuietlyLeftOut) {
  const std::string full = Header(300) + std::string(280, 'f') + Nuls(10);
  EXPECT_EQ(UpdatedID3v2(full, Filled()), full);
  // Room for eleven: an empty artist would fit, six letters don't.
  const std::string eleven = Header(300) + std::string(279, 'f') + Nuls(11);
  EXPECT_EQ(UpdatedID3v2(eleven, Filled()), eleven);
  EXPECT_EQ(UpdatedID3v2(eleven, WithGenre(17)),
            Header(300) + std::string(279, 'f') + Frame("TPE1", ""));
}

TEST(UpdatedID3v2, LongestTexts) {
  const std::string old = Tag(2000, "");
  for (Text ID3Tag::*field : {&ID3Tag::Artist, &ID3Tag::Title, &ID3Tag::Album, &ID3Tag::Track,
                              &ID3Tag::Year, &ID3Tag::Comment}) {
    const std::size_t longest = field == &ID3Tag::Comment ? 250 : 254;
    ID3Tag tag = Filled();
    tag.*field = Text(longest, u'x');
    EXPECT_EQ(ErrorOf([&] { UpdatedID3v2(old, tag); }), 0);
    tag.*field = Text(longest + 1, u'x');
    EXPECT_EQ(ErrorOf([&] { UpdatedID3v2(old, tag); }), 5);
  }
}

TEST(UpdatedID3v2, Utf16FrameComesBackAs8Bit) {
  const std::string old = Tag(600, RawFrame("TIT2", 7,
                                            std::string("\xFF\xFE"
                                                        "A\0B\0",
                                                        6),
                                            std::string_view("\0\0\x01", 3)));
  EXPECT_EQ(UpdatedID3v2(old, Filled()).substr(10, 16), Frame("TIT2", "Title"));
}

TEST(UpdatedID3v2, ReadBack) {
  ID3Tag expected = Filled();
  expected.Present = true;
  for (const unsigned size : {20U, 256U, 257U, 5000U}) {
    EXPECT_EQ(ParseID3v2(UpdatedID3v2(Tag(size, ""), Filled())), expected) << size;
  }
}

}  // namespace
}  // namespace vorlane
