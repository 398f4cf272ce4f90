// Readers and writers on random files, against the same rules written as they read.
#include "support/literal_tags.h"

#include <gtest/gtest.h>

#include "metadata/tag_reading.h"
#include "metadata/tag_writing.h"
#include "platform/numbers.h"
#include "support/memory_file_system.h"
#include "support/recording_prompter.h"
#include "support/recording_report.h"
#include "support/recording_status_line.h"
#include "support/song_generator.h"

namespace vorlane {
namespace {

class LiteralTags : public testing::Test {
 protected:
  // The number of the error that was reported or shown, 0 for none.
  template <typename Write>
  int Run(const std::string& bytes, Write&& write) {
    files_.Write(Path, bytes);
    files_.ForgetCalls();
    report_.Reports.clear();
    boxes_.Boxes.clear();
    write();
    if (!report_.Reports.empty()) {
      return report_.Reports[0].Number;
    }
    const TextView start = u"Error number: ";
    return boxes_.Boxes.empty()
               ? 0
               : ReadInt32(boxes_.Boxes[0].Title.substr(start.size())).value_or(-1);
  }

  // The plain version's error; its file is as before after one.
  template <typename Write>
  static int RunPlain(std::string& bytes, Write&& write) {
    const std::string before = bytes;
    try {
      write();
      return 0;
    } catch (const RunError& error) {
      bytes = before;
      return error.Number();
    }
  }

  static constexpr TextView Path = u"/a.mp3";
  static constexpr unsigned Rounds = 4000;
  MemoryFileSystem files_;
  RecordingReport report_;
  RecordingPrompter boxes_;
  RecordingStatusLine status_;
};

TEST_F(LiteralTags, WriteID3v2) {
  unsigned written = 0;
  for (unsigned seed = 1; seed <= Rounds; ++seed) {
    SongGenerator generator(seed);
    const std::string before = generator.Song();
    const ID3Tag tag = generator.Record();
    const bool remove = generator.Below(2) == 0;
    std::string expected = before;
    const int error = RunPlain(expected, [&] { literal::WriteV2(expected, tag, remove); });
    EXPECT_EQ(Run(before,
                  [&] {
                    WriteID3v2({files_, report_, boxes_, status_}, Path, tag, remove);
                  }),
              error)
        << "seed " << seed;
    EXPECT_TRUE(files_.Read(Path) == expected) << "seed " << seed;
    if (expected == before) {
      EXPECT_EQ(files_.MutationCount, 0U) << "seed " << seed;
    } else {
      ++written;
    }
  }
  EXPECT_GT(written, Rounds / 3);
}

TEST_F(LiteralTags, ReadBoth) {
  for (unsigned seed = 1; seed <= Rounds; ++seed) {
    std::string file = SongGenerator(seed).Song();
    files_.Write(Path, file);
    const ID3Tags tags = ReadID3Tags(files_, report_, Path);
    EXPECT_EQ(tags.V1, literal::ReadV1(file)) << "seed " << seed;
    ID3Tag expected;
    const int error = RunPlain(file, [&] { expected = literal::ReadV2(file); });
    EXPECT_EQ(tags.V2, expected) << "seed " << seed;
    EXPECT_EQ(report_.Reports.size(), error == 0 ? 0U : 1U) << "seed " << seed;
    report_.Reports.clear();
  }
}

TEST_F(LiteralTags, WriteID3v1) {
  unsigned written = 0;
  for (unsigned seed = 1; seed <= Rounds; ++seed) {
    SongGenerator generator(seed);
    const std::string before = generator.Song();
    const ID3Tag tag = generator.Record();
    std::string expected = before;
    const int error = RunPlain(expected, [&] { literal::WriteV1(expected, tag); });
    EXPECT_EQ(Run(before, [&] { WriteID3v1(files_, report_, Path, tag); }), error)
        << "seed " << seed;
    EXPECT_TRUE(files_.Read(Path) == expected) << "seed " << seed;
    written += expected == before ? 0 : 1;
  }
  EXPECT_GT(written, Rounds / 5);
}

}  // namespace
}  // namespace vorlane
