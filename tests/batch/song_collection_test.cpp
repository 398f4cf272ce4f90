// Some hundred MP3 files in all states of their tags, tagged and renamed by a run on a real disk
// and taken back by undo. Each file has to hold what the rules, written as they read, make of it:
// most of them what they held before, the others what undo is known not to bring back.
#include <gtest/gtest.h>

#include "platform/code_page.h"
#include "platform/posix_file_system.h"
#include "support/form_world.h"
#include "support/literal_tags.h"
#include "support/song_generator.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

using Files = std::map<std::string, std::string>;

constexpr unsigned Songs = 300;

enum class TagStep { RemoveV1, WriteV1, WriteV2, WriteV2RemovingV1 };

Text StepText(TagStep step) {
  constexpr TextView fields = u"<TITLE>|<ARTIST>|Collected|<ALBUM>|<TRACK>";
  switch (step) {
    case TagStep::RemoveV1:
      return u"<RemoveID3v1>";
    case TagStep::WriteV1:
      return u"<WriteID3v1>" + Text(fields) + u"</WriteID3v1>";
    case TagStep::WriteV2:
      return u"<WriteID3v2>" + Text(fields) + u"|0</WriteID3v2>";
    case TagStep::WriteV2RemovingV1:
      return u"<WriteID3v2>" + Text(fields) + u"|1</WriteID3v2>";
  }
  return {};
}

struct Record {
  int Version;
  ID3Tag Tag;
};

// What the journal's characters leave of a tag.
ID3Tag FromJournal(ID3Tag tag) {
  for (Text ID3Tag::*field : {&ID3Tag::Artist, &ID3Tag::Title, &ID3Tag::Album, &ID3Tag::Comment,
                              &ID3Tag::Track, &ID3Tag::Year}) {
    tag.*field = TextFromCodePage(CodePageBytes(tag.*field));
  }
  return tag;
}

// One file, put through the rules.
class Song {
 public:
  explicit Song(std::string bytes) : bytes_(std::move(bytes)) {
    v1_ = literal::ReadV1(bytes_);
    Attempt([&] { v2_ = literal::ReadV2(bytes_); });
  }

  void Run(TagStep step) {
    const bool isV2 = step == TagStep::WriteV2 || step == TagStep::WriteV2RemovingV1;
    records_.push_back({isV2 ? 2 : 1, isV2 ? v2_ : v1_});
    const ID3Tag& source = v2_.Present ? v2_ : v1_;
    ID3Tag tag = isV2 ? source : v1_;
    tag.Present = true;
    tag.Artist = source.Title;
    tag.Title = source.Artist;
    tag.Album = u"Collected";
    tag.Comment = source.Album;
    tag.Track = source.Track;
    Attempt([&] {
      if (isV2) {
        literal::WriteV2(bytes_, tag, step == TagStep::WriteV2RemovingV1);
      } else if (step == TagStep::WriteV1) {
        literal::WriteV1(bytes_, tag);
      } else {
        literal::RemoveV1(bytes_);
      }
    });
  }

  // Its record has a field more than told: one that undo takes for a new name, if there is none.
  bool HasBarInItsYear() const { return Contains(records_[0].Tag.Year, u"|"); }

  // Two records on one line have too many fields.
  bool CanBeUndone() const { return records_.size() == 1 && !HasBarInItsYear(); }

  void Undo() {
    const ID3Tag tag = FromJournal(records_[0].Tag);
    Attempt([&] {
      if (records_[0].Version == 1) {
        literal::WriteV1(bytes_, tag);
      } else {
        literal::WriteV2(bytes_, tag, false);
      }
    });
  }

  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
  ID3Tag v1_;
  ID3Tag v2_;
  std::vector<Record> records_;
};

std::string NameOf(unsigned number, const char* end) {
  std::string name = std::to_string(1000 + number);
  return name.append(end).append(number % 7 == 0 ? ".MP3" : ".mp3");
}

struct Outcome {
  unsigned Changed = 0;   // by the run
  unsigned Restored = 0;  // of these, by undo, to the byte
  unsigned Lost = 0;      // of these, with a record that undo doesn't know
};

void ExpectFiles(const TemporaryFolder& folder, const Files& expected) {
  Files found = folder.Contents();
  found.erase("UNDORENAME.TXT");
  ASSERT_EQ(found.size(), expected.size());
  for (const auto& [name, bytes] : expected) {
    EXPECT_TRUE(found.count(name) == 1 && found[name] == bytes) << name;
  }
}

Outcome RunAndUndo(const std::vector<TagStep>& steps, bool renames) {
  const TemporaryFolder folder;
  Outcome outcome;
  Files after;
  Files undone;
  std::vector<Text> code;
  for (const TagStep step : steps) {
    code.push_back(StepText(step));
  }
  if (renames) {
    code.push_back(u"<NAMEONLY> done<EXTONLY>");
  }
  for (unsigned number = 0; number < Songs; ++number) {
    const std::string before = SongGenerator(number).Song();
    Song song(before);
    for (const TagStep step : steps) {
      song.Run(step);
    }
    if (!renames && song.HasBarInItsYear()) {
      continue;
    }
    folder.Write(NameOf(number, ""), before);
    const std::string newName = NameOf(number, renames ? " done" : "");
    after[newName] = song.Bytes();
    outcome.Changed += song.Bytes() != before ? 1 : 0;
    const bool isUndone = song.CanBeUndone();
    outcome.Lost += isUndone ? 0 : 1;
    if (isUndone) {
      song.Undo();
    }
    undone[isUndone ? NameOf(number, "") : newName] = song.Bytes();
    outcome.Restored += after[newName] != before && song.Bytes() == before ? 1 : 0;
  }
  PosixFileSystem files;
  FormWorld world(files);
  world.ListAll(folder.TextPath());
  EXPECT_EQ(world.State.Rows.Count(), static_cast<std::int32_t>(after.size()));
  world.SelectSteps(code);
  world.RunAll();
  ExpectFiles(folder, after);
  world.Undo.cmdUndo_Click();
  ExpectFiles(folder, undone);
  EXPECT_FALSE(folder.Exists("UNDORENAME.TXT"));
  return outcome;
}

TEST(SongCollection, WritingID3v2AndRemovingTheOther) {
  const Outcome outcome = RunAndUndo({TagStep::WriteV2RemovingV1}, true);
  EXPECT_GT(outcome.Changed, Songs / 2);
  EXPECT_GT(outcome.Lost, 5U);
}

TEST(SongCollection, WritingID3v2) {
  for (const bool renames : {false, true}) {
    const Outcome outcome = RunAndUndo({TagStep::WriteV2}, renames);
    EXPECT_GT(outcome.Changed, Songs / 2);
    EXPECT_GT(outcome.Restored, Songs / 8);
  }
}

TEST(SongCollection, WritingID3v1) {
  const Outcome outcome = RunAndUndo({TagStep::WriteV1}, true);
  EXPECT_GT(outcome.Changed, Songs / 2);
  EXPECT_GT(outcome.Restored, Songs / 4);
}

TEST(SongCollection, RemovingID3v1) {
  const Outcome outcome = RunAndUndo({TagStep::RemoveV1}, true);
  EXPECT_GT(outcome.Changed, Songs / 4);
  EXPECT_GT(outcome.Restored, Songs / 8);
  EXPECT_GT(outcome.Lost, 5U);
}

TEST(SongCollection, TwoStepsOfARowAreBothBeyondUndo) {
  const Outcome outcome = RunAndUndo({TagStep::RemoveV1, TagStep::WriteV2}, true);
  EXPECT_GT(outcome.Changed, Songs / 2);
  EXPECT_EQ(outcome.Lost, Songs);
}

}  // namespace
}  // namespace vorlane
